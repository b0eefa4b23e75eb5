#include "app/file.h"

#include "app/critical_exception.h"

#include <QFileInfo>
#include <QSaveFile>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// The device must be unbuffered: a buffer is written when the file is closed or renamed, where a
// failure would go unnoticed. Writing on after a short count tells the reason for it.
bool WriteWhole(QIODevice& device, const QByteArray& contents)
{
    qsizetype written = 0;
    while (written < contents.size()) {
        const qint64 count =
            device.write(contents.constData() + written, contents.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

void File::Replace(const QByteArray& contents)
{
    const QFileInfo target(fileName());
    if (target.isDir())
        Fail(u"It is a directory."_s);
    if (target.exists() && !target.isFile())
        WriteToDevice(contents);
    else
        WriteToTemporary(contents);
}

void File::WriteToDevice(const QByteArray& contents)
{
    if (!open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !WriteWhole(*this, contents))
        Fail(errorString());
    close();
}

void File::WriteToTemporary(const QByteArray& contents)
{
    QSaveFile file(fileName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !WriteWhole(file, contents) ||
        !file.commit())
        Fail(file.errorString());
}

void File::Fail(const QString& reason) const
{
    throw CriticalException(u"Error saving file!"_s,
                            u"The file %1 could not be written: %2"_s.arg(fileName(), reason));
}

} // namespace Glyphor
