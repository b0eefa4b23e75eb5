#include "files/font_file_c.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/shown_text.h"
#include "files/c_font_reader.h"
#include "files/c_survey.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "model/unicode_table.h"

namespace Glyphor {

namespace {

// Writes the parts of one font, each of which needs the font's identifier, runs and table types.
class FontWriter
{
public:
    FontWriter(const Font& font, CFileText& text)
        : font_(font),
          encoding_(EncodingFor(font.Metrics().encoding)),
          text_(text),
          runs_(font.EnabledRuns()),
          identifier_("GUI_Font" + CName(font.Name())),
          arrayPrefix_("ac" + identifier_ + '_'),
          isUnicode_(font.Metrics().encoding == EncodingType::Unicode),
          isLegacy_(IsLegacyFormat(font.Metrics().format)),
          tableSuffix_(isLegacy_ ? "" : "_EXT")
    {
        for (const CodeRange& run : runs_)
            count_ += run.Size();
    }

    void Hint()
    {
        text_.Triple("The following line needs to be included in any file selecting the font:");
        text_.Line("extern GUI_CONST_STORAGE GUI_FONT ", identifier_, ";");
        text_.Line();
    }

    void Bitmaps()
    {
        Progress progress(Engine::tr("Saving C file..."), count_);
        font_.ForEachEnabled([&](quint16 code, const Character& character) {
            Bitmap(code, character);
            progress.Advance();
        });
    }

    void CharInfoTable()
    {
        text_.Line("static GUI_CONST_STORAGE GUI_CHARINFO", tableSuffix_, " ", identifier_,
                   "_CharInfo[", Decimal(count_), "] = {");
        font_.ForEachEnabled([this](quint16 code, const Character& character) {
            CharInfoRow(code, character.info);
        });
        text_.Line("};");
        text_.Line();
    }

    // The last block comes first, so that each stands before the one that points to it.
    void PropertyBlocks()
    {
        int firstChar = count_;
        for (int index = int(runs_.size()) - 1; index >= 0; --index) {
            firstChar -= runs_[static_cast<std::size_t>(index)].Size();
            PropertyBlock(index, firstChar);
        }
    }

    void FontStructure()
    {
        const FontMetrics& metrics = font_.Metrics();
        text_.Line("GUI_CONST_STORAGE GUI_FONT ", identifier_, " = {");
        CommentedLine("Type of font", FontTypeName(metrics.format, metrics.encoding));
        CommentedLine("Height of font", Decimal(metrics.height));
        CommentedLine("Vertical space of font", Decimal(metrics.height));
        CommentedLine("Magnification in X", "1");
        CommentedLine("Magnification in Y", "1");
        CommentedLine("Pointer to first block", "{&" + identifier_ + "_Prop1}");
        CommentedLine("Baseline", Decimal(metrics.baseline));
        CommentedLine("Height of lowercase characters", Decimal(metrics.lowercaseHeight));
        CommentedLine("Height of capital characters", Decimal(metrics.capitalHeight));
        text_.Line("};");
        text_.Line();
    }

private:
    void AreaHeading(quint16 code)
    {
        const int area = isUnicode_ ? BlockIndex(code) : -1;
        if (area < 0 || area == lastArea_)
            return;
        lastArea_ = area;
        text_.Triple("Start of unicode area ", encoding_.BlockName(code));
    }

    void Bitmap(quint16 code, const Character& character)
    {
        AreaHeading(code);
        const int size = font_.CharDataWidth(character) * character.info.Rows();
        text_.Add("static GUI_CONST_STORAGE unsigned char ", arrayPrefix_, Hex4(code), "[",
                  Decimal(size), "] = { ");
        EndWithCodeComment(code);
        character.bitmap->WriteBytes(text_.Bytes(), text_.LineEnding());
        text_.Line("};");
        text_.Line();
    }

