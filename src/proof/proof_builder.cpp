#include "proof/proof_builder.h"

#include "app/shown_text.h"
#include "files/c_file_text.h"
#include "files/font_file_c.h"
#include "files/kerning_file.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "proof/label_font.h"
#include "proof/placed_pixels.h"

#include <algorithm>
#include <array>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageMargin = 16;
constexpr int CellMargin = 4;
constexpr int LeastWidth = 600;
constexpr int MostWidth = 1700; // unless four columns take more

// Small fonts are enlarged until their pixels can be told apart; where there are very many
// characters, less.
int ZoomFor(int height, int characters)
{
    constexpr int readableHeight = 48;
    constexpr int veryMany = 16'384;
    const int largest = characters > veryMany ? 2 : 6;
    return std::clamp((readableHeight + height / 2) / std::max(height, 1), 1, largest);
}

QString Enlarged(int zoom)
{
    return zoom == 1 ? QString() : u", enlarged %1 times"_s.arg(zoom);
}

// The same for all fonts of a height, so that a character that changes moves no other one.
int CellWidthFor(int height, int zoom, bool isUnicode)
{
    constexpr std::size_t codeLength = 4;
    constexpr std::size_t unicodeLength = 6;
    const int label = LabelWidth(isUnicode ? codeLength : unicodeLength);
    return std::max(label, (height + height / 8) * zoom) + 2 * CellMargin;
}

ProofMark Fill(const Area& area, quint8 colour)
{
    return {.kind = ProofMark::Kind::Fill, .area = area, .colour = colour};
}

ProofMark Outline(const Area& area, quint8 colour)
{
    return {.kind = ProofMark::Kind::Outline, .area = area, .colour = colour};
}

ProofMark Text(int x, int y, QStringView text, quint8 colour, int zoom = 1)
{
    return {.kind = ProofMark::Kind::Text,
            .area = {x, y, 0, 0},
            .colour = colour,
            .zoom = zoom,
            .text = LabelText(text)};
}

ProofMark Glyph(int x, int y, const Character& glyph, int zoom)
{
    return {.kind = ProofMark::Kind::Glyph, .area = {x, y, 0, 0}, .zoom = zoom, .glyph = &glyph};
}

ProofMark Centred(int centre, int y, const QString& text, quint8 colour)
{
    return Text(centre - LabelWidth(std::size_t(text.size())) / 2, y, text, colour);
}

// Advance, box and baseline below the pixels.
void MarkGuides(std::vector<ProofMark>& marks, int x, int y, const Character& glyph, int zoom)
{
    const PlacedPixels pixels(glyph);
    const FontMetrics& font = glyph.info.font;
    const int advance = glyph.info.cursorDistance * zoom;
    marks.push_back(Fill({x, y, advance, font.height * zoom}, ProofColour::Advance));
    marks.push_back(
        Fill({x + pixels.Left() * zoom, y + pixels.Top() * zoom,
              (pixels.Right() - pixels.Left()) * zoom, (pixels.Bottom() - pixels.Top()) * zoom},
             ProofColour::Bitmap));
    marks.push_back(Fill({x - 2, y + font.baseline * zoom, advance + 4, 1}, ProofColour::Baseline));
}

Area MissingBox(int x, int y, const FontMetrics& font, int zoom)
{
    return {x, y, std::max(font.height / 2, 2) * zoom, font.height * zoom};
}

} // namespace

void Reach::Include(const Reach& other)
{
    left = std::max(left, other.left);
    top = std::max(top, other.top);
    right = std::max(right, other.right);
    bottom = std::max(bottom, other.bottom);
}

Reach ReachOf(const Character& character)
{
    const PlacedPixels pixels(character);
    return {std::max(-pixels.Left(), 0), std::max(-pixels.Top(), 0),
            std::max<int>(character.info.cursorDistance, pixels.Right()),
            std::max<int>(character.info.font.height, pixels.Bottom())};
}

ProofBuilder::ProofBuilder(const ProofContents& contents)
    : contents_(contents), font_(contents.font)
{
    const int height = font_.Metrics().height;
    layout_.zoom = ZoomFor(height, font_.SavedCodes().Count());
    sampleZoom_ = std::max(layout_.zoom / 2, 1);
    const bool isUnicode = font_.Metrics().encoding == EncodingType::Unicode;
    cellWidth_ = CellWidthFor(height, layout_.zoom, isUnicode);
    while (columns_ > 4 && columns_ * cellWidth_ > MostWidth)
        columns_ /= 2;
    contentWidth_ = std::max(columns_ * cellWidth_, LeastWidth);
    layout_.width = contentWidth_ + 2 * PageMargin;
}

