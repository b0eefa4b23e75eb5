#include "app/log_file.h"

#include <QFileInfo>

namespace Glyphor {

using namespace Qt::StringLiterals;

LogFile::LogFile(const QString& fontPath)
    : File(fontPath.left(fontPath.lastIndexOf(u'.') + 1) + u"log"_s),
      subject_(QFileInfo(fontPath).baseName())
{}

void LogFile::Write(const QStringList& actionLog, const QByteArray& lineEnding)
{
    QByteArray text = "Log file for: " + subject_.toUtf8() + lineEnding + lineEnding;
    for (const QString& line : actionLog)
        text += line.toUtf8() + lineEnding;
    Replace(text);
}

} // namespace Glyphor
