// Reads any bytes as a text of each kind in turn, the kind told by their number.

#include "app/critical_exception.h"
#include "texts/text_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/glyphor-fuzz-XXXXXX"));
    static const std::array suffixes = {
        QStringLiteral("po"),  QStringLiteral("ts"), QStringLiteral("xlf"), QStringLiteral("json"),
        QStringLiteral("csv"), QStringLiteral("c"),  QStringLiteral("txt"),
    };
    const QString path =
        folder.filePath(QStringLiteral("input.") + suffixes[size % suffixes.size()]);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    try {
        (void)Glyphor::ReadTextFile(path);
    } catch (const Glyphor::CriticalException&) { // refused, as it should be
    }
    return 0;
}
