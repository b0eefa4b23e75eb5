#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QString>

namespace Glyphor {

// Has values whose types this release does not know survive the rewriting of a settings file. The
// toolkit drops such values, so a type that carries their bytes unread is registered under each of
// their names. To be called before the store is first asked for anything.
void KeepUnknownTypes(const QString& settingsFile);

// What is left of a value that is being read from the settings.
[[nodiscard]] QByteArray RestOfValue(QDataStream& in);

} // namespace Glyphor
