#include "proof/placed_pixels.h"
#include "proof/proof_builder.h"
#include "proof/proof_file.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTemporaryDir>

#include <algorithm>
#include <png.h>

namespace Glyphor {

namespace {

// The picture of a PNG file, one palette colour in each pixel, by another way than that of the
// writer.
struct ReadPicture
{
    int width = 0;
    int height = 0;
    QByteArray rgb;
};

ReadPicture PictureIn(const QByteArray& file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    ReadPicture picture;
    if (png_image_begin_read_from_memory(&image, file.constData(), std::size_t(file.size())) == 0)
        return picture;
    image.format = PNG_FORMAT_RGB;
    picture.rgb.resize(qsizetype(PNG_IMAGE_SIZE(image)));
    if (png_image_finish_read(&image, nullptr, picture.rgb.data(), 0, nullptr) == 0)
        return picture;
    picture.width = int(image.width);
    picture.height = int(image.height);
    return picture;
}

std::vector<ProofMark> MarksOf(const ProofLayout& layout, ProofMark::Kind kind)
{
    std::vector<ProofMark> marks;
    for (const ProofBand& band : layout.bands) {
        for (const ProofMark& mark : band.marks) {
            if (mark.kind == kind)
                marks.push_back(mark);
        }
    }
    return marks;
}

bool HasText(const ProofLayout& layout, const std::string& text)
{
    const auto texts = MarksOf(layout, ProofMark::Kind::Text);
    return std::ranges::any_of(texts, [&text](const ProofMark& mark) { return mark.text == text; });
}

// Letters of two pixels, with kerning between A and B.
std::unique_ptr<Font> MakeKernedFont()
{
    auto font = Test::MakeSampleFont(FontFormat::Standard);
    font->FindChar(0x41)->kerning = {{0x42, -1}};
    font->SetHasKerning(true);
    return font;
}

ProofContents ContentsOf(const Font& font, const QStringList& lines)
{
    return {
        .font = font, .kerningSource = font, .fileName = u"a.c"_s, .texts = {{{}, lines, true}}};
}

} // namespace

class TestProof : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Layouts_data()
    {
        const Test::Rows<FontFormat, EncodingType, QString> row; // a label
        row("1 bit", FontFormat::Standard, EncodingType::Unicode, u"0041"_s);
        row("2 bits", FontFormat::AA2, EncodingType::Unicode, u"0081"_s);
        row("4 bits", FontFormat::AA4, EncodingType::Unicode, u"0080"_s);
        row("framed", FontFormat::Framed, EncodingType::Unicode, u"frame"_s);
        row("legacy", FontFormat::Legacy, EncodingType::Unicode, u"0042"_s);
        row("Shift JIS", FontFormat::LegacyAA2, EncodingType::ShiftJis, u"U+0041"_s);
    }

    // All characters that are enabled, in order, and what they are labelled with.
    void Layouts()
    {
        const auto [format, encoding, label] = Test::Row<FontFormat, EncodingType, QString>();
        const auto font = Test::MakeSampleFont(format, encoding);
        const ProofLayout layout = LayOutProof(ContentsOf(*font, {}));
        std::vector<const Character*> shown;
        for (const ProofMark& mark : MarksOf(layout, ProofMark::Kind::Glyph))
            shown.push_back(mark.glyph);
        std::vector<const Character*> expected;
        font->ForEachEnabled(
            [&](quint16, const Character& character) { expected.push_back(&character); });
        QCOMPARE(shown, expected);
        QVERIFY(HasText(layout, label.toStdString()));
        QVERIFY(!HasText(layout, "007E"));
        QCOMPARE(HasText(layout, "frame"), format == FontFormat::Framed);
    }

    void Samples_data()
    {
        const Test::Rows<QString, int, int, bool> row; // characters, boxes and kerning
        row("no kerning", u"BA"_s, 2, 0, false);
        row("kerning", u"AB"_s, 4, 0, true);
        row("missing", u"A!"_s, 1, 1, false);
        row("disabled", u"~A"_s, 1, 1, false);
        row("blank", u"A A"_s, 2, 1, false);
        row("above U+FFFF", u"😀"_s, 0, 1, false);
        row("control", u"A\u0007B"_s, 4, 0, true);
        row("empty", QString(), 0, 0, false);
    }

    void Samples()
    {
        const auto [text, characters, boxes, isKerned] = Test::Row<QString, int, int, bool>();
        const auto font = MakeKernedFont();
        const ProofLayout layout = LayOutProof(ContentsOf(*font, {text}));
        const ProofLayout plain = LayOutProof(ContentsOf(*font, {}));
        const auto count = [](const ProofLayout& counted, ProofMark::Kind kind) {
            return int(MarksOf(counted, kind).size());
        };
        QCOMPARE(count(layout, ProofMark::Kind::Glyph) - count(plain, ProofMark::Kind::Glyph),
                 characters);
        QCOMPARE(count(layout, ProofMark::Kind::Outline), 2 * boxes); // also among the missing
        QCOMPARE(HasText(layout, "kerned"), isKerned);
    }

    void LinesBreak()
    {
        const auto font = MakeKernedFont();
        const ProofLayout layout =
            LayOutProof(ContentsOf(*font, {QString(u'B').repeated(500) + u'\n'}));
        for (const ProofMark& mark : MarksOf(layout, ProofMark::Kind::Glyph))
            QVERIFY(mark.area.x + mark.glyph->info.cursorDistance * mark.zoom <= layout.width);
    }

