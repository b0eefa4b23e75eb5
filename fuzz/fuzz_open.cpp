// Opens any bytes as a file of one kind, the way the program does, and writes what was read.

#include "actions/action_open_font.h"
#include "actions/pattern_file.h"
#include "app/critical_exception.h"
#include "app/user_interface.h"
#include "files/font_file_c.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

using namespace Glyphor;

// Answers the question about the format by the length of the input.
class FuzzInterface final : public UserInterface
{
public:
    FuzzInterface() { SetCurrentInterface(this); }

    std::optional<FormatChoice> askFontFormat(EncodingType assumed) override
    {
        return FormatChoice{answer_, assumed};
    }
    void SetAnswer(std::size_t size) { answer_ = static_cast<FontFormat>(size % FormatCount); }

private:
    FontFormat answer_ = FontFormat::Legacy;
};

// Files are named by their suffix; this folder is in memory.
const QString& InputPath()
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/glyphor-fuzz-XXXXXX"));
    static const QString path = folder.filePath(QStringLiteral("input." FUZZ_SUFFIX));
    return path;
}

void Open(const QString& path, std::size_t size)
{
    if (path.endsWith(QStringLiteral(".txt"))) {
        (void)PatternFile(path).Read();
        return;
    }
    // A charmap may name a glyph for every code: a part of them shows as much, in less time.
    ActionOpenFontArgs args;
    args.path = path;
    args.render.height = 16;
    args.selection.emplace().SetRange(0, 0x2FF, true);
    if (size % 4 == 0)
        args.render.features = {{QStringLiteral("zero")}, {QStringLiteral("salt"), 2}};
    const auto font = ReadFont(args);
    qsizetype written = 0;
    const CFileOptions options;
    FontFileC(QStringLiteral("font.c"), options).Compose(*font, [&written](QByteArrayView piece) {
        written += piece.size();
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static FuzzInterface interface;
    interface.SetAnswer(size);
    QFile file(InputPath());
    if (!file.open(QIODevice::WriteOnly))
        return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    try {
        Open(InputPath(), size);
    } catch (const CriticalException&) { // refused, as it should be
    }
    return 0;
}
