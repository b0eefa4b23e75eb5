#pragma once

#include <QString>

namespace Glyphor {

// A font of the font directories as the open action takes it.
struct InstalledFont
{
    QString path;
    int faceIndex;
};

// Builds the font database if that was not done yet, and waits for it. Throws a CriticalException
// that hints at similar names where there is no such font.
[[nodiscard]] InstalledFont FindInstalledFont(const QString& family, const QString& style);

// The families and their styles in two columns, a line for each family.
[[nodiscard]] QString InstalledFontTable();

} // namespace Glyphor
