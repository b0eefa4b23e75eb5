#include "files/font_file_c.h"

#include "app/progress.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "model/unicode_table.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Writes the parts of one font, each of which needs the font's identifier, runs and table types.
class FontWriter
{
public:
    FontWriter(const Font& font, CFileText& text)
        : font_(font),
          text_(text),
          runs_(font.EnabledRuns()),
          identifier_("GUI_Font" + CName(font.Name())),
          isLegacy_(IsLegacyFormat(font.Metrics().format))
    {
        for (const CodeRun& run : runs_)
            count_ += run.Size();
    }

    void Reserve();
    void Hint();
    void Bitmaps();
    void CharInfoTable();
    void PropertyBlocks();
    void FontStructure();

private:
    void AreaHeading(quint16 code);
    void Bitmap(quint16 code, const Character& character);
    void CharInfoRow(quint16 code, const CharInfo& info);
    void PropertyBlock(std::size_t index, int firstChar);

    [[nodiscard]] QByteArray ArrayName(quint16 code) const
    {
        return "ac" + identifier_ + '_' + Hex4(code);
    }

    [[nodiscard]] QByteArray CodeComment(quint16 code) const;
    [[nodiscard]] QByteArray TableType(QByteArrayView plain) const;

    template <typename Visit>
    void ForEachChar(Visit visit) const
    {
        for (const CodeRun& run : runs_) {
            for (int code = run.first; code <= run.last; ++code)
                visit(static_cast<quint16>(code), *font_.FindChar(static_cast<quint16>(code)));
        }
    }

    const Font& font_;
    CFileText& text_;
    std::vector<CodeRun> runs_;
    QByteArray identifier_;
    bool isLegacy_;
    int count_ = 0;
    int lastArea_ = -1;
};

// Room for everything at once: growing a large text step by step would copy it and double the peak.
void FontWriter::Reserve()
{
    const qsizetype byteText = font_.Metrics().bitsPerPixel == 1 ? 10 : 6;
    const qsizetype namesPerChar = 6 * identifier_.size() + 400;
    qsizetype size = 0x4000 + qsizetype(runs_.size()) * namesPerChar;
    ForEachChar([&](quint16, const Character& character) {
        const qsizetype line = 4 + byteText * character.info.bytesPerLine;
        size += namesPerChar + 2 * line * character.info.Rows();
    });
    text_.Reserve(size);
}

QByteArray FontWriter::CodeComment(quint16 code) const
{
    QByteArray comment = "// Code " + Hex4(code);
    const EncodingType encoding = font_.Metrics().encoding;
    if (encoding == EncodingType::Unicode) {
        const QLatin1StringView name = EncodingFor(encoding).CharName(code);
        if (!name.isEmpty())
            comment.append(", ").append(name.data(), name.size());
    }
    return comment;
}

// The structure names of the formats with offsets end in "_EXT".
QByteArray FontWriter::TableType(QByteArrayView plain) const
{
    return plain.toByteArray() + (isLegacy_ ? "" : "_EXT");
}

void FontWriter::Hint()
{
    text_.Triple("The following line needs to be included in any file selecting the font:");
    text_.Line("extern GUI_CONST_STORAGE GUI_FONT " + identifier_ + ';');
    text_.Line();
}

// Shift JIS codes have no named areas.
void FontWriter::AreaHeading(quint16 code)
{
    if (font_.Metrics().encoding != EncodingType::Unicode)
        return;
    const int area = BlockIndex(code);
    if (area < 0 || area == lastArea_)
        return;
    lastArea_ = area;
    const QLatin1StringView name = BlockName(code);
    text_.Triple("Start of unicode area " + QByteArray(name.data(), name.size()));
}

void FontWriter::Bitmap(quint16 code, const Character& character)
{
    AreaHeading(code);
    const int size = font_.CharDataWidth(character) * character.info.Rows();
    text_.Line("static GUI_CONST_STORAGE unsigned char " + ArrayName(code) + '[' +
               QByteArray::number(size) + "] = { " + CodeComment(code));
    character.bitmap->WriteBytes(text_.Bytes(), text_.LineEnding());
    text_.Line("};");
    text_.Line();
}

