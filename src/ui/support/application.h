#pragma once

#include "ui/support/screen_fit.h"

#include <QApplication>
#include <QTranslator>

namespace Glyphor {

// The application object of a run with windows, in the user's language where there is a
// translation.
class Application final : public QApplication
{
public:
    Application(int& argc, char** argv);
    ~Application() override;

    // Null in a run without windows.
    static Application* Instance();

private:
    ScreenFit screenFit_;
    QTranslator texts_;
    QTranslator toolkitTexts_;
};

// Writes options in upper case that the toolkit would take for its own, which minds the case of
// letters where the options do not. Gives the arguments back.
char** KeepOptions(int argc, char** argv);

// Loads the texts of a language, and those of the toolkit; false where there is no translation.
bool LoadTexts(const QLocale& locale, QTranslator& texts, QTranslator& toolkitTexts);

} // namespace Glyphor
