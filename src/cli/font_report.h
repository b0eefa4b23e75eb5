#pragma once

#include <QJsonObject>

namespace Glyphor {

class Font;

// What a report tells of a font: names, format, metrics and characters.
[[nodiscard]] QJsonObject FontReport(const Font& font);

// The bytes that its C file takes of a target with 32-bit addresses, by part.
[[nodiscard]] QJsonObject FlashReport(const Font& font);

// The name, kind, size and SHA-256 of a file; the name and kind alone where it is none any more, or
// a device.
[[nodiscard]] QJsonObject FileReport(const QString& path, const char* kind);

} // namespace Glyphor
