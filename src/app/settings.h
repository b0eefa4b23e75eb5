#pragma once

#include "app/setting.h"

namespace Glyphor {

// The choices of the "LineEndings" setting.
enum class LineEndingChoice : int { CrLf = 0, Cr = 1, Lf = 2 };

// The size of the dialog with the command-line options; -1 where nothing is remembered.
struct CommandDialogData
{
    qint32 width = -1;
    qint32 height = -1;

    bool operator==(const CommandDialogData&) const = default;
};

QDataStream& operator<<(QDataStream& out, const CommandDialogData& data);
QDataStream& operator>>(QDataStream& in, CommandDialogData& data);

// Every preference of the user and the remembered state of every window.
class Settings final : public SettingsRegistry
{
    // What the settings below are bound to.
    struct Variables
    {
        bool hideLegacy;
        int numeralSystem;
        bool logActions;
        bool createLogFile;
        bool useSysLineEndings;
        int lineEndings;
        QStringList additionalFontDirs;
        bool searchDirsRecursively;
        bool useIncludedBitmaps;
    };

    Variables variables_{};

public:
    explicit Settings(std::unique_ptr<QSettings> store);

    // The settings of the current user, read when first asked for.
    static Settings& Instance();

    OptionByRef<bool> hideLegacy;
    OptionByRef<int> numeralSystem;
    OptionByRef<bool> logActions;
    OptionByRef<bool> createLogFile;
    OptionByRef<bool> useSysLineEndings;
    OptionByRef<int> lineEndings;
    OptionByRef<QStringList> additionalFontDirs;
    OptionByRef<bool> searchDirsRecursively;
    OptionByRef<bool> useIncludedBitmaps;

    OptionWindowData mainWindow;
    OptionDialogData<CommandDialogData> commandDialog;

    // What ends every line of a generated text file.
    [[nodiscard]] QByteArray LineEnding() const;
};

} // namespace Glyphor
