#include "texts/text_file.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "texts/text_collector.h"
#include "texts/text_readers.h"
#include "texts/utf8.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace Glyphor {

namespace {

using TextReader = void (*)(QByteArrayView, TextCollector&);

struct TextKind
{
    const char* suffix;
    TextReader read;
};

constexpr std::array TextKinds = {
    TextKind{"po", ReadPoText},       TextKind{"pot", ReadPoText},
    TextKind{"ts", ReadTsText},       TextKind{"xlf", ReadXliffText},
    TextKind{"xliff", ReadXliffText}, TextKind{"json", ReadJsonText},
    TextKind{"csv", ReadCsvText},     TextKind{"c", ReadCText},
    TextKind{"h", ReadCText},         TextKind{"cpp", ReadCText},
    TextKind{"cc", ReadCText},        TextKind{"cxx", ReadCText},
    TextKind{"hpp", ReadCText},       TextKind{"hxx", ReadCText},
    TextKind{"hh", ReadCText},
};

TextReader ReaderFor(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix();
    const auto* const kind = std::ranges::find_if(TextKinds, [&suffix](const TextKind& row) {
        return suffix.compare(QLatin1StringView(row.suffix), Qt::CaseInsensitive) == 0;
    });
    return kind == TextKinds.end() ? ReadPlainText : kind->read;
}

QByteArray ContentsOf(const QString& path)
{
    const auto fail = [&path](const QString& text) {
        throw CriticalException(Engine::tr("Error opening file!"), text, {path, 0, {}});
    };
    const FileKind kind = KindOf(path);
    if (kind == FileKind::Directory)
        fail(Engine::tr("The file %1 is a directory.").arg(Shown(path)));
    if (kind == FileKind::Other)
        fail(Engine::tr("The file %1 is not an ordinary file.").arg(Shown(path)));
    try {
        return File(path).Contents();
    } catch (const CriticalException& failure) {
        throw CriticalException(failure.Title(), failure.Text(), {path, 0, {}});
    }
}

} // namespace

std::vector<TextCharacter> ReadTextFile(const QString& path)
{
    const QByteArray contents = ContentsOf(path);
    TextCollector collector(path);
    const TextReader read = ReaderFor(path);
    if (read == ReadPoText)
        CheckPoCharset(contents, collector);
    const QByteArray text = TextInUtf8(contents, collector);
    read(text, collector);
    return collector.Characters();
}

} // namespace Glyphor
