#include "render/font_file_scalable.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

namespace Glyphor {

namespace {

QString DejaVu()
{
    return QString::fromUtf8(SYSTEM_FONTS "/DejaVuSans.ttf");
}

RenderOptions Sized(HeightUnit unit, int height, FontFormat format = FontFormat::AA4)
{
    RenderOptions options;
    options.format = format;
    options.height = height;
    options.heightUnit = unit;
    return options;
}

std::unique_ptr<Font> RenderWith(const QString& path, const RenderOptions& options, quint16 first,
                                 quint16 last)
{
    const auto file = MakeScalableFontFile(path, options);
    CodeSet filter;
    filter.SetRange(first, last, true);
    file->SetCharacterFilter(filter);
    return file->Read();
}

// From the first row with ink to the last.
int InkRows(const Font& font, quint16 code)
{
    const Character& character = *font.FindChar(code);
    int first = -1;
    int last = -1;
    for (int y = 0; y < character.info.Rows(); ++y) {
        for (int x = 0; x < character.info.width; ++x) {
            if (character.bitmap->GetPixelIndex(x, y) == 0)
                continue;
            first = first < 0 ? y : first;
            last = y;
        }
    }
    return first < 0 ? 0 : last - first + 1;
}

} // namespace

class TestSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void HeightsAreExact_data()
    {
        const Test::Rows<QString, HeightUnit, char> row;
        row("capitals", DejaVu(), HeightUnit::Capital, 'H');
        row("lowercase", DejaVu(), HeightUnit::LowercaseX, 'x');
        row("line", DejaVu(), HeightUnit::Line, 'x');
        row("bold capitals", QString::fromUtf8(SYSTEM_FONTS "/DejaVuSans-Bold.ttf"),
            HeightUnit::Capital, 'H');
        for (const char* const path :
             {"truetype/liberation/LiberationSans-Regular.ttf", "opentype/inter/Inter-Regular.otf",
              "opentype/noto/NotoSansCJK-Regular.ttc"}) {
            const QString file = u"/usr/share/fonts/"_s + QString::fromLatin1(path);
            if (QFile::exists(file)) // where the machine has it
                row(path, file, HeightUnit::Capital, 'H');
        }
    }

    // Exact, or refused with heights that can be had.
    void HeightsAreExact()
    {
        const auto [path, unit, letter] = Test::Row<QString, HeightUnit, char>();
        for (const FontFormat format : {FontFormat::Standard, FontFormat::AA4}) {
            int refused = 0;
            for (int height = 7; height <= 40; ++height) {
                const auto heightAt = [&, code = quint16(letter)](int asked) {
                    const auto font = RenderWith(path, Sized(unit, asked, format), code, code);
                    return unit == HeightUnit::Line ? int(font->Metrics().height)
                                                    : InkRows(*font, code);
                };
                try {
                    QCOMPARE(heightAt(height), height);
                } catch (const CriticalException& error) {
                    ++refused;
                    static const QRegularExpression nearest(u"had: (\\d+), (\\d+) px"_s);
                    const auto match = nearest.match(error.Text());
                    QVERIFY2(match.hasMatch(), qPrintable(error.Text()));
                    for (const int part : {1, 2}) {
                        const int near = match.captured(part).toInt();
                        QCOMPARE(heightAt(near), near);
                    }
                }
            }
            QVERIFY(refused <= 2);
        }
    }

    void Em()
    {
        RenderOptions options = Sized(HeightUnit::Em, 16);
        options.sixtyFourths = 32;
        FontFileTTF file(DejaVu(), options);
        const auto font = file.Read();
        QCOMPARE(file.EmSize(), 17);
        FT_Face direct = nullptr;
        FT_New_Face(FreeTypeLibrary().Get(), qPrintable(DejaVu()), 0, &direct);
        FT_Set_Char_Size(direct, 0, 16 * 64 + 32, 0, 0);
        FT_Load_Char(direct, 'H', FT_LOAD_RENDER);
        QCOMPARE(Test::Numbers(font->FindChar('H')->info).first(2),
                 (QList<int>{int(direct->glyph->bitmap.width), int(direct->glyph->bitmap.rows)}));
        QCOMPARE(int(font->Metrics().height), int(direct->size->metrics.height >> 6));
        FT_Done_Face(direct);
    }

    void Refusals_data()
    {
        const Test::Rows<QString, RenderOptions, QString> row;
        row("no letter", Test::FontPath("variable.ttf"), Sized(HeightUnit::Capital, 14),
            u"needs the letter H, which the face does not have"_s);
        row("too high", DejaVu(), Sized(HeightUnit::Line, 65535), u"larger than 255 pixels"_s);
        RenderOptions axes = Sized(HeightUnit::Em, 16);
        axes.axes = {{"wght", 950}};
        row("axis", Test::FontPath("variable.ttf"), axes, u"wght from 400 to 900"_s);
        row("no axes", DejaVu(), axes, u"not variable"_s);
        RenderOptions charmap = Sized(HeightUnit::Em, 16);
        row("no Unicode", Test::FontPath("roman.ttf"), charmap, u"it has 0: Mac Roman."_s);
        charmap.charmapIndex = 7;
        row("no charmap", Test::FontPath("symbol.ttf"), charmap, u"it has 0: symbols."_s);
        RenderOptions fit = Sized(HeightUnit::Em, 250);
        fit.fitsInk = true;
        row("no room", DejaVu(), fit, u"a font has 255 at most"_s);
    }

