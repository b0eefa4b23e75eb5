#include "app/log_file.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file_system.h"
#include "app/shown_text.h"

#include <QFileInfo>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView Beginning = "Log file for: ";

} // namespace

LogFile::LogFile(const QString& fontPath)
    : File(fontPath.left(fontPath.lastIndexOf(u'.') + 1) + u"log"_s),
      subject_(Shown(QFileInfo(fontPath).baseName()))
{}

// An empty file is nobody's loss.
bool LogFile::MayReplace()
{
    if (KindOf(fileName()) != FileKind::Ordinary || !open(QIODevice::ReadOnly))
        return true;
    const QByteArray start = read(Beginning.size());
    close();
    return start.isEmpty() || start == Beginning;
}

void LogFile::Write(const QStringList& actionLog, const QByteArray& lineEnding)
{
    if (!MayReplace())
        throw CriticalException(
            Engine::tr("Error saving file!"),
            Engine::tr("The file %1 is no log of this program, so no log was written.")
                .arg(Shown(fileName())));
    QByteArray text = Beginning.toByteArray() + subject_.toUtf8() + lineEnding + lineEnding;
    for (const QString& line : actionLog)
        text += line.toUtf8() + lineEnding;
    Replace(text);
}

} // namespace Glyphor