    // Bands are neither lost nor cut, and headings stay with what they are for.
    void Pages()
    {
        Font font(FontFormat::Standard, EncodingType::Unicode);
        font.SetHeight(8);
        font.SetEnabled(0, 0xFFF, true);
        const ProofLayout layout = LayOutProof(ContentsOf(font, {u"x"_s}));
        const auto pages = PagesOf(layout, 500);
        QVERIFY(pages.size() > 10);
        std::size_t next = 0;
        for (const ProofPage& page : pages) {
            QCOMPARE(page.firstBand, next);
            QVERIFY(page.height <= 500);
            next += page.bandCount;
            const bool isLast = next == layout.bands.size();
            QVERIFY(isLast || !layout.bands[next - 1].staysWithNext);
        }
        QCOMPARE(next, layout.bands.size());
    }

    // Every character has its place, however far it reaches.
    void WideCharacters()
    {
        Font font(FontFormat::Standard, EncodingType::Unicode);
        font.SetHeight(1);
        for (int code = 0; code < 40; ++code) {
            Character& character = font.AddChar(quint16(code));
            character.info.Set({code % 3 == 0 ? 255 : 1, 255, -128, -128, 255});
            character.bitmap->AdjustData();
        }
        const ProofLayout layout = LayOutProof(ContentsOf(font, {}));
        const auto glyphs = MarksOf(layout, ProofMark::Kind::Glyph);
        QCOMPARE(glyphs.size(), std::size_t(40));
        for (const ProofPage& page : PagesOf(layout, 16'000))
            QCOMPARE(PaintPage(layout, page).Height(), page.height);
    }

    void BuiltInTextsAreThoseOfTheFont_data()
    {
        const Test::Rows<CodeRange, QStringList> row;
        row("digits", CodeRange{0x30, 0x39}, {u"Figures"_s});
        row("ASCII", CodeRange{0x20, 0x7E}, {u"Figures"_s, u"Latin"_s});
        row("Greek", CodeRange{0x386, 0x3CE}, {u"Greek"_s});
        row("kana", CodeRange{0x3041, 0x30FF}, {u"Hiragana"_s, u"Katakana"_s});
        row("none", CodeRange{0x2500, 0x257F}, {});
    }

    void BuiltInTextsAreThoseOfTheFont()
    {
        const auto [range, expected] = Test::Row<CodeRange, QStringList>();
        Font font(FontFormat::Standard, EncodingType::Unicode);
        font.SetEnabled(range.first, range.last, true);
        QStringList titles;
        for (const SampleText& text : BuiltInTexts(font))
            titles.append(text.title);
        QCOMPARE(titles, expected);
    }

    void Files_data()
    {
        const Test::Rows<FontFormat, QString> row;
        row("1 bit", FontFormat::Standard, u"a.png"_s);
        row("4 bits", FontFormat::AA4, u"a.PNG"_s);
        row("framed", FontFormat::Framed, u"a.png"_s);
        row("PDF", FontFormat::AA2, u"a.pdf"_s);
    }

    // The same bytes each time; pictures that others can read, with the pixels of the font.
    void Files()
    {
        const auto [format, name] = Test::Row<FontFormat, QString>();
        const auto font = Test::MakeSampleFont(format);
        const ProofContents contents = ContentsOf(*font, {u"ABBA €"_s});
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        QCOMPARE(WriteProof(contents, path), QStringList{path});
        const QByteArray file = Test::ReadAll(path);
        WriteProof(contents, path);
        QCOMPARE(Test::ReadAll(path), file);
        if (name.endsWith(u"pdf"_s)) {
            QVERIFY(file.startsWith("%PDF-") && !file.contains("Date"));
            return;
        }
        const ReadPicture picture = PictureIn(file);
        const ProofLayout layout = LayOutProof(contents);
        const Canvas canvas = PaintPage(layout, PagesOf(layout, 16'000).front());
        QCOMPARE(picture.width, canvas.Width());
        QCOMPARE(picture.height, canvas.Height());
        bool hasFrame = false;
        for (int y = 0; y < canvas.Height(); ++y) {
            for (int x = 0; x < canvas.Width(); ++x) {
                const quint8 index = canvas.Row(y)[std::size_t(x)];
                const Rgb colour = ProofPalette()[index];
                const qsizetype at = (qsizetype(y) * canvas.Width() + x) * 3;
                QCOMPARE(uchar(picture.rgb[at]), colour.red);
                QCOMPARE(uchar(picture.rgb[at + 2]), colour.blue);
                // That of the legend has the first rows alone.
                hasFrame = hasFrame || (index == ProofColour::Frame && y > canvas.Height() / 2);
            }
        }
        QCOMPARE(hasFrame, format == FontFormat::Framed);
    }

    // Tall proofs go on in pictures with numbers.
    void TallPictures()
    {
        Font font(FontFormat::Standard, EncodingType::Unicode);
        font.SetHeight(8);
        font.SetEnabled(0, 0x1FFF, true);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.b.png"_s);
        const QStringList written = WriteProof(ContentsOf(font, {}), path);
        QVERIFY(written.size() > 1);
        QCOMPARE(written.first(), path);
        QCOMPARE(written[1], folder.filePath(u"a.b-2.png"_s));
        for (const QString& name : written)
            QVERIFY(PictureIn(Test::ReadAll(name)).height <= 16'000);
    }
};

GLYPHOR_TEST(TestProof)

} // namespace Glyphor

#include "tst_proof.moc"
