#include "render/font_file_scalable.h"
#include "render/glyph_jobs.h"
#include "render/glyph_outlines.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

namespace {

std::unique_ptr<Font> Render(const char* name, const RenderOptions& options,
                             const std::optional<CodeSet>& filter = {})
{
    FontFileTTF file(Test::FontPath(name), options);
    file.SetCharacterFilter(filter);
    return file.Read();
}

RenderOptions At(int height, FontFormat format = FontFormat::AA4)
{
    RenderOptions options;
    options.format = format;
    options.height = height;
    return options;
}

// A face set up by calling FreeType alone.
class DirectFace
{
public:
    DirectFace(const QString& path, int height, FT_Int32 target = 0) : target_(target)
    {
        FT_Init_FreeType(&library_);
        FT_New_Face(library_, QFile::encodeName(path).constData(), 0, &face_);
        FT_Size_RequestRec request = {FT_SIZE_REQUEST_TYPE_BBOX, 0, height * 64, 0, 0};
        FT_Request_Size(face_, &request);
    }
    ~DirectFace() { FT_Done_FreeType(library_); }
    DirectFace(const DirectFace&) = delete;
    DirectFace& operator=(const DirectFace&) = delete;

    FT_GlyphSlot Render(quint16 code, bool monochrome)
    {
        if (FT_Load_Glyph(face_, FT_Get_Char_Index(face_, code),
                          target_ | (monochrome ? FT_LOAD_MONOCHROME : FT_LOAD_DEFAULT)) != 0 ||
            FT_Render_Glyph(face_->glyph,
                            monochrome ? FT_RENDER_MODE_MONO : FT_RENDER_MODE_NORMAL) != 0)
            return nullptr;
        return face_->glyph;
    }

    FT_Face Face() { return face_; }

private:
    FT_Int32 target_;
    FT_Library library_ = nullptr;
    FT_Face face_ = nullptr;
};

} // namespace

