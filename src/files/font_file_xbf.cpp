#include "files/font_file_xbf.h"

#include "app/engine_texts.h"
#include "app/progress.h"
#include "model/code_text.h"

namespace Glyphor {

namespace {

constexpr QByteArrayView XbfMagic = "GUIX";
constexpr QByteArrayView XbfTrailerName = "XBF";
constexpr QByteArrayView ToolTag = "KSTX";

constexpr qint64 FirstCodeOffset = 14;
constexpr qint64 LastCodeOffset = 16;
constexpr qint64 XbfHeaderSize = 18;
constexpr qint64 EntrySize = 6;

// Longer tool texts are not looked for.
constexpr int ToolTextLimit = 512;

constexpr int XbfRecordSize(FontFormat format)
{
    return IsLegacyFormat(format) ? 4 : 12;
}

// In front of the trailer there may be a text, a tag and the length of the text. The tag is not
// compared: firmware tools do not do so either.
QString ReadToolText(const LittleEndianBytes& bytes)
{
    const int length = bytes.U16(bytes.Size() - 6);
    const qint64 offset = bytes.Size() - 10 - length;
    if (length >= ToolTextLimit || !bytes.Holds(offset, length))
        return {};
    return QString::fromLatin1(bytes.Part(offset, length));
}

} // namespace

QString FontFileXBF::FailureTitle() const
{
    return Engine::tr("Error reading XBF file!");
}

std::vector<FontFileXBF::TableEntry> FontFileXBF::ReadTable(const LittleEndianBytes& bytes) const
{
    const int first = bytes.U16(FirstCodeOffset);
    const int last = bytes.U16(LastCodeOffset);
    const qint64 dataOffset = XbfHeaderSize + EntrySize * (last - first + 1);
    const qint64 dataEnd = bytes.Size() - TrailerSize;
    if (last < first || dataOffset > dataEnd)
        Fail(Engine::tr("It is too short for its table of the codes 0x%1 to 0x%2.")
                 .arg(Hex4Text(static_cast<quint16>(first)), Hex4Text(static_cast<quint16>(last))));
    std::vector<TableEntry> entries;
    qint64 total = 0;
    for (int code = first; code <= last; ++code) {
        const qint64 at = XbfHeaderSize + EntrySize * (code - first);
        const TableEntry entry = {static_cast<quint16>(code), bytes.U32(at), bytes.U16(at + 4)};
        if (entry.offset == 0 && entry.size == 0)
            continue;
        if (entry.offset < dataOffset || entry.offset + entry.size > dataEnd)
            FailAtChar(entry.code, Engine::tr("The character 0x%1 lies outside the file."));
        total += entry.size;
        entries.push_back(entry);
    }
    // Also keeps a small file from becoming a huge font.
    if (total > dataEnd - dataOffset)
        Fail(Engine::tr("Its characters overlap."));
    return entries;
}

void FontFileXBF::ReadChar(const LittleEndianBytes& bytes, const TableEntry& entry,
                           Font& font) const
{
    const FontFormat format = font.Metrics().format;
    if (entry.size < XbfRecordSize(format))
        FailAtChar(entry.code, Engine::tr("The character 0x%1 is too small."));
    const auto field = [&](int index) { return bytes.U16(entry.offset + 2 * index); };
    const auto offset = [&](int index) { return bytes.I16(entry.offset + 2 * index); };
    CharMetrics metrics;
    int bytesPerLine = 0;
    if (IsLegacyFormat(format)) {
        metrics.width = field(0);
        metrics.height = font.Metrics().height;
        metrics.cursorDistance = metrics.width;
        bytesPerLine = field(1);
    } else {
        metrics.cursorDistance = field(0);
        metrics.width = field(1);
        metrics.height = field(2);
        metrics.xPos = offset(3);
        metrics.yPos = offset(4);
        bytesPerLine = field(5);
    }
    CheckBytesPerLine(entry.code, bytesPerLine, metrics.width, font);
    if (XbfRecordSize(format) + BitmapSize(metrics, font.Metrics()) != entry.size)
        FailAtChar(
            entry.code,
            Engine::tr(
                "The character 0x%1 has a size in the table that is not the size of its pixels."));
    AddChar(font, entry.code, metrics, bytes, entry.offset + XbfRecordSize(format));
}

std::unique_ptr<Font> FontFileXBF::Read()
{
    const QByteArray contents = Contents();
    const LittleEndianBytes bytes(contents);
    if (!contents.startsWith(XbfMagic))
        Fail(Engine::tr("It does not begin with \"GUIX\"."));
    const std::optional<FontFormat> format = TrailerFormat(bytes, XbfTrailerName);
    if (!format || bytes.Size() < XbfHeaderSize + TrailerSize)
        Fail(Engine::tr(
            "It does not end with \"XBF\" and the font's format, so some of it may be missing."));
    auto font = MakeFont(bytes, *format, Answer().encoding.value_or(EncodingType::Unicode));
    font->SetToolText(ReadToolText(bytes));
    const std::vector<TableEntry> entries = ReadTable(bytes);
    Progress progress(Engine::tr("Reading characters..."), static_cast<int>(entries.size()));
    for (const TableEntry& entry : entries) {
        ReadChar(bytes, entry, *font);
        progress.Advance();
    }
    return font;
}

void FontFileXBF::AppendTable(const Font& font, QByteArray& bytes, const Sink& sink)
{
    const std::vector<CodeRange> runs = font.EnabledRuns();
    const int first = runs.front().first;
    const int last = runs.back().last;
    Append16(bytes, {first, last});
    const int recordSize = XbfRecordSize(font.Metrics().format);
    auto offset = static_cast<quint32>(XbfHeaderSize + EntrySize * (last - first + 1));
    int next = first;
    font.ForEachEnabled([&](quint16 code, const Character& character) {
        bytes.append(EntrySize * (code - next), '\0');
        next = code + 1;
        const int size = recordSize + font.CharDataWidth(character) * character.info.Rows();
        Append16(bytes, {int(offset & 0xFFFF), int(offset >> 16), size});
        offset += static_cast<quint16>(size);
        PassOn(bytes, sink);
    });
}

void FontFileXBF::AppendChar(const Character& character, QByteArray& bytes)
{
    const CharInfo& info = character.info;
    if (IsLegacyFormat(info.font.format))
        Append16(bytes, {info.width, info.bytesPerLine});
    else
        Append16(bytes, {info.cursorDistance, info.width, info.height, info.xPos, info.yPos,
                         info.bytesPerLine});
    character.bitmap->Write(bytes);
}

void FontFileXBF::Write(const Font& font)
{
    const FontFormat format = font.Metrics().format;
    Replace([&](const Sink& sink) {
        QByteArray bytes;
        AppendHeader(bytes, XbfMagic, font.Metrics());
        AppendTable(font, bytes, sink);
        font.ForEachEnabled([&](quint16, const Character& character) {
            AppendChar(character, bytes);
            PassOn(bytes, sink);
        });
        AppendTrailer(bytes, XbfTrailerName, format);
        if (const QByteArray text = font.ToolText().toLatin1(); !text.isEmpty()) {
            bytes.append(text);
            bytes.append(ToolTag);
            Append16(bytes, {static_cast<int>(text.size())});
            AppendTrailer(bytes, XbfTrailerName, format);
        }
        PassOn(bytes, sink, 0);
    });
}

} // namespace Glyphor
