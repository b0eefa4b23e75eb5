#include "ui/document/font_copy.h"

#include "model/char_bitmap_framed.h"

#include <QDataStream>

namespace Glyphor {

namespace {

void WriteCodes(QDataStream& out, const CodeSet& codes)
{
    const std::vector<CodeRange> runs = RunsOf(codes);
    out << quint32(runs.size());
    for (const CodeRange& run : runs)
        out << run.first << run.last;
}

CodeSet ReadCodes(QDataStream& in)
{
    CodeSet codes;
    quint32 count = 0;
    in >> count;
    for (quint32 index = 0; index < count && in.status() == QDataStream::Ok; ++index) {
        quint16 first = 0;
        quint16 last = 0;
        in >> first >> last;
        codes.SetRange(first, last, true);
    }
    return codes;
}

// Legacy formats have neither offsets nor heights of characters, which are there all the same.
bool HasHiddenMetrics(const FontMetrics& font, const CharMetrics& metrics)
{
    return IsLegacyFormat(font.format) &&
           (metrics.xPos != 0 || metrics.yPos != 0 || metrics.height != font.height);
}

// Calls read(character) for as many records as the stream has, each with the code of its character.
template <typename Read>
void ForEachRecord(QDataStream& in, Font& font, Read read)
{
    quint32 count = 0;
    in >> count;
    for (quint32 index = 0; index < count && in.status() == QDataStream::Ok; ++index) {
        quint16 code = 0;
        in >> code;
        Character* const character = font.FindChar(code);
        if (character == nullptr)
            in.setStatus(QDataStream::ReadCorruptData);
        else
            read(*character);
    }
}

} // namespace

FontCopy::FontCopy(const Font& font)
    : metrics_(font.Metrics()),
      name_(font.Name()),
      toolText_(font.ToolText()),
      hasKerning_(font.HasKerning()),
      enabled_(font.EnabledCodes()),
      leftOut_(font.LeftOutCodes())
{
    const CodeSet& codes = font.ExistingCodes();
    const bool isFramed = metrics_.format == FontFormat::Framed;
    characters_.reserve(static_cast<std::size_t>(codes.Count()));
    for (const quint16 code : codes) {
        const Character& character = *font.FindChar(code);
        const CharBitmap& bitmap = *character.bitmap;
        characters_.push_back(
            {code, character.info.Metrics(), bitmap.Data(),
             isFramed ? static_cast<const CharBitmapFramed&>(bitmap).Frame() : QByteArray()});
        for (const KerningPair& pair : character.kerning)
            kerning_.push_back({code, pair});
        if (character.label != nullptr)
            labels_.emplace_back(code, character.label);
    }
}

std::unique_ptr<Font> FontCopy::WithAllCharacters() const
{
    auto font = std::make_unique<Font>(metrics_.format, metrics_.encoding);
    font->SetHeight(metrics_.height);
    font->SetBaseline(metrics_.baseline);
    font->SetReferenceHeights(metrics_.lowercaseHeight, metrics_.capitalHeight);
    for (const CopiedCharacter& character : characters_) {
        const QByteArray bytes = character.pixels + character.frame;
        font->PutChar(
            character.code, character.metrics,
            {reinterpret_cast<const uchar*>(bytes.constData()), std::size_t(bytes.size())});
    }
    return font;
}

void FontCopy::WriteRest(QDataStream& out) const
{
    out << name_ << toolText_ << metrics_.maxWidth << hasKerning_;
    WriteCodes(out, enabled_);
    WriteCodes(out, leftOut_);
    quint32 hidden = 0;
    for (const CopiedCharacter& character : characters_)
        hidden += HasHiddenMetrics(metrics_, character.metrics) ? 1 : 0;
    out << hidden;
    for (const auto& [code, metrics, pixels, frame] : characters_) {
        if (HasHiddenMetrics(metrics_, metrics))
            out << code << qint8(metrics.xPos) << qint8(metrics.yPos) << quint8(metrics.height);
    }
    out << quint32(kerning_.size());
    for (const auto& [left, pair] : kerning_)
        out << left << pair.right << pair.distance;
    out << quint32(labels_.size());
    for (const auto& [code, label] : labels_)
        out << code << label->name << label->origin;
}

bool ReadRest(QDataStream& in, Font& font)
{
    QString name;
    QString toolText;
    quint8 maxWidth = 0;
    bool hasKerning = false;
    in >> name >> toolText >> maxWidth >> hasKerning;
    font.SetName(name);
    font.SetToolText(toolText);
    font.SetMaxWidth(maxWidth);
    font.SetHasKerning(hasKerning);
    font.SetEnabledCodes(ReadCodes(in));
    for (const quint16 code : ReadCodes(in))
        font.LeaveOut(code);
    ForEachRecord(in, font, [&](Character& character) {
        in >> character.info.xPos >> character.info.yPos >> character.info.height;
    });
    ForEachRecord(in, font, [&](Character& character) {
        KerningPair pair = {0, 0};
        in >> pair.right >> pair.distance;
        character.kerning.push_back(pair);
    });
    ForEachRecord(in, font, [&](Character& character) {
        CharacterLabel label;
        in >> label.name >> label.origin;
        character.label = std::make_shared<const CharacterLabel>(label);
    });
    return in.status() == QDataStream::Ok;
}

} // namespace Glyphor
