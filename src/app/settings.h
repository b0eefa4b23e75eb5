#pragma once

#include "app/dialog_data.h"
#include "app/setting.h"

#include <QJsonObject>
#include <QStringList>

#include <array>

namespace Glyphor {

// The choices of the "LineEndings" setting.
enum class LineEndingChoice : int { CrLf = 0, Cr = 1, Lf = 2 };

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
        bool writePaths;
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
    OptionByRef<bool> writePaths;

    OptionWindowData mainWindow;
    OptionDialogData<FontDialogData> fontDialog;
    OptionDialogData<FontGenerationDialogData> fontGenerationDialog;
    OptionDialogData<EnableRangeDialogData> enableRangeDialog;
    OptionDialogData<MergeModeDialogData> mergeModeDialog;
    OptionDialogData<PreferencesDialogData> preferencesDialog;
    OptionDialogData<CommandDialogData> commandDialog;

    // For this run alone: the store keeps what it has.
    void UseDefaults();

    // The same for one preference that a run without a window heeds, from "KEY=VALUE". Throws a
    // CriticalException where there is no such key or value.
    void Override(const QString& assignment);

    // The preferences that a run without a window heeds, with their values.
    [[nodiscard]] QJsonObject Heeded();

    // What ends every line of a generated text file.
    [[nodiscard]] QByteArray LineEnding() const;

private:
    [[nodiscard]] std::array<Preference*, 8> HeededPreferences();
};

} // namespace Glyphor