    void CharInfoRow(quint16 code, const CharInfo& info)
    {
        const auto column = [](int value) { return Decimal(value, 4); };
        if (isLegacy_) {
            text_.Add("  { ", column(info.width), ", ", column(info.cursorDistance), ", ",
                      column(info.bytesPerLine), ", ");
        } else {
            text_.Add("  { ", column(info.width), ", ", column(info.height), ", ",
                      column(info.xPos), ", ", column(info.yPos), ", ", column(info.cursorDistance),
                      ", ");
        }
        text_.Add(arrayPrefix_, Hex4(code), " }, ");
        EndWithCodeComment(code);
    }

    void PropertyBlock(int index, int firstChar)
    {
        const CodeRange& run = runs_[static_cast<std::size_t>(index)];
        const QByteArray type = "GUI_FONT_PROP" + tableSuffix_;
        text_.Line("static GUI_CONST_STORAGE ", type, " ", identifier_, "_Prop", Decimal(index + 1),
                   " = {");
        text_.Line("  0x", Hex4(run.first), ", // First character");
        text_.Line("  0x", Hex4(run.last), ", // Last character");
        text_.Line("  &", identifier_, "_CharInfo[", Decimal(firstChar),
                   "], // Address of first character");
        if (index + 1 == int(runs_.size()))
            text_.Add("  (GUI_CONST_STORAGE ", type, " *)0");
        else
            text_.Add("  &", identifier_, "_Prop", Decimal(index + 2));
        text_.Line(", // Pointer to next ", type);
        text_.Line("};");
        text_.Line();
    }

    void CommentedLine(QByteArrayView comment, QByteArrayView value)
    {
        text_.Line("  ", value, ", // ", comment);
    }

    // Adds "// Code 0041, LATIN CAPITAL LETTER A" and ends the line.
    void EndWithCodeComment(quint16 code)
    {
        const QLatin1StringView name = isUnicode_ ? encoding_.CharName(code) : QLatin1StringView();
        text_.Line("// Code ", Hex4(code), name.isEmpty() ? "" : ", ", name);
    }

    const Font& font_;
    const Encoding& encoding_;
    CFileText& text_;
    std::vector<CodeRange> runs_;
    QByteArray identifier_;
    QByteArray arrayPrefix_;
    bool isUnicode_; // Shift JIS codes have neither names nor named areas here
    bool isLegacy_;
    QByteArray tableSuffix_; // of the structures with offsets
    int count_ = 0;
    int lastArea_ = -1;
};

} // namespace

FontFileC::FontFileC(const QString& path, const CFileOptions& options)
    : FontFile(path), options_(options)
{}

void FontFileC::Compose(const Font& font, const Sink& sink) const
{
    CFileText text(options_, fileName(), font.Name(), sink);
    FontWriter writer(font, text);
    text.Begin(font.Metrics().height, "Font data");
    writer.Hint();
    writer.Bitmaps();
    writer.CharInfoTable();
    writer.PropertyBlocks();
    writer.FontStructure();
    text.End();
}

std::unique_ptr<Font> FontFileC::Read()
{
    QByteArray contents = Contents();
    if (HasWideCharacters(contents))
        throw CriticalException(
            Engine::tr("Error reading C file!"),
            Engine::tr("The file %1 is encoded in UTF-16 or UTF-32. Save it in UTF-8 with an "
                       "editor, and open it again.")
                .arg(Shown(fileName())));
    return CFontReader(std::move(contents)).Read();
}

FlashParts FlashPartsOf(const Font& font)
{
    constexpr qint64 plainRecord = 8;     // three bytes, and an address on its boundary
    constexpr qint64 extendedRecord = 12; // five bytes, and an address
    constexpr qint64 propertyBlock = 12;  // two codes and two addresses
    const bool isLegacy = IsLegacyFormat(font.Metrics().format);
    FlashParts parts;
    parts.ranges = qint64(font.EnabledRuns().size()) * propertyBlock;
    font.ForEachEnabled([&](quint16, const Character& character) {
        parts.characters += isLegacy ? plainRecord : extendedRecord;
        parts.pixels += qint64(font.CharDataWidth(character)) * character.info.Rows();
    });
    return parts;
}

void FontFileC::Write(const Font& font)
{
    Replace([&](const Sink& sink) {
        Compose(font, sink);
        AskForApproval();
    });
}

} // namespace Glyphor
