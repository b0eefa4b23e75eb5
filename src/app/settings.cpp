#include "app/settings.h"

#include <QDataStream>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QSettings> OpenUserStore()
{
    auto store = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                             u"Morvek"_s, u"Glyphor"_s);
    store->setFallbacksEnabled(false);
    return store;
}

} // namespace

QDataStream& operator<<(QDataStream& out, const CommandDialogData& data)
{
    return out << data.width << data.height;
}

QDataStream& operator>>(QDataStream& in, CommandDialogData& data)
{
    return in >> data.width >> data.height;
}

Settings::Settings(std::unique_ptr<QSettings> store)
    : SettingsRegistry(std::move(store)),
      hideLegacy(*this, u"HideLegacy"_s, variables_.hideLegacy, true),
      numeralSystem(*this, u"NumeralSystem"_s, variables_.numeralSystem, 1),
      logActions(*this, u"LogActions"_s, variables_.logActions, true),
      createLogFile(*this, u"CreateLogFile"_s, variables_.createLogFile, false),
      useSysLineEndings(*this, u"UseSysLineEndings"_s, variables_.useSysLineEndings, true),
      lineEndings(*this, u"LineEndings"_s, variables_.lineEndings, 0),
      additionalFontDirs(*this, u"AdditionalFontDirs"_s, variables_.additionalFontDirs, {}),
      searchDirsRecursively(*this, u"SearchDirsRecursively"_s, variables_.searchDirsRecursively,
                            true),
      useIncludedBitmaps(*this, u"UseIncludedBitmaps"_s, variables_.useIncludedBitmaps, true),
      mainWindow(*this, u"MainWindowData"_s, "MainWindow::Data"),
      commandDialog(*this, u"CommandDialogData"_s, "CommandDialog::DialogData")
{
    for (const QString& group :
         {mainWindow.key(), u"FontDialogData"_s, u"FontGenerationDialogData"_s,
          u"EnableRangeDialogData"_s, u"MergeModeDialogData"_s, u"PreferencesDialogData"_s,
          commandDialog.key()})
        registerGroup(group);
}

Settings& Settings::Instance()
{
    static Settings settings(OpenUserStore());
    return settings;
}

QByteArray Settings::LineEnding() const
{
    // Generated files have the line ending of the system that the embedded tools run on.
    if (useSysLineEndings.value())
        return "\r\n"_ba;
    switch (static_cast<LineEndingChoice>(lineEndings.value())) {
    case LineEndingChoice::Cr:
        return "\r"_ba;
    case LineEndingChoice::Lf:
        return "\n"_ba;
    default:
        return "\r\n"_ba;
    }
}

} // namespace Glyphor