ProofLayout ProofBuilder::Build()
{
    missing_ = contents_.missing;
    for (const SampleText& text : contents_.texts)
        TakeMissing(text);
    AddGap(PageMargin);
    AddHead();
    AddLegend();
    if (contents_.comparison != nullptr)
        AddDifferences();
    AddSamples();
    AddMissing();
    AddCharacters();
    AddGap(PageMargin);
    return std::move(layout_);
}

void ProofBuilder::AddGap(int height)
{
    layout_.bands.push_back({height});
}

void ProofBuilder::AddHeading(const QString& text, int zoom)
{
    AddGap(PageMargin);
    ProofBand band{(LabelFont::Height + 5) * zoom};
    band.marks.push_back(Fill({PageMargin, 0, contentWidth_, 1}, ProofColour::Rule));
    band.marks.push_back(Text(PageMargin, 2 * zoom, text, ProofColour::Label, zoom));
    band.staysWithNext = true;
    layout_.bands.push_back(std::move(band));
}

// In as many lines as it takes.
void ProofBuilder::AddText(const QString& text, quint8 colour, int zoom)
{
    const qsizetype fitting = contentWidth_ / (LabelFont::Advance * zoom);
    for (qsizetype begin = 0; begin == 0 || begin < text.size(); begin += fitting) {
        ProofBand band{LabelFont::LineHeight * zoom};
        band.marks.push_back(
            Text(PageMargin, 0, QStringView(text).mid(begin, fitting), colour, zoom));
        layout_.bands.push_back(std::move(band));
    }
}

void ProofBuilder::AddHead()
{
    const FontMetrics& metrics = font_.Metrics();
    const FlashParts flash = FlashPartsOf(font_);
    AddText(QString::fromLatin1("GUI_Font" + CName(font_.Name())), ProofColour::Ink, 2);
    AddGap(4);
    const bool isUnicode = metrics.encoding == EncodingType::Unicode;
    const std::array<std::pair<QString, QString>, 9> figures = {{
        {u"File"_s, Shown(contents_.fileName)},
        {u"Format"_s, FormatDisplayName(metrics.format)},
        {u"Encoding"_s, isUnicode ? u"Unicode"_s : u"Shift JIS"_s},
        {u"Height"_s, u"%1, lines %2 apart"_s.arg(metrics.height).arg(metrics.verticalSpace)},
        {u"Baseline"_s, QString::number(metrics.baseline)},
        {u"Letters"_s,
         u"%1 lowercase, %2 capital"_s.arg(metrics.lowercaseHeight).arg(metrics.capitalHeight)},
        {u"Characters"_s,
         u"%1 in %2 ranges"_s.arg(font_.SavedCodes().Count()).arg(font_.EnabledRuns().size())},
        {u"Kerning"_s, u"%1 pairs"_s.arg(EnabledKerning(contents_.kerningSource).size())},
        {u"Flash"_s,
         u"%1 bytes: %2 pixels, %3 characters, %4 ranges, %5 structure"_s.arg(flash.Total())
             .arg(flash.pixels)
             .arg(flash.characters)
             .arg(flash.ranges)
             .arg(flash.structure)},
    }};
    constexpr int nameWidth = 12;
    for (const auto& [name, value] : figures)
        AddText(name.leftJustified(nameWidth) + value, ProofColour::Ink);
}

void ProofBuilder::AddLegend()
{
    constexpr int swatch = 8;
    std::vector<std::pair<quint8, QString>> entries = {{ProofColour::Advance, u"advance"_s},
                                                       {ProofColour::Bitmap, u"bitmap"_s},
                                                       {ProofColour::Baseline, u"baseline"_s}};
    if (font_.Metrics().format == FontFormat::Framed)
        entries.emplace_back(ProofColour::Frame, u"frame"_s);
    if (!missing_.empty())
        entries.emplace_back(ProofColour::Missing, u"missing"_s);
    if (contents_.comparison != nullptr) {
        entries.emplace_back(ProofColour::More, u"more ink"_s);
        entries.emplace_back(ProofColour::Less, u"less ink"_s);
    }
    AddGap(6);
    ProofBand band{LabelFont::LineHeight};
    int x = PageMargin;
    for (const auto& [colour, name] : entries) {
        band.marks.push_back(Fill({x, 0, swatch, swatch}, colour));
        band.marks.push_back(Text(x + swatch + 4, 0, name, ProofColour::Label));
        x += swatch + 4 + LabelWidth(std::size_t(name.size())) + PageMargin;
    }
    layout_.bands.push_back(std::move(band));
}

