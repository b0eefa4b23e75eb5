#include "files/character_header.h"
#include "support/c_files.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

class TestCharacterHeader : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    QByteArray HeaderOf(const Font& font) const
    {
        const QString path = folder_.filePath(u"chars.h"_s);
        CharacterHeader(path, {"\n", std::nullopt}).Write(font);
        return Test::ReadAll(path);
    }

    static void Name(Font& font, quint16 code, const QString& name, const QString& origin)
    {
        font.AddChar(code).label =
            std::make_shared<const CharacterLabel>(CharacterLabel{name, origin});
    }

private Q_SLOTS:
    void MacroNames_data()
    {
        const Test::Rows<QByteArray, QByteArray> row;
        for (const auto& [name, macro] : {std::pair("UiIcon", "UI_ICON"),
                                          {"UI Icon", "UI_ICON"},
                                          {"ui-icon", "UI_ICON"},
                                          {"UIIcon24", "UI_ICON24"},
                                          {"Icon24Bold", "ICON24_BOLD"},
                                          {"uniF02D1", "UNI_F02D1"},
                                          {"__a__b_", "A_B"},
                                          {"\xE9", ""},
                                          {"", ""}})
            row(name, name, macro);
    }

    void MacroNames()
    {
        const auto [name, macro] = Test::Row<QByteArray, QByteArray>();
        QCOMPARE(MacroName(name), macro);
    }

    void Writes()
    {
        Font font(FontFormat::AA4, EncodingType::Unicode);
        font.SetName(u"UiIcon"_s);
        font.SetHeight(1);
        Name(font, 0x41, {}, u"U+1F600"_s);
        Name(font, 0xE001, u"heart"_s, u"U+F02D1 he*/art/*"_s);
        Name(font, 0xE002, u"Heart"_s, u"a\n\\"_s);
        Name(font, 0xE003, u"heart_utf8"_s, {});
        Name(font, 0xE004, u"characters_h"_s, {});
        Name(font, 0xE005, u"disabled"_s, {});
        font.SetEnabled(0xE005, 0xE005, false);
        Name(font, 0xDC00, u"no character"_s, {});
        Name(font, 0, u"nul"_s, {});
        font.AddChar(0xE006);
        const QByteArray text = HeaderOf(font);
        QCOMPARE(text.mid(text.indexOf('\n') + 2), QByteArray(R"(#ifndef UI_ICON_CHARACTERS_H
#define UI_ICON_CHARACTERS_H

#define UI_ICON_NUL                     0x0000 /*  */
#define UI_ICON_U0041                   0x0041 /* U+1F600 */
#define UI_ICON_U0041_UTF8              "\x41"
#define UI_ICON_NO_CHARACTER            0xDC00 /*  */
#define UI_ICON_HEART                   0xE001 /* U+F02D1 he* /art/ * */
#define UI_ICON_HEART_UTF8              "\xEE\x80\x81"
#define UI_ICON_HEART_E002              0xE002 /* a \ */
#define UI_ICON_HEART_E002_UTF8         "\xEE\x80\x82"
#define UI_ICON_HEART_UTF8_E003         0xE003 /*  */
#define UI_ICON_HEART_UTF8_E003_UTF8    "\xEE\x80\x83"
#define UI_ICON_CHARACTERS_H_E004       0xE004 /*  */
#define UI_ICON_CHARACTERS_H_E004_UTF8  "\xEE\x80\x84"

#endif
)"));
        Test::WriteAll(folder_.filePath(u"use.c"_s),
                       "#include \"chars.h\"\n#include \"chars.h\"\n#include <string.h>\n"
                       "int main(void) { return strcmp(\"A\" UI_ICON_HEART_UTF8 \"A\", \"A"
                       "\xEE\x80\x81"
                       "A\") != 0 || UI_ICON_HEART != 0xE001; }\n");
        for (const QStringList& language : {QStringList{u"-std=c99"_s}, {u"-xc++"_s}}) {
            const QStringList all =
                QStringList{u"-Wall"_s,     u"-Wextra"_s, u"-Werror"_s,
                            u"-pedantic"_s, u"-o"_s,      folder_.filePath(u"use"_s)} +
                language + QStringList{folder_.filePath(u"use.c"_s)};
            QCOMPARE(Test::OutputOf(u"gcc"_s, all), QByteArray());
            QCOMPARE(QProcess::execute(folder_.filePath(u"use"_s)), 0);
        }
    }

    void OtherFonts()
    {
        Font font(FontFormat::Legacy, EncodingType::ShiftJis);
        font.SetHeight(1);
        font.SetName(u"8 あ"_s);
        QVERIFY(!HasNamedChars(font));
        QVERIFY(HeaderOf(font).contains("#define _8_CHARACTERS_H\n\n#endif\n"));
        Name(font, 0x8140, u"b"_s, {});
        QVERIFY(HasNamedChars(font));
        QVERIFY(HeaderOf(font).contains("#define _8_B_SJIS  \"\\x81\\x40\"\n"));
        font.SetName(u"あ"_s);
        QVERIFY(HeaderOf(font).contains("#define FONT_B       0x8140"));
    }
};

GLYPHOR_TEST(TestCharacterHeader)

} // namespace Glyphor

#include "tst_character_header.moc"