    void Refusals()
    {
        const auto [path, options, expected] = Test::Row<QString, RenderOptions, QString>();
        const QString text =
            Test::FailureOf([&] { (void)RenderWith(path, options, 0x20, 0xFFFF); });
        QVERIFY2(text.contains(expected), qPrintable(text));
    }

    void Axes()
    {
        QList<int> widths;
        for (const double weight : {400, 650, 900}) {
            RenderOptions options = Sized(HeightUnit::Box, 50);
            options.axes = {{"wght", weight}};
            const auto font = RenderWith(Test::FontPath("variable.ttf"), options, 'A', 'A');
            QCOMPARE(font->Name(), u"Test Variable Regular (wght=%1)"_s.arg(weight));
            widths.append(font->FindChar('A')->info.width);
        }
        QVERIFY(widths[0] < widths[1] && widths[1] < widths[2]);
    }

    void Gamma()
    {
        RenderOptions options = Sized(HeightUnit::Box, 24);
        const auto plain = RenderWith(DejaVu(), options, 'S', 'S');
        options.gamma = 2;
        const auto dark = RenderWith(DejaVu(), options, 'S', 'S');
        const auto sum = [](const Font& font) {
            const Character& character = *font.FindChar('S');
            int total = 0;
            for (int y = 0; y < character.info.Rows(); ++y) {
                for (int x = 0; x < character.info.width; ++x)
                    total += character.bitmap->GetPixelIndex(x, y);
            }
            return total;
        };
        QVERIFY(sum(*dark) > sum(*plain));
        FreeTypeFace face(DejaVu(), 0, FreeTypeLibrary());
        face.SetPixelSize(24);
        RenderedGlyph before;
        RenderedGlyph after;
        face.RenderGlyph('S', before);
        face.SetGamma(2);
        face.RenderGlyph('S', after);
        for (std::size_t i = 0; i < before.pixels.size(); ++i)
            QCOMPARE(int(after.pixels[i]),
                     int(std::lround(255 * std::sqrt(before.pixels[i] / 255.0))));
    }

    // What cells cut is told, and nothing is where the font fits its ink.
    void InkBeyondTheLine_data()
    {
        const Test::Rows<FontFormat> row;
        row("cells", FontFormat::Legacy);
        row("grey cells", FontFormat::LegacyAA4);
        row("standard", FontFormat::AA2);
        row("framed", FontFormat::Framed);
    }

    void InkBeyondTheLine()
    {
        const auto [format] = Test::Row<FontFormat>();
        RenderOptions options = Sized(HeightUnit::Box, 24, format);
        Test::RecordingInterface interface;
        const auto cut = RenderWith(DejaVu(), options, 0x21, 0x7E);
        const bool isCell = IsLegacyFormat(format);
        QCOMPARE(interface.warnings.join(u'\n').contains(u"0x006A, 0x0070, 0x0071, 0x0079"_s),
                 isCell);
        interface.warnings.clear();
        options.fitsInk = true;
        const auto whole = RenderWith(DejaVu(), options, 0x21, 0x7E);
        QVERIFY(interface.warnings.isEmpty());
        const int growth = whole->Metrics().height - cut->Metrics().height;
        QVERIFY(growth > 0);
        options.fitsInk = false;
        options.format = isCell ? FontFormat::Standard : format; // keeps all rows
        if (format == FontFormat::LegacyAA4)
            options.format = FontFormat::AA4;
        const auto reference = RenderWith(DejaVu(), options, 0x21, 0x7E);
        const int moved = whole->Metrics().baseline - cut->Metrics().baseline;
        for (quint16 code = 0x21; code <= 0x7E; ++code) {
            QCOMPARE(InkRows(*whole, code), InkRows(*reference, code));
            if (!isCell)
                QCOMPARE(whole->FindChar(code)->info.yPos - moved,
                         int(reference->FindChar(code)->info.yPos));
        }
    }

    void MarksLeftOfTheirOrigin()
    {
        Test::RecordingInterface interface;
        const auto font =
            RenderWith(DejaVu(), Sized(HeightUnit::Box, 24, FontFormat::Legacy), 0x2FE, 0x304);
        QVERIFY(interface.warnings.join(u'\n').contains(
            u"Characters that stand left of their origin: 5 (0x0300, "_s));
    }
};

GLYPHOR_TEST(TestSizes)

} // namespace Glyphor

#include "tst_sizes.moc"
