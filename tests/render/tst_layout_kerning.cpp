#include "app/progress.h"
#include "render/font_file_scalable.h"
#include "render/layout_kerning.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QFile>
#include <QTest>

namespace Glyphor {

namespace {

// Shapes pairs of characters one by one, with all that HarfBuzz has of its own.
class PairShaper
{
public:
    PairShaper(const QString& path, const FreeTypeFace& face, int instance)
    {
        hb_blob_t* const blob = hb_blob_create_from_file(QFile::encodeName(path).constData());
        face_ = hb_face_create(blob, static_cast<unsigned>(face.MemberIndex()));
        hb_blob_destroy(blob);
        font_ = hb_font_create(face_);
        const FT_Face handle = face.Handle();
        hb_font_set_scale(font_,
                          int(FT_MulFix(handle->units_per_EM, handle->size->metrics.x_scale)),
                          int(FT_MulFix(handle->units_per_EM, handle->size->metrics.y_scale)));
        if (instance > 0)
            hb_font_set_var_named_instance(font_, unsigned(instance - 1));
        for (const hb_tag_t table : {HB_OT_TAG_GSUB, HB_OT_TAG_GPOS}) {
            hb_tag_t tags[200];
            unsigned count = 200;
            hb_ot_layout_table_get_feature_tags(face_, table, 0, &count, tags);
            for (unsigned index = 0; index < count; ++index)
                features_.push_back(
                    {tags[index], 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END});
        }
    }
    ~PairShaper()
    {
        hb_font_destroy(font_);
        hb_face_destroy(face_);
    }
    PairShaper(const PairShaper&) = delete;
    PairShaper& operator=(const PairShaper&) = delete;

    // In whole pixels; nothing where the two are not shown by two glyphs.
    [[nodiscard]] std::optional<int> Distance(quint16 left, quint16 right)
    {
        const auto kerned = Place(left, right, 1);
        const auto unkerned = Place(left, right, 0);
        if (!kerned || !unkerned)
            return std::nullopt;
        return (*kerned - *unkerned + 32) >> 6;
    }

private:
    std::optional<int> Place(quint16 left, quint16 right, quint32 kern)
    {
        hb_buffer_t* const buffer = hb_buffer_create();
        hb_buffer_add(buffer, left, 0);
        hb_buffer_add(buffer, right, 1);
        hb_buffer_set_content_type(buffer, HB_BUFFER_CONTENT_TYPE_UNICODE);
        hb_buffer_set_language(buffer, hb_language_from_string("en", -1));
        hb_buffer_guess_segment_properties(buffer);
        std::vector<hb_feature_t> features = features_;
        features.push_back(
            {HB_TAG('k', 'e', 'r', 'n'), kern, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END});
        hb_shape(font_, buffer, features.data(), unsigned(features.size()));
        unsigned length = 0;
        const hb_glyph_position_t* const positions = hb_buffer_get_glyph_positions(buffer, &length);
        std::optional<int> place;
        if (length == 2)
            place = positions[0].x_advance + positions[1].x_offset;
        hb_buffer_destroy(buffer);
        return place;
    }

    hb_face_t* face_ = nullptr;
    hb_font_t* font_ = nullptr;
    std::vector<hb_feature_t> features_;
};

// At this height the letters of the font for layouts have 100 pixels to their em.
constexpr int EmOf100 = 80;

RenderOptions AtHeight(int height, int faceIndex = 0)
{
    RenderOptions options;
    options.height = height;
    options.faceIndex = faceIndex;
    return options;
}

std::unique_ptr<Font> Rendered(const QString& path, const RenderOptions& options,
                               const CodeSet& codes)
{
    const auto file = MakeScalableFontFile(path, options);
    file->SetCharacterFilter(codes);
    return file->Read();
}

CodeSet AllCodes()
{
    CodeSet codes;
    codes.SetRange(0, CodeSet::Limit - 1, true);
    return codes;
}

int DistanceIn(const Font& font, quint16 left, quint16 right)
{
    for (const KerningPair& pair : font.FindChar(left)->kerning) {
        if (pair.right == right)
            return pair.distance;
    }
    return 0;
}

} // namespace

class TestLayoutKerning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SameAsEachPairAlone_data()
    {
        const Test::Rows<QString, int, int, int> row; // path, height, face, every how manieth code
        row("all kinds", Test::FontPath("layout.ttf"), 40, 0, 1);
        row("small", Test::FontPath("layout.ttf"), 9, 0, 1);
        row("contexts", Test::FontPath("contexts.ttf"), 100, 0, 1);
        row("unknown classes of glyphs", Test::FontPath("unclassed.ttf"), 40, 0, 1);
        row("default instance", Test::FontPath("moving.ttf"), 100, 0, 1);
        row("heavy instance", Test::FontPath("moving.ttf"), 100, 1, 1);
        row("PostScript outlines", u"" INTER_FONT ""_s, 48, 0, 11);
        const QString cjk = u"/usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc"_s;
        if (QFile::exists(cjk)) // where the machine has it
            row("Chinese, Japanese and Korean", cjk, 48, 0, 203);
        row("large variable font", u"" INTER_VARIABLE_FONT ""_s, 60, 9, 13);
    }

