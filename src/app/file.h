#pragma once

#include <QFile>

namespace Glyphor {

// A file on disk, known by the name that the user gave.
class File : public QFile
{
public:
    using QFile::QFile;

    // Puts the contents in the file's place, as a whole or not at all: on any error the old file
    // stays and a CriticalException names the file and the reason. Follows symbolic links, keeps
    // permissions, and writes to devices and pipes directly.
    void Replace(const QByteArray& contents);

private:
    void WriteToDevice(const QByteArray& contents);
    void WriteToTemporary(const QByteArray& contents);
    [[noreturn]] void Fail(const QString& reason) const;
};

} // namespace Glyphor
