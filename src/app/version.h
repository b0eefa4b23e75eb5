#pragma once

#include <QLatin1StringView>

// What the program calls itself in generated files.
namespace Glyphor::Program {

extern const QLatin1StringView Name;
extern const QLatin1StringView Version;

// The time that the build was given, or else the release's date, in the form "Jul 30 2024" and
// "14:38:18".
extern const QLatin1StringView BuildDate;
extern const QLatin1StringView BuildTime;

} // namespace Glyphor::Program
