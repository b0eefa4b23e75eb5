#pragma once

#include <QByteArray>
#include <QString>

class QUrl;

namespace Glyphor {

// Names of files as texts. The system's names are bytes, which need not be UTF-8: each byte that is
// not part of a character stands in the text as a lone low surrogate, U+DC80 to U+DCFF, and turns
// into that byte again. So every name survives. The toolkit's own files and directories do not know
// such names: see File and file_system.h.

[[nodiscard]] QString FileNameOf(QByteArrayView bytes);

// Of a URL for a local file; empty for any other.
[[nodiscard]] QString FileNameOf(const QUrl& url);

// The name as the system has it.
[[nodiscard]] QByteArray BytesOf(const QString& name);

// True where the name has bytes that are no characters.
[[nodiscard]] bool HasRawBytes(QStringView name);

// For texts that are no file names: each such byte is replaced.
[[nodiscard]] QString WithoutRawBytes(QString name, QChar substitute);

} // namespace Glyphor
