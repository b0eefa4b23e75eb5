#include "app/critical_exception.h"
#include "render/font_file_scalable.h"
#include "render/glyph_substitution.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

namespace {

using Features = std::vector<FontFeature>;

FreeTypeFace LayoutFont()
{
    return {Test::FontPath("layout.ttf"), 0, FreeTypeLibrary()};
}

QString NameOfGlyph(const FreeTypeFace& face, FT_UInt glyph)
{
    char name[64] = "";
    FT_Get_Glyph_Name(face.Handle(), glyph, name, sizeof name);
    return QString::fromLatin1(name);
}

} // namespace

class TestFeatures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GlyphsAreReplaced_data()
    {
        const Test::Rows<Features, char, QString> row;
        row("single", {{u"zero"_s}}, '0', u"zero.slash"_s);
        row("not this one", {{u"zero"_s}}, '1', u"one"_s);
        row("in the table's order", {{u"tnum"_s}, {u"zero"_s}}, '0', u"zero.slash.tab"_s);
        row("one of two", {{u"tnum"_s}}, '0', u"zero.tab"_s);
        row("first alternate", {{u"salt"_s}}, 'a', u"a.round"_s);
        row("second alternate", {{u"salt"_s, 2}}, 'a', u"a.tall"_s);
        row("no third one", {{u"salt"_s, 3}}, 'a', u"a"_s);
        row("of several", {{u"liga"_s}}, 'A', u"A"_s);
        row("of another language", {{u"c2sc"_s}}, 'a', u"a"_s);
    }

    void GlyphsAreReplaced()
    {
        const auto [features, code, expected] = Test::Row<Features, char, QString>();
        const FreeTypeFace face = LayoutFont();
        GlyphSubstitution substitution(face, features);
        const FT_UInt glyph = FT_Get_Char_Index(face.Handle(), FT_ULong(code));
        QCOMPARE(NameOfGlyph(face, substitution.Replacement(glyph)), expected);
    }

    void SameAsShaping()
    {
        const FreeTypeFace face(u"" INTER_FONT ""_s, 0, FreeTypeLibrary());
        GlyphSubstitution substitution(face, Features{{u"tnum"_s}, {u"zero"_s}, {u"ss01"_s}});
        hb_blob_t* const blob = hb_blob_create_from_file(INTER_FONT);
        hb_face_t* const shapedFace = hb_face_create(blob, 0);
        hb_font_t* const font = hb_font_create(shapedFace);
        int replaced = 0;
        for (FT_ULong code = ' '; code < 0x250; ++code) {
            const FT_UInt glyph = FT_Get_Char_Index(face.Handle(), code);
            hb_buffer_t* const buffer = hb_buffer_create();
            hb_buffer_add(buffer, hb_codepoint_t(code), 0);
            hb_buffer_set_content_type(buffer, HB_BUFFER_CONTENT_TYPE_UNICODE);
            hb_buffer_guess_segment_properties(buffer);
            std::vector<hb_feature_t> features;
            for (const char* const text : {"tnum", "zero", "ss01", "-ccmp", "-calt"})
                hb_feature_from_string(text, -1, &features.emplace_back());
            hb_shape(font, buffer, features.data(), unsigned(features.size()));
            unsigned length = 0;
            const hb_glyph_info_t* const infos = hb_buffer_get_glyph_infos(buffer, &length);
            const FT_UInt expected = length == 1 ? infos[0].codepoint : glyph;
            hb_buffer_destroy(buffer);
            if (glyph != 0 && code != 0xAD) { // a soft hyphen is shaped away
                QCOMPARE(substitution.Replacement(glyph), expected);
                replaced += expected != glyph ? 1 : 0;
            }
        }
        QVERIFY(replaced > 10);
        hb_font_destroy(font);
        hb_face_destroy(shapedFace);
        hb_blob_destroy(blob);
    }

    void CharactersShowThem()
    {
        Test::RecordingInterface interface;
        RenderOptions options;
        options.height = 80;
        options.features = {{u"tnum"_s}, {u"liga"_s}};
        CodeSet codes;
        codes.SetRange('0', 'z', true);
        const auto file = MakeScalableFontFile(Test::FontPath("layout.ttf"), options);
        file->SetCharacterFilter(codes);
        const auto font = file->Read();
        QCOMPARE(int(font->FindChar('0')->info.cursorDistance), 60);
        QCOMPARE(font->FindChar('1')->kerning, (std::vector<KerningPair>{{'1', -20}}));
        QCOMPARE(
            interface.warnings,
            QStringList(u"The feature liga replaces none of the characters with one other."_s));
    }

    void Refusals_data()
    {
        const Test::Rows<const char*, QString> row;
        row("unknown", "layout.ttf",
            u"The font has no feature smcp: it has c2sc, liga, salt, tnum, zero."_s);
        row("no table", "outlines.ttf", u"The font has no feature smcp: it has none."_s);
        row("noise", "loose.ttf", u"The font has no feature smcp: it has none."_s);
    }

    void Refusals()
    {
        const auto [file, text] = Test::Row<const char*, QString>();
        const FreeTypeFace face(Test::FontPath(file), 0, FreeTypeLibrary());
        try {
            const GlyphSubstitution substitution(face, Features{{u"smcp"_s}});
            QFAIL("no refusal");
        } catch (const CriticalException& error) {
            QCOMPARE(error.Text(), text);
        }
    }
};

GLYPHOR_TEST(TestFeatures)

} // namespace Glyphor

#include "tst_features.moc"
