#include "app/file.h"
#include "app/engine_texts.h"

#include "app/critical_exception.h"

#include <QFileInfo>
#include <QSaveFile>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// The device must be unbuffered: a buffer is written when the file is closed or renamed, where a
// failure would go unnoticed. Writing on after a short count tells the reason for it.
bool WriteWhole(QIODevice& device, QByteArrayView contents)
{
    qsizetype written = 0;
    while (written < contents.size()) {
        const qint64 count = device.write(contents.data() + written, contents.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

QByteArray File::Contents()
{
    constexpr qint64 limit = 0x7FFFFFFF;
    const auto fail = [this](const QString& reason) {
        throw CriticalException(
            Engine::tr("Error opening file!"),
            Engine::tr("The file %1 could not be read: %2").arg(fileName(), reason));
    };
    if (!open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        fail(errorString());
    if (size() > limit)
        fail(Engine::tr("It is too large."));
    QByteArray contents(size(), Qt::Uninitialized);
    qint64 count = 0;
    for (qint64 part = 1; part > 0 && count < contents.size(); count += part)
        part = read(contents.data() + count, contents.size() - count);
    if (error() != QFileDevice::NoError)
        fail(errorString());
    close();
    contents.truncate(count);
    return contents;
}

File::Sink File::SinkInto(QIODevice& device) const
{
    return [this, &device](QByteArrayView bytes) {
        if (!WriteWhole(device, bytes))
            Fail(device.errorString());
    };
}

void File::Replace(const std::function<void(const Sink&)>& compose)
{
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    const QFileInfo target(fileName());
    if (target.isDir())
        Fail(Engine::tr("It is a directory."));
    if (target.exists() && !target.isFile()) {
        if (!open(mode))
            Fail(errorString());
        compose(SinkInto(*this));
        close();
        return;
    }
    QSaveFile file(fileName());
    if (!file.open(mode))
        Fail(file.errorString());
    compose(SinkInto(file));
    if (!file.commit())
        Fail(file.errorString());
}

void File::Replace(const QByteArray& contents)
{
    Replace([&contents](const Sink& sink) { sink(contents); });
}

void File::Fail(const QString& reason) const
{
    throw CriticalException(
        Engine::tr("Error saving file!"),
        Engine::tr("The file %1 could not be written: %2").arg(fileName(), reason));
}

} // namespace Glyphor
