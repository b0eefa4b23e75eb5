#include "files/font_file_sif.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/shown_text.h"

namespace Glyphor {

namespace {

constexpr QByteArrayView SifMagic = "GUIP";
constexpr QByteArrayView SifTrailerName = "SIF";

constexpr qint64 RunCountOffset = 14;
constexpr qint64 SifHeaderSize = 16;
constexpr qint64 RunSize = 4;

constexpr int SifRecordSize(FontFormat format)
{
    return IsLegacyFormat(format) ? 12 : 16;
}

} // namespace

QString FontFileSIF::FailureTitle() const
{
    return Engine::tr("Reading of SIF file failed!");
}

std::vector<CodeRange> FontFileSIF::ReadRuns(const LittleEndianBytes& bytes) const
{
    const int count = bytes.U16(RunCountOffset);
    if (!bytes.Holds(SifHeaderSize, RunSize * count))
        Fail(Engine::tr("It is too short for its %1 ranges of characters.").arg(count));
    std::vector<CodeRange> runs;
    int next = 0;
    for (int index = 0; index < count; ++index) {
        const qint64 at = SifHeaderSize + RunSize * index;
        const CodeRange run = {bytes.U16(at), bytes.U16(at + 2)};
        if (run.first < next || run.last < run.first)
            Fail(Engine::tr("Its ranges of characters are not in ascending order."));
        next = run.last + 1;
        runs.push_back(run);
    }
    return runs;
}

FontFileSIF::CharRecord FontFileSIF::ReadRecord(const LittleEndianBytes& bytes, qint64 at,
                                                quint16 code, const FontMetrics& font)
{
    const auto field = [&](int index) { return bytes.U16(at + 2 * index); };
    const auto offset = [&](int index) { return bytes.I16(at + 2 * index); };
    CharRecord record = {code, {}, 0, 0};
    record.metrics.width = field(0);
    if (IsLegacyFormat(font.format)) {
        record.metrics.height = font.height;
        record.metrics.cursorDistance = field(1);
        record.bytesPerLine = field(2);
        record.offset = bytes.U32(at + 8);
    } else {
        record.metrics.height = field(1);
        record.metrics.xPos = offset(2);
        record.metrics.yPos = offset(3);
        record.metrics.cursorDistance = field(4);
        record.offset = bytes.U32(at + 12);
    }
    return record;
}

std::vector<FontFileSIF::CharRecord> FontFileSIF::ReadRecords(const LittleEndianBytes& bytes,
                                                              const std::vector<CodeRange>& runs,
                                                              const FontMetrics& font)
{
    std::vector<CharRecord> records;
    qint64 at = SifHeaderSize + RunSize * qint64(runs.size());
    for (const CodeRange& run : runs) {
        for (int code = run.first; code <= run.last; ++code) {
            records.push_back(ReadRecord(bytes, at, static_cast<quint16>(code), font));
            at += SifRecordSize(font.format);
        }
    }
    return records;
}

// A format that was told wrongly shows here: its records have another size.
void FontFileSIF::CheckSize(const LittleEndianBytes& bytes, qint64 expected, bool isAnswered) const
{
    if (bytes.Size() == expected)
        return;
    const QString size = QString::number(bytes.Size());
    const QString expectedSize = QString::number(expected);
    if (isAnswered)
        throw CriticalException(
            FailureTitle(),
            Engine::tr("File size of input file: %1 bytes.\r\nFile size that was expected: %2 "
                       "bytes.\r\n\r\nThe previously entered font format may not be correct or "
                       "the file may be corrupted.")
                .arg(size, expectedSize));
    Fail(Engine::tr("It may be corrupted.\r\nFile size of input file: %1 bytes.\r\nFile size that "
                    "was expected: %2 bytes.")
             .arg(size, expectedSize));
}

void FontFileSIF::AddChars(const LittleEndianBytes& bytes, const std::vector<CharRecord>& records,
                           qint64 bitmapOffset, Font& font) const
{
    Progress progress(Engine::tr("Reading characters..."), static_cast<int>(records.size()));
    for (const CharRecord& record : records) {
        if (IsLegacyFormat(font.Metrics().format))
            CheckBytesPerLine(record.code, record.bytesPerLine, record.metrics.width, font);
        if (record.offset != bitmapOffset)
            FailAtChar(record.code,
                       Engine::tr("The character 0x%1 points to other pixels than its own."));
        AddChar(font, record.code, record.metrics, bytes, bitmapOffset);
        bitmapOffset += BitmapSize(record.metrics, font.Metrics());
        progress.Advance();
    }
}

bool FontFileSIF::TellsFormat()
{
    if (!open(QIODevice::ReadOnly))
        return true;
    const bool isSif = read(MagicSize) == SifMagic && size() >= SifHeaderSize;
    const bool hasTrailer =
        seek(size() - TrailerSize) && read(TrailerSize).startsWith(SifTrailerName);
    close();
    return !isSif || hasTrailer;
}

std::unique_ptr<Font> FontFileSIF::Read()
{
    const QByteArray contents = Contents();
    const LittleEndianBytes bytes(contents);
    if (!contents.startsWith(SifMagic) || bytes.Size() < SifHeaderSize)
        Fail(Engine::tr("It does not begin with \"GUIP\" and a header."));
    const std::optional<FontFormat> ownFormat = TrailerFormat(bytes, SifTrailerName);
    const bool isAnswered = !ownFormat;
    const std::optional<FontFormat> format = isAnswered ? Answer().format : ownFormat;
    if (!format)
        throw CriticalException(
            Engine::tr("Error opening file!"),
            Engine::tr("The format of the font in %1 was not told, so it was not opened.")
                .arg(Shown(fileName())));
    auto font = MakeFont(bytes, *format, Answer().encoding.value_or(EncodingType::Unicode));
    const std::vector<CodeRange> runs = ReadRuns(bytes);
    const std::vector<CharRecord> records = ReadRecords(bytes, runs, font->Metrics());
    const qint64 bitmapOffset = SifHeaderSize + RunSize * qint64(runs.size()) +
                                SifRecordSize(*format) * qint64(records.size());
    qint64 expected = bitmapOffset + (isAnswered ? 0 : TrailerSize);
    for (const CharRecord& record : records)
        expected += BitmapSize(record.metrics, font->Metrics());
    CheckSize(bytes, expected, isAnswered);
    AddChars(bytes, records, bitmapOffset, *font);
    return font;
}

void FontFileSIF::AppendRecords(const Font& font, quint32 bitmapOffset, QByteArray& bytes,
                                const Sink& sink)
{
    const bool isLegacy = IsLegacyFormat(font.Metrics().format);
    font.ForEachEnabled([&](quint16, const Character& character) {
        const CharInfo& info = character.info;
        if (isLegacy)
            Append16(bytes, {info.width, info.cursorDistance, info.bytesPerLine, 0});
        else
            Append16(bytes,
                     {info.width, info.height, info.xPos, info.yPos, info.cursorDistance, 0});
        Append32(bytes, bitmapOffset);
        bitmapOffset += static_cast<quint32>(font.CharDataWidth(character) * info.Rows());
        PassOn(bytes, sink);
    });
}

void FontFileSIF::Compose(const Font& font, const Sink& sink)
{
    const FontFormat format = font.Metrics().format;
    QByteArray bytes;
    AppendHeader(bytes, SifMagic, font.Metrics());
    const std::vector<CodeRange> runs = font.EnabledRuns();
    Append16(bytes, {static_cast<int>(runs.size())});
    qint64 count = 0;
    for (const CodeRange& run : runs) {
        Append16(bytes, {run.first, run.last});
        count += run.Size();
    }
    const qint64 bitmapOffset = bytes.size() + SifRecordSize(format) * count;
    AppendRecords(font, static_cast<quint32>(bitmapOffset), bytes, sink);
    font.ForEachEnabled([&](quint16, const Character& character) {
        character.bitmap->Write(bytes);
        PassOn(bytes, sink);
    });
    AppendTrailer(bytes, SifTrailerName, format);
    PassOn(bytes, sink, 0);
}

void FontFileSIF::Write(const Font& font)
{
    Replace([&](const Sink& sink) { Compose(font, sink); });
}

} // namespace Glyphor
