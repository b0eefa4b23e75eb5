#include "ui/application.h"

#include <QLibraryInfo>

// Outside of the namespace, as the macro needs it.
static void InitTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

Application* current = nullptr;

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    current = this;
    if (LoadTexts(QLocale(), texts_, toolkitTexts_)) {
        installTranslator(&toolkitTexts_);
        installTranslator(&texts_);
    }
}

Application::~Application()
{
    current = nullptr;
}

Application* Application::Instance()
{
    return current;
}

bool LoadTexts(const QLocale& locale, QTranslator& texts, QTranslator& toolkitTexts)
{
    InitTranslations();
    if (!texts.load(locale, u"glyphor"_s, u"_"_s, u":/i18n"_s))
        return false;
    // Without them the buttons of the toolkit's own dialogs stay English.
    (void)toolkitTexts.load(locale, u"qtbase"_s, u"_"_s,
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return true;
}

} // namespace Glyphor
