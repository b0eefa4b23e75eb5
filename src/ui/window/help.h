#pragma once

#include <QUrl>

class QWidget;

namespace Glyphor {

// The manual that came with the program, or the maker's page where there is none.
[[nodiscard]] QUrl ManualUrl();

// What the help menu shows.
void ShowManual();
void ShowAbout(QWidget* parent);
void ShowCommandLineOptions(QWidget* parent);

} // namespace Glyphor