// Cells that are wider than the others take some of them.
int ProofBuilder::UnitsOf(const Reach& reach) const
{
    const int width = reach.Width() * layout_.zoom + 2 * CellMargin;
    return (width + cellWidth_ - 1) / cellWidth_;
}

QStringList ProofBuilder::LabelsOf(quint16 code) const
{
    QStringList labels = {Hex4Text(code)};
    if (font_.Metrics().encoding == EncodingType::Unicode)
        return labels;
    const auto unicode = EncodingFor(EncodingType::ShiftJis).Converted(EncodingType::Unicode, code);
    labels.append(unicode ? UnicodeNotation(*unicode) : QString());
    return labels;
}

void ProofBuilder::AddCellRow(const CellRow& row)
{
    const FontMetrics& metrics = font_.Metrics();
    const int zoom = layout_.zoom;
    const auto labelLines = row.cells.front().second.labels.size();
    const int glyphTop = int(labelLines) * LabelFont::LineHeight + 2 + row.reach.top * zoom;
    const int advanceTop = glyphTop + row.reach.bottom * zoom + 4;
    ProofBand band{advanceTop + LabelFont::LineHeight + 2 * CellMargin};
    for (const auto& [column, cell] : row.cells) {
        const Reach reach = cell.glyph != nullptr ? Glyphor::ReachOf(*cell.glyph)
                                                  : Reach{0, 0, metrics.height / 2, 0};
        const int width = std::min(UnitsOf(reach), columns_) * cellWidth_;
        const int centre = PageMargin + column * cellWidth_ + width / 2;
        const quint8 colour = cell.glyph != nullptr ? ProofColour::Label : ProofColour::Missing;
        int y = 0;
        for (const QString& label : cell.labels) {
            band.marks.push_back(Centred(centre, y, label, colour));
            y += LabelFont::LineHeight;
        }
        const int x = centre - reach.Width() * zoom / 2 + reach.left * zoom;
        if (cell.glyph == nullptr) {
            band.marks.push_back(Outline(MissingBox(x, glyphTop, metrics, zoom), colour));
            continue;
        }
        MarkGuides(band.marks, x, glyphTop, *cell.glyph, zoom);
        band.marks.push_back(Glyph(x, glyphTop, *cell.glyph, zoom));
        band.marks.push_back(
            Centred(centre, advanceTop, QString::number(cell.glyph->info.cursorDistance), colour));
    }
    layout_.bands.push_back(std::move(band));
}

// A row for the codes that differ in their last digit, so that a new character moves no other one.
// Rows that would be nearly empty are filled up with the next ones.
void ProofBuilder::AddCharacters()
{
    AddHeading(u"Characters"_s + Enlarged(layout_.zoom));
    const Encoding& encoding = EncodingFor(font_.Metrics().encoding);
    const CodeSet codes = font_.SavedCodes();
    QLatin1StringView block;
    CellRow row;
    int group = -1;
    bool isSparse = false;
    int next = 0;
    const auto endRow = [&] {
        if (!row.cells.empty())
            AddCellRow(row);
        row = {};
        next = 0;
    };
    for (const quint16 code : codes) {
        const Character& character = *font_.FindChar(code);
        if (code / columns_ != group) {
            group = code / columns_;
            const bool wasSparse = std::exchange(isSparse, IsSparse(codes, group));
            if (!isSparse || !wasSparse)
                endRow();
        }
        const QLatin1StringView codeBlock = encoding.BlockName(code);
        if (codeBlock != block) {
            endRow();
            block = codeBlock;
            AddHeading(block.isEmpty() ? u"Without a block"_s : QString(block), 1);
        }
        const Reach reach = Glyphor::ReachOf(character);
        const int units = std::min(UnitsOf(reach), columns_);
        const int column = isSparse ? next : std::max(next, code % columns_);
        if (column + units > columns_)
            endRow();
        const int place = column + units > columns_ ? 0 : column;
        row.cells.emplace_back(place, Cell{LabelsOf(code), &character});
        row.reach.Include(reach);
        next = place + units;
    }
    endRow();
}

// Whether the codes have less than a quarter of their row.
bool ProofBuilder::IsSparse(const CodeSet& codes, int group) const
{
    int count = 0;
    for (int code = group * columns_; code < (group + 1) * columns_; ++code)
        count += codes.Test(quint16(code)) ? 1 : 0;
    return count * 4 < columns_;
}