void FontWriter::Bitmaps()
{
    Progress progress(u"Saving C file..."_s, count_);
    ForEachChar([&](quint16 code, const Character& character) {
        Bitmap(code, character);
        progress.Advance();
    });
}

void FontWriter::CharInfoRow(quint16 code, const CharInfo& info)
{
    QByteArray row = "  { ";
    const auto add = [&row](int value) {
        row += QByteArray::number(value).rightJustified(4) + ", ";
    };
    if (isLegacy_) {
        for (const int value : {info.width, info.cursorDistance, info.bytesPerLine})
            add(value);
    } else {
        for (const int value : {int(info.width), int(info.height), int(info.xPos), int(info.yPos),
                                int(info.cursorDistance)})
            add(value);
    }
    text_.Line(row + ArrayName(code) + " }, " + CodeComment(code));
}

void FontWriter::CharInfoTable()
{
    text_.Line("static GUI_CONST_STORAGE " + TableType("GUI_CHARINFO") + ' ' + identifier_ +
               "_CharInfo[" + QByteArray::number(count_) + "] = {");
    ForEachChar(
        [this](quint16 code, const Character& character) { CharInfoRow(code, character.info); });
    text_.Line("};");
    text_.Line();
}

void FontWriter::PropertyBlock(std::size_t index, int firstChar)
{
    const QByteArray type = TableType("GUI_FONT_PROP");
    const auto name = [this](std::size_t block) {
        return identifier_ + "_Prop" + QByteArray::number(qsizetype(block) + 1);
    };
    text_.Line("static GUI_CONST_STORAGE " + type + ' ' + name(index) + " = {");
    text_.Line("  0x" + Hex4(runs_[index].first) + ", // First character");
    text_.Line("  0x" + Hex4(runs_[index].last) + ", // Last character");
    text_.Line("  &" + identifier_ + "_CharInfo[" + QByteArray::number(firstChar) +
               "], // Address of first character");
    const QByteArray next =
        index + 1 == runs_.size() ? "(GUI_CONST_STORAGE " + type + " *)0" : '&' + name(index + 1);
    text_.Line("  " + next + ", // Pointer to next " + type);
    text_.Line("};");
    text_.Line();
}

// The last block comes first, so that each stands before the one that points to it.
void FontWriter::PropertyBlocks()
{
    int firstChar = count_;
    for (std::size_t index = runs_.size(); index-- > 0;) {
        firstChar -= runs_[index].Size();
        PropertyBlock(index, firstChar);
    }
}

void FontWriter::FontStructure()
{
    const FontMetrics& metrics = font_.Metrics();
    const QLatin1StringView type = FontTypeName(metrics.format, metrics.encoding);
    const auto row = [this](const QByteArray& value, QByteArrayView comment) {
        text_.Line("  " + value + ", // " + comment.toByteArray());
    };
    const auto number = [](int value) { return QByteArray::number(value); };

    text_.Line("GUI_CONST_STORAGE GUI_FONT " + identifier_ + " = {");
    row(QByteArray(type.data(), type.size()), "Type of font");
    row(number(metrics.height), "Height of font");
    row(number(metrics.height), "Vertical space of font");
    row("1", "Magnification in X");
    row("1", "Magnification in Y");
    row("{&" + identifier_ + "_Prop1}", "Pointer to first block");
    row(number(metrics.baseline), "Baseline");
    row(number(metrics.lowercaseHeight), "Height of lowercase characters");
    row(number(metrics.capitalHeight), "Height of capital characters");
    text_.Line("};");
    text_.Line();
}

} // namespace

FontFileC::FontFileC(const QString& path, const CFileOptions& options)
    : FontFile(path), options_(options)
{}

QByteArray FontFileC::Compose(const Font& font) const
{
    CFileText text(options_, fileName(), font.Name());
    FontWriter writer(font, text);
    writer.Reserve();
    text.CommentBox(font.Metrics().height, "Font data");
    text.IncludeGuardStart();
    text.IncludeLine();
    text.StorageClassBlock();
    writer.Hint();
    writer.Bitmaps();
    writer.CharInfoTable();
    writer.PropertyBlocks();
    writer.FontStructure();
    text.IncludeGuardEnd();
    text.EndLine();
    return std::move(text.Bytes());
}

void FontFileC::Write(const Font& font)
{
    Replace(Compose(font));
}

} // namespace Glyphor
