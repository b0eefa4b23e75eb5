#include "app/settings.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/unknown_types.h"

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

// The store decodes everything that it holds when it is first asked for anything, and drops values
// of types that are not known by then.
std::unique_ptr<QSettings> WithRecordTypes(std::unique_ptr<QSettings> store)
{
    qRegisterMetaType<WindowData>("MainWindow::Data");
    qRegisterMetaType<FontDialogData>("FontDialog::DialogData");
    qRegisterMetaType<FontGenerationDialogData>("FontGenerationDialog::DialogData");
    qRegisterMetaType<EnableRangeDialogData>("EnableRangeDialog::DialogData");
    qRegisterMetaType<MergeModeDialogData>("MergeModeDialog::DialogData");
    qRegisterMetaType<PreferencesDialogData>("PreferencesDialog::DialogData");
    qRegisterMetaType<CommandDialogData>("CommandDialog::DialogData");
    KeepUnknownTypes(store->fileName());
    return store;
}

} // namespace

QDataStream& operator<<(QDataStream& out, const CommandDialogData& data)
{
    return out << data.width << data.height;
}

QDataStream& operator>>(QDataStream& in, CommandDialogData& data)
{
    in >> data.width >> data.height;
    if (in.status() != QDataStream::Ok)
        data = {};
    return in;
}

Settings::Settings(std::unique_ptr<QSettings> store)
    : SettingsRegistry(WithRecordTypes(std::move(store))),
      hideLegacy(*this, u"HideLegacy"_s, variables_.hideLegacy, true),
      numeralSystem(*this, u"NumeralSystem"_s, variables_.numeralSystem, 1,
                    [](const int& system) { return system == 0 || system == 1; }),
      logActions(*this, u"LogActions"_s, variables_.logActions, true),
      createLogFile(*this, u"CreateLogFile"_s, variables_.createLogFile, false),
      useSysLineEndings(*this, u"UseSysLineEndings"_s, variables_.useSysLineEndings, true),
      lineEndings(*this, u"LineEndings"_s, variables_.lineEndings, 0,
                  [](const int& choice) { return choice >= 0 && choice <= 2; }),
      additionalFontDirs(*this, u"AdditionalFontDirs"_s, variables_.additionalFontDirs, {}),
      searchDirsRecursively(*this, u"SearchDirsRecursively"_s, variables_.searchDirsRecursively,
                            true),
      useIncludedBitmaps(*this, u"UseIncludedBitmaps"_s, variables_.useIncludedBitmaps, true),
      writePaths(*this, u"WritePaths"_s, variables_.writePaths, true),
      mainWindow(*this, u"MainWindowData"_s),
      fontDialog(*this, u"FontDialogData"_s),
      fontGenerationDialog(*this, u"FontGenerationDialogData"_s),
      enableRangeDialog(*this, u"EnableRangeDialogData"_s),
      mergeModeDialog(*this, u"MergeModeDialogData"_s),
      preferencesDialog(*this, u"PreferencesDialogData"_s),
      commandDialog(*this, u"CommandDialogData"_s)
{}

Settings& Settings::Instance()
{
    static Settings settings(OpenUserStore());
    return settings;
}

std::array<Preference*, 8> Settings::HeededPreferences()
{
    return {&logActions,         &createLogFile,         &useSysLineEndings,  &lineEndings,
            &additionalFontDirs, &searchDirsRecursively, &useIncludedBitmaps, &writePaths};
}

void Settings::UseDefaults()
{
    for (Preference* const preference : HeededPreferences())
        preference->UseDefault();
}

void Settings::Override(const QString& assignment)
{
    const qsizetype sign = assignment.indexOf(u'=');
    const QString key = assignment.left(sign);
    QStringList keys;
    for (Preference* const preference : HeededPreferences()) {
        keys.append(preference->Key());
        if (sign < 0 || key.compare(preference->Key(), Qt::CaseInsensitive) != 0)
            continue;
        const QString text = assignment.mid(sign + 1);
        if (preference->UseText(text))
            return;
        throw CriticalException(Engine::tr("The setting %1 can't be \"%2\": it takes %3.")
                                    .arg(preference->Key(), Shown(text), preference->Values()));
    }
    throw CriticalException(
        sign < 0 ? Engine::tr("%1 sets nothing: write KEY=VALUE.").arg(Shown(assignment))
                 : Engine::tr("There is no setting %1 that a run heeds. Those that there are: %2")
                       .arg(Shown(key), keys.join(u", "_s)));
}

QJsonObject Settings::Heeded()
{
    QJsonObject values;
    for (const Preference* const preference : HeededPreferences())
        values[preference->Key()] = QJsonValue::fromVariant(preference->Current());
    return values;
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