class TestScalable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GlyphsAreFreeTypes_data()
    {
        const Test::Rows<FontFormat, Hinting, FT_Int32> row;
        for (const auto& [format, bits] : {std::pair(FontFormat::Standard, "1"),
                                           {FontFormat::AA2, "2"},
                                           {FontFormat::AA4, "4"}}) {
            for (const auto& [hinting, target] : {std::pair(Hinting::Default, 0),
                                                  {Hinting::Mono, FT_LOAD_TARGET_MONO},
                                                  {Hinting::Light, FT_LOAD_TARGET_LIGHT},
                                                  {Hinting::Auto, FT_LOAD_FORCE_AUTOHINT},
                                                  {Hinting::None, FT_LOAD_NO_HINTING}})
                row(QTest::addRow("%s bits, hinting %d", bits, int(hinting)), format, hinting,
                    target);
        }
    }

    void GlyphsAreFreeTypes()
    {
        const auto [format, hinting, target] = Test::Row<FontFormat, Hinting, FT_Int32>();
        const QString path = QString::fromUtf8(SYSTEM_FONTS "/DejaVuSans.ttf");
        const bool monochrome = BitsPerPixel(format) == 1;
        RenderOptions options = At(21, format);
        options.hinting = hinting;
        CodeSet filter;
        filter.SetRange(0x20, 0x17F, true);
        FontFileTTF file(path, options);
        file.SetCharacterFilter(filter);
        const auto font = file.Read();
        DirectFace direct(path, 21, target);
        const int rounding = hinting == Hinting::None ? 32 : 0; // of advances
        const int ascent = int(direct.Face()->size->metrics.ascender >> 6);
        for (int code = 0x20; code <= 0x17F; ++code) {
            const Character* const character = font->FindChar(quint16(code));
            const FT_GlyphSlot slot = direct.Render(quint16(code), monochrome);
            if (character == nullptr) {
                QVERIFY(slot == nullptr || slot->advance.x == 0 ||
                        FT_Get_Char_Index(direct.Face(), FT_ULong(code)) == 0);
                continue;
            }
            const FT_Bitmap& bitmap = slot->bitmap;
            QCOMPARE(
                Test::Numbers(character->info),
                (QList<int>{int(bitmap.width), int(bitmap.rows), slot->bitmap_left,
                            ascent - slot->bitmap_top, int((slot->advance.x + rounding) >> 6)}));
            for (int y = 0; y < int(bitmap.rows); ++y) {
                for (int x = 0; x < int(bitmap.width); ++x) {
                    const uchar* const row = bitmap.buffer + y * bitmap.pitch;
                    const int expected = monochrome                  ? row[x / 8] >> (7 - x % 8) & 1
                                         : format == FontFormat::AA2 ? (3 * row[x] + 127) / 255
                                                                     : row[x] >> 4;
                    QCOMPARE(character->bitmap->GetPixelIndex(x, y), expected);
                }
            }
        }
    }

    void MetricsAndNames()
    {
        const auto font = Render("outlines.ttf", At(100));
        QCOMPARE(font->Name(), u"Test Outlines Regular"_s);
        QVERIFY(font->HasKerning());
        QCOMPARE(font->FindChar('V')->kerning.size(), std::size_t(4));

        const FontMetrics& metrics = font->Metrics();
        DirectFace direct(Test::FontPath("outlines.ttf"), 100);
        const FT_Size_Metrics& size = direct.Face()->size->metrics;
        QCOMPARE(int(metrics.height), int(size.height >> 6));
        QCOMPARE(int(metrics.baseline), int(size.ascender >> 6));
        QCOMPARE(int(metrics.maxWidth), int(std::min<FT_Pos>(size.max_advance >> 6, 255)));
        for (const auto& [letter, height] :
             {std::pair('a', metrics.lowercaseHeight), {'A', metrics.capitalHeight}}) {
            FT_Load_Char(direct.Face(), FT_ULong(letter), FT_LOAD_DEFAULT);
            QCOMPARE(int(height), int(direct.Face()->glyph->metrics.height >> 6));
        }

        // The face has no "a": the font's height stands in.
        const auto variable = Render("variable.ttf", At(50));
        QCOMPARE(variable->Metrics().lowercaseHeight, variable->Metrics().height);
    }

    void LargeMetricsAreClamped()
    {
        Test::RecordingInterface interface;
        const auto font = Render("outlines.ttf", At(1000));
        QCOMPARE(int(font->Metrics().height), 255);
        QCOMPARE(int(font->Metrics().baseline), 255);
        QCOMPARE(ClampMetric(-1), quint8(255));
        QVERIFY(font->FindChar('A') == nullptr);
        // U+10041 counts as U+0041, but does not count again.
        QCOMPARE(interface.warnings[0].count(u"0x0041"_s), 1);
    }

    void HostileCharmap()
    {
        Test::RecordingInterface interface;
        const auto font = Render("hostile.ttf", At(10));
        QCOMPARE(font->EnabledRuns(), (std::vector<CodeRange>{{0, 0xFFFF}}));
        QCOMPARE(interface.warnings,
                 QStringList{u"The font has too many kerning pairs; some were left out."_s});
    }

    // Codes share the pixels of their glyph, as long as neither is edited.
    void SharedGlyphs()
    {
        for (const FontFormat format : {FontFormat::AA4, FontFormat::Framed}) {
            const auto font = Render("outlines.ttf", At(20, format));
            CharBitmap& latin = *font->FindChar('A')->bitmap;
            CharBitmap& greek = *font->FindChar(0x391)->bitmap;
            QCOMPARE(latin.DataAsList(), greek.DataAsList());
            QCOMPARE(latin.Data().constData(), greek.Data().constData());
            QCOMPARE(font->FindChar('A')->info.Metrics().yPos,
                     font->FindChar(0x391)->info.Metrics().yPos);
            latin.InvertPixelIndex(1, 1);
            QVERIFY(latin.DataAsList() != greek.DataAsList());
        }
    }

    // What is known to fit nowhere is not rendered first.
    void TooLargeToRender()
    {
        Test::RecordingInterface interface;
        FreeTypeFace face(Test::FontPath("outlines.ttf"), 0, FreeTypeLibrary());
        face.SetMonochrome(false);
        face.SetLargestBitmap(255, 255);
        for (const int height : {100, 200, 300, 400, 30000}) {
            face.SetPixelSize(height);
            RenderedGlyph glyph;
            QVERIFY(face.RenderGlyph('A', glyph));
            QCOMPARE(glyph.pixels.empty(), height > 300);
            QVERIFY(glyph.width > height / 4 && glyph.rows > height / 4 && glyph.yPos >= 0);
            QVERIFY(glyph.cursorDistance >= glyph.width);
        }
        // Rows of a legacy font are cut, those of other fonts are not.
        QVERIFY(Render("outlines.ttf", At(900, FontFormat::LegacyAA2))->FindChar('i') == nullptr);
    }

    void WhatIsKept()
    {
        Test::RecordingInterface interface;
        const auto font = Render("outlines.ttf", At(40));
        QVERIFY(font->FindChar(' ') != nullptr);    // moves the cursor
        QVERIFY(font->FindChar(0x300) == nullptr);  // empty, and does not
        QVERIFY(font->FindChar(0xF600) == nullptr); // the low bits of U+1F600, without a glyph
        QVERIFY(font->FindChar('W') == nullptr);    // too wide
        QVERIFY(font->FindChar('F') == nullptr);
        QVERIFY(font->FindChar('l')->info.xPos < 0);
        QCOMPARE(int(font->FindChar(' ')->info.width), 0);
        QCOMPARE(interface.warnings.size(), 1);
        QVERIFY(interface.warnings[0].startsWith(u"Characters left out: 2 (0x0046, 0x0057). "_s));

        // FreeType renders an empty outline in black and white as one clear pixel.
        const auto mono = Render("outlines.ttf", At(40, FontFormat::Standard));
        QCOMPARE(mono->FindChar(' ')->bitmap->Data(), QByteArray(1, '\0'));
        QVERIFY(mono->FindChar(0x300) != nullptr);
    }

    void FilterAndEncoding()
    {
        Test::RecordingInterface interface;
        CodeSet filter;
        filter.SetRange(0x4E9C, 0x4E9C, true);
        filter.SetRange('A', 'A', true);
        QCOMPARE(Render("outlines.ttf", At(20), filter)->EnabledRuns(),
                 (std::vector<CodeRange>{{'A', 'A'}, {0x4E9C, 0x4E9C}}));
        QVERIFY(!Render("outlines.ttf", At(20), CodeSet())->HasEnabledChars());

        RenderOptions options = At(20, FontFormat::LegacyAA4);
        options.encoding = EncodingType::ShiftJis;
        const auto font = Render("outlines.ttf", options, filter);
        QCOMPARE(font->EnabledRuns(), (std::vector<CodeRange>{{'A', 'A'}, {0x889F, 0x889F}}));
        // 0x83A0 is the Greek letter with the glyph of "A".
        QCOMPARE(font->FindChar(0x889F)->kerning,
                 (std::vector<KerningPair>{{' ', 1}, {'A', -2}, {0x839F, -2}, {'A', -2}}));
    }

    void Effects_data()
    {
        const Test::Rows<quint32, QString> row;
        row("bold", quint32(BoldEffect), u"Test Outlines Regular (Bold)"_s);
        row("italic", quint32(ItalicEffect), u"Test Outlines Regular (Italic)"_s);
        row("both", quint32(BoldEffect | ItalicEffect), u"Test Outlines Regular (Bold, Italic)"_s);
    }

    void Effects()
    {
        const auto [effects, name] = Test::Row<quint32, QString>();
        Test::RecordingInterface interface;
        const auto plain = Render("outlines.ttf", At(40));
        RenderOptions options = At(40);
        options.effects = effects;
        const auto font = Render("outlines.ttf", options);
        QCOMPARE(font->Name(), name);
        QVERIFY(font->FindChar('A')->info.width > plain->FindChar('A')->info.width);
        QCOMPARE(font->FindChar('A')->info.height > plain->FindChar('A')->info.height,
                 (effects & BoldEffect) != 0);
    }

    void Outlines_data()
    {
        const Test::Rows<QString, RenderOptions> row;
        const QString dejaVu = QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf");
        row("plain", dejaVu, At(40));
        RenderOptions options = At(160);
        options.effects = BoldEffect | ItalicEffect;
        row("effects", dejaVu, options);
        options = At(40);
        options.hinting = Hinting::None;
        options.map = ParseCharacterMap(u"0x3A9=65,0x20-0x40"_s);
        row("mapped", dejaVu, options);
        options = At(40, FontFormat::LegacyAA4);
        options.encoding = EncodingType::ShiftJis;
        row("Shift JIS", Test::FontPath("outlines.ttf"), options);
        options = At(160);
        options.axes = {{"wght", 700}};
        row("axis", Test::FontPath("variable.ttf"), options);
    }

    // They reach as far as the ink.
    void Outlines()
    {
        const auto [path, options] = Test::Row<QString, RenderOptions>();
        const auto font = FontFileTTF(path, options).Read();
        const Character& character = *font->FindChar('A');
        const int top = IsLegacyFormat(options.format) ? 0 : character.info.yPos;
        QRectF ink;
        for (int x = 0; x < character.info.width; ++x) {
            for (int y = 0; y < character.info.Rows(); ++y) {
                if (character.bitmap->GetPixelIndex(x, y) != 0)
                    ink |=
                        QRectF(x + character.info.xPos, y + top - font->Metrics().baseline, 1, 1);
            }
        }
        const auto outlines = FontFileTTF(path, options).Outlines();
        QRectF box;
        for (const OutlineStep& step : outlines->Of('A')) {
            const QPointF end = step.points[step.kind == OutlineStep::Kind::Quadratic ? 1 : 0];
            box |= QRectF(end, QSizeF(0.01, 0.01));
        }
        QVERIFY(std::abs(box.left() - ink.left()) <= 1 && std::abs(box.right() - ink.right()) <= 1);
        QVERIFY(std::abs(box.top() - ink.top()) <= 1 && std::abs(box.bottom() - ink.bottom()) <= 1);
        QVERIFY(outlines->Of(0xFFFF).empty());
    }

    void BitmapsAndHugeGlyphsHaveNoOutline()
    {
        for (const auto& [name, height] : {std::pair("strike.ttf", 10), {"damaged.ttf", 200}}) {
            const auto outlines = FontFileTTF(Test::FontPath(name), At(height)).Outlines();
            QVERIFY(outlines->Of('A').empty());
        }
    }

    // However many threads render, and however they are scheduled.
    void Threads_data()
    {
        const Test::Rows<FontFormat, Hinting> row;
        row("grey", FontFormat::AA4, Hinting::Default);
        row("cells", FontFormat::Legacy, Hinting::Auto);
        row("framed", FontFormat::Framed, Hinting::Mono);
    }

    void Threads()
    {
        const auto [format, hinting] = Test::Row<FontFormat, Hinting>();
        RenderOptions options = At(40, format);
        options.hinting = hinting;
        options.fitsInk = true;
        QList<QByteArray> fonts;
        QList<QStringList> warnings;
        for (const int threads : {1, 2, 7}) {
            Test::RecordingInterface interface;
            options.threads = threads;
            FontFileTTF file(QString::fromUtf8(SYSTEM_FONTS "/DejaVuSans.ttf"), options);
            fonts.append(Test::Snapshot(*file.Read()));
            warnings.append(interface.warnings);
        }
        QVERIFY(fonts[0] == fonts[1] && fonts[0] == fonts[2]);
        QCOMPARE(warnings[1], warnings[0]);
        QCOMPARE(warnings[2], warnings[0]);
    }

    // A failure on any thread is one of the rendering.
    void FailuresOfThreads()
    {
        FreeTypeFace face(QString::fromUtf8(SYSTEM_FONTS "/DejaVuSans.ttf"), 0, FreeTypeLibrary());
        const std::vector<FT_UInt> glyphs(5000, 1);
        std::atomic<int> calls = 0;
        GlyphJobs<int> jobs(face, glyphs, 4, [&](const FreeTypeFace&, FT_UInt) {
            std::this_thread::sleep_for(std::chrono::microseconds(50));
            return ++calls < 4000 ? 0 : throw std::bad_alloc();
        });
        std::size_t taken = 0;
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, jobs.Run([&](std::size_t index, int) {
            QCOMPARE(index, taken++); // in their order
        }));
        QVERIFY(taken > 3000 && taken < 5000);
    }

    void RowsFromTheTop()
    {
        uchar rows[] = {1, 2, 3, 4, 5, 6};
        FT_Bitmap bitmap{};
        bitmap.rows = 3;
        bitmap.buffer = rows;
        std::vector<quint8> pixels = {9};
        bitmap.pitch = -2;
        CopyRows(bitmap, pixels);
        QCOMPARE(pixels, (std::vector<quint8>{5, 6, 3, 4, 1, 2}));
        bitmap.pitch = 2;
        CopyRows(bitmap, pixels);
        QCOMPARE(pixels, (std::vector<quint8>{1, 2, 3, 4, 5, 6}));
    }

    void Strikes()
    {
        const QByteArray chequered = QByteArray::fromHex("a854a854a854a854");
        const auto mono = Render("strike.ttf", At(10, FontFormat::Standard));
        QCOMPARE(mono->FindChar('A')->bitmap->Data(), chequered);
        QCOMPARE(int(mono->FindChar('A')->info.cursorDistance), 7);
        QVERIFY(mono->FindChar('V')->bitmap->Data() != chequered); // an outline among them

        const auto grey = Render("strike.ttf", At(10));
        QCOMPARE(grey->FindChar('A')->bitmap->Data().left(3), QByteArray::fromHex("f0f0f0"));

        QVERIFY(Render("strike.ttf", At(11, FontFormat::Standard))->FindChar('A')->bitmap->Data() !=
                chequered);
        RenderOptions options = At(10, FontFormat::Standard);
        options.useStrikes = false;
        QVERIFY(Render("strike.ttf", options)->FindChar('A')->bitmap->Data() != chequered);
    }

    void NamedInstances()
    {
        FreeTypeFace face(Test::FontPath("variable.ttf"), 0, FreeTypeLibrary());
        QVERIFY(face.IsMultiMaster());
        QCOMPARE(face.NamedInstanceNames(), (QStringList{u"Plain"_s, u"Heavy"_s}));
        QCOMPARE(face.Style(), (FaceStyle{0, 5, false}));
        face.SetNamedInstance(2);
        QCOMPARE(face.Style(), (FaceStyle{900, 5, false}));

        QList<int> widths;
        for (int index = 0; index <= 2; ++index) {
            RenderOptions options = At(50);
            options.faceIndex = index;
            widths.append(Render("variable.ttf", options)->FindChar('A')->info.width);
        }
        QCOMPARE(widths[0], widths[1]);
        QVERIFY(widths[2] > widths[1]);
        QCOMPARE(FontFileTTF(Test::FontPath("variable.ttf"), At(50)).FaceCount(), 3);
    }

    void Collections()
    {
        RenderOptions options = At(10, FontFormat::Standard);
        options.faceIndex = 1;
        FontFileTTC file(Test::FontPath("collection.ttc"), options);
        QCOMPARE(file.FaceCount(), 2);
        QCOMPARE(FaceNames(Test::FontPath("collection.ttc")).last(), u"Test Collection Oblique"_s);
        const auto font = file.Read();
        QCOMPARE(font->Name(), u"Test Collection Oblique"_s);
        QCOMPARE(int(font->FindChar('A')->info.bytesPerLine), 1); // 1 bit per pixel, of the size
        QCOMPARE(font->Metrics().height, Render("collection.ttc", At(10))->Metrics().height);
    }

    // A large font gives no room to a small one behind it.
    void MemoryOfOneFile()
    {
        FontLibrary library;
        library.AllowFile(1'000'000'000);
        QVERIFY(
            FreeTypeFace(QString::fromUtf8(SYSTEM_FONTS "/DejaVuSans.ttf"), 0, library).IsOpen());
        library.AllowFile(1'000'000'000);
        QVERIFY(!FreeTypeFace(Test::FontPath("packed.woff"), 0, library).IsOpen());
    }

    void NoFace()
    {
        FontFileTTF file(u"none.ttf"_s, At(10));
        QVERIFY(!file.OpenFault().isEmpty());
        QVERIFY(!file.Read()->HasEnabledChars());
        FreeTypeFace face;
        const FreeTypeFace copy = face;
        QCOMPARE(copy.Ascent() + copy.GlyphHeight('A') + copy.Kerning('A', 'V'), 0);
        QVERIFY(copy.UnicodeRanges().isEmpty() && copy.KerningPairs('A').empty());
        QCOMPARE(FreeTypeFace(Test::FontPath("outlines.ttf"), 0, FreeTypeLibrary()).UnicodeRanges(),
                 (QList<quint32>{1, 2, 3, 4}));
    }
};

GLYPHOR_TEST(TestScalable)

} // namespace Glyphor

#include "tst_scalable.moc"