    void SameAsEachPairAlone()
    {
        const auto [path, height, face, step] = Test::Row<QString, int, int, int>();
        CodeSet codes;
        FreeTypeFace plain(path, 0, FreeTypeLibrary());
        plain.SetPixelSize(height);
        int place = 0;
        plain.WalkCharmap([&, every = step](quint16 code, FT_UInt) {
            if (place++ < 120 || place % every == 0)
                codes.Set(code, true);
            return true;
        });
        const auto font = Rendered(path, AtHeight(height, face), codes);
        QVERIFY(font->HasKerning());
        PairShaper shaper(path, plain, face);
        int pairs = 0;
        for (const quint16 left : font->SavedCodes()) {
            std::vector<int> distances(CodeSet::Limit);
            for (const KerningPair& pair : font->FindChar(left)->kerning)
                distances[pair.right] = pair.distance;
            for (const quint16 right : font->SavedCodes()) {
                const auto alone = shaper.Distance(left, right);
                pairs += alone.value_or(0) != 0 ? 1 : 0;
                if (alone && *alone != distances[right])
                    QFAIL(qPrintable(u"U+%1 U+%2: %3 instead of %4"_s.arg(left, 4, 16)
                                         .arg(right, 4, 16)
                                         .arg(distances[right])
                                         .arg(*alone)));
            }
        }
        QVERIFY2(pairs > 1, qPrintable(QString::number(pairs)));
    }

    void ScriptsHaveTheirOwn()
    {
        const auto font = Rendered(Test::FontPath("layout.ttf"), AtHeight(EmOf100), AllCodes());
        QCOMPARE(DistanceIn(*font, 'A', 'V'), -10);
        QCOMPARE(DistanceIn(*font, 'A', 'A'), 0); // in Turkish only
        QCOMPARE(DistanceIn(*font, '-', 'T'), -6);
        QCOMPARE(DistanceIn(*font, '-', 0x3A4), -7);
        QCOMPARE(DistanceIn(*font, '-', '-'), 0);
        QCOMPARE(DistanceIn(*font, 0x5D0, 0x5D1), -9);
        QCOMPARE(DistanceIn(*font, 'E', ','), 4);  // which moves by itself
        QCOMPARE(DistanceIn(*font, 'V', 'E'), -5); // in no class
        QCOMPARE(DistanceIn(*font, 0xC6, 'V'), DistanceIn(*font, 'E', 'V'));
    }

    void OnlyWhatIsRendered()
    {
        CodeSet codes;
        for (const char code : {'A', 'T'})
            codes.Set(quint16(code), true);
        const auto font = Rendered(Test::FontPath("layout.ttf"), AtHeight(EmOf100), codes);
        QCOMPARE(font->FindChar('A')->kerning, (std::vector<KerningPair>{{'T', -1}}));
        RenderOptions without = AtHeight(EmOf100);
        without.findsLayoutKerning = false;
        const auto plain = Rendered(Test::FontPath("layout.ttf"), without, codes);
        QVERIFY(!plain->HasKerning() && plain->FindChar('A')->kerning.empty());
    }

    void ShiftJisHasItsCodes()
    {
        RenderOptions options = AtHeight(2 * EmOf100);
        options.format = FontFormat::Legacy;
        options.encoding = EncodingType::ShiftJis;
        const auto font = Rendered(Test::FontPath("layout.ttf"), options, AllCodes());
        QCOMPARE(DistanceIn(*font, 0x839F, 0x83B1), -22); // Alpha and Tau
    }

    void DamagedTables()
    {
        Test::RecordingInterface interface;
        (void)Rendered(Test::FontPath("loose.ttf"), AtHeight(20), AllCodes());
        QCOMPARE(interface.warnings, QStringList());
    }

    void NoTimeForEverything()
    {
        const Test::RecordingInterface interface;
        FreeTypeFace face(Test::FontPath("everything.ttf"), 0, FreeTypeLibrary());
        face.SetPixelSize(20);
        LayoutKerning kerning(face, *HarfBuzz::Loaded());
        std::vector<ShownGlyph> characters;
        for (int code = 0; code < CodeSet::Limit - 1; ++code)
            characters.push_back({quint16(code), FT_UInt(code)});
        QVERIFY(!kerning.FindPairs(
            characters, [](auto, const auto&) { return true; }, LayoutKerning::MaxWork / 100));
    }

    void NoLibrary() { QVERIFY(!HarfBuzz(u"no-such-library"_s).IsLoaded()); }

    void Stops()
    {
        struct Stopper : Test::RecordingInterface
        {
            bool ProgressChanged(const QString& text, int, int) override
            {
                return !text.contains(u"kerning"_s);
            }
        } interface;
        QVERIFY_THROWS_EXCEPTION(
            WorkStopped, (void)Rendered(Test::FontPath("layout.ttf"), AtHeight(20), AllCodes()));
    }
};

GLYPHOR_TEST(TestLayoutKerning)

} // namespace Glyphor

#include "tst_layout_kerning.moc"