void ProofBuilder::AddMissing()
{
    if (missing_.empty())
        return;
    constexpr int mostShown = 4096;
    AddHeading(u"Missing characters: %1"_s.arg(missing_.size()));
    CellRow row;
    int shown = 0;
    for (const char32_t character : missing_) {
        if (shown == mostShown)
            break;
        if (int(row.cells.size()) == columns_)
            AddCellRow(std::exchange(row, {}));
        const QString label = UnicodeNotation(character).mid(2);
        row.cells.emplace_back(int(row.cells.size()), Cell{{label}, nullptr});
        row.reach.Include({0, 0, 0, font_.Metrics().height});
        ++shown;
    }
    if (!row.cells.empty())
        AddCellRow(row);
    if (std::size_t(shown) < missing_.size())
        AddText(u"... and %1 more"_s.arg(missing_.size() - std::size_t(shown)),
                ProofColour::Missing);
}

Reach ProofBuilder::ReachOf(const CharacterDifference& difference) const
{
    Reach reach;
    if (difference.after != nullptr)
        reach.Include(Glyphor::ReachOf(*difference.after));
    if (difference.before != nullptr) {
        Reach before = Glyphor::ReachOf(*difference.before);
        const int shift = font_.Metrics().baseline - contents_.comparedFont->Metrics().baseline;
        before.top = std::max(before.top - shift, 0);
        before.bottom += shift;
        reach.Include(before);
    }
    return reach;
}

void ProofBuilder::AddDifferences()
{
    const FontComparison& comparison = *contents_.comparison;
    AddHeading(
        u"Differences from %1: before, after, difference"_s.arg(Shown(contents_.comparedName)));
    for (const ValueDifference& value : comparison.values)
        AddText(u"%1: %2 -> %3"_s.arg(value.what, value.before, value.after), ProofColour::Ink);
    if (comparison.IsEqual())
        AddText(u"None."_s, ProofColour::Ink);
    const std::span<const CharacterDifference> all = comparison.characters;
    for (std::size_t begin = 0; begin < all.size();) {
        int units = 0;
        std::size_t end = begin;
        for (; end < all.size(); ++end) {
            const int widest = std::max(units, UnitsOf(ReachOf(all[end])));
            const int groupWidth = 3 * widest * cellWidth_ + PageMargin;
            if (end > begin && int(end + 1 - begin) * groupWidth > contentWidth_ + PageMargin)
                break;
            units = widest;
        }
        AddDifferenceRow(all.subspan(begin, end - begin), units);
        begin = end;
    }
}

void ProofBuilder::AddDifferenceRow(std::span<const CharacterDifference> row, int units)
{
    const int zoom = layout_.zoom;
    const int cell = units * cellWidth_;
    const int shift = font_.Metrics().baseline - contents_.comparedFont->Metrics().baseline;
    Reach reach;
    for (const CharacterDifference& difference : row)
        reach.Include(ReachOf(difference));
    const int top = LabelFont::LineHeight + 2 + reach.top * zoom;
    ProofBand band{top + reach.bottom * zoom + 2 * CellMargin};
    int left = PageMargin;
    for (const CharacterDifference& difference : row) {
        const bool isForeign = difference.code >= FontComparison::NoUnicode;
        const QString kind = difference.before == nullptr  ? u"+ "_s
                             : difference.after == nullptr ? u"- "_s
                                                           : u"! "_s;
        const QString code = Hex4Text(quint16(difference.code));
        band.marks.push_back(
            Text(left, 0, kind + code + (isForeign ? u" SJIS"_s : QString()), ProofColour::Label));
        const Reach own = ReachOf(difference);
        const int x = left + (cell - own.Width() * zoom) / 2 + own.left * zoom;
        if (difference.before != nullptr) {
            MarkGuides(band.marks, x, top + shift * zoom, *difference.before, zoom);
            band.marks.push_back(Glyph(x, top + shift * zoom, *difference.before, zoom));
        }
        if (difference.after != nullptr) {
            MarkGuides(band.marks, x + cell, top, *difference.after, zoom);
            band.marks.push_back(Glyph(x + cell, top, *difference.after, zoom));
        }
        const int drop = difference.after == nullptr ? shift * zoom : 0;
        band.marks.push_back({.kind = ProofMark::Kind::Difference,
                              .area = {x + 2 * cell, top + drop, 0, 0},
                              .zoom = zoom,
                              .glyph = difference.after,
                              .before = difference.before});
        left += 3 * cell + PageMargin;
    }
    layout_.bands.push_back(std::move(band));
}

void ProofBuilder::AddSamples()
{
    if (contents_.texts.empty())
        return;
    AddHeading(u"Sample texts"_s + Enlarged(sampleZoom_));
    for (const SampleText& text : contents_.texts)
        AddSample(text);
}

} // namespace Glyphor
