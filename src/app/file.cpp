#include "app/file.h"

#include "app/critical_exception.h"

#include <QFileInfo>
#include <QSaveFile>

namespace Glyphor {

using namespace Qt::StringLiterals;

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
    if (!open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        Fail(errorString());
    const bool isWritten = write(contents) == contents.size();
    const QString reason = errorString();
    close();
    if (!isWritten)
        Fail(reason);
}

void File::WriteToTemporary(const QByteArray& contents)
{
    QSaveFile file(fileName());
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() ||
        !file.commit())
        Fail(file.errorString());
}

void File::Fail(const QString& reason) const
{
    throw CriticalException(u"Error saving file!"_s,
                            u"The file %1 could not be written: %2"_s.arg(fileName(), reason));
}

} // namespace Glyphor
