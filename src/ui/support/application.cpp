#include "ui/support/application.h"

#include <QLibraryInfo>

// Outside of the namespace, as the macro needs it.
static void InitTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

Application* runningApplication = nullptr;

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    runningApplication = this;
    setDesktopFileName(u"com.example.morvek.Glyphor"_s);
    if (LoadTexts(QLocale(), texts_, toolkitTexts_)) {
        installTranslator(&toolkitTexts_);
        installTranslator(&texts_);
    }
}

Application::~Application()
{
    runningApplication = nullptr;
}

Application* Application::Instance()
{
    return runningApplication;
}

// The first language that the user wants and that there are texts in, which English always is.
bool LoadTexts(const QLocale& locale, QTranslator& texts, QTranslator& toolkitTexts)
{
    InitTranslations();
    for (const QString& language : locale.uiLanguages()) {
        const QLocale wanted(language);
        if (wanted.language() == QLocale::English || wanted.language() == QLocale::C)
            return false;
        const QString name = QLocale::languageToCode(wanted.language());
        if (!texts.load(u":/i18n/glyphor_%1.qm"_s.arg(name)))
            continue;
        // Without them the buttons of the toolkit's own dialogs stay English.
        (void)toolkitTexts.load(u"qtbase_"_s + name,
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return true;
    }
    return false;
}

} // namespace Glyphor
