#include "ui/support/application.h"

#include <QLibraryInfo>

#include <algorithm>
#include <cctype>

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

Application::Application(int& argc, char** argv) : QApplication(argc, KeepOptions(argc, argv))
{
    runningApplication = this;
    installEventFilter(&screenFit_);
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

// On X11 the toolkit reads "-name" as the name that window managers know the program by.
char** KeepOptions(int argc, char** argv)
{
    for (int index = 1; index < argc; ++index) {
        if (QLatin1StringView(argv[index]) == "-name"_L1)
            std::transform(argv[index], argv[index] + qstrlen(argv[index]), argv[index],
                           [](char letter) { return char(std::toupper(uchar(letter))); });
    }
    return argv;
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
