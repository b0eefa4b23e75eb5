#include "files/c_scanner.h"
#include "files/c_skimmer.h"
#include "files/c_survey.h"
#include "files/font_file_c.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

#include <random>

namespace Glyphor {

namespace {

QStringList Beside(QByteArray text)
{
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    return BesideTheFontOfFile(file);
}

} // namespace

class TestCSurvey : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    [[nodiscard]] QByteArray Text(FontFormat format, const QString& name = u"font.h"_s,
                                  const QByteArray& lineEnding = "\n") const
    {
        const QString path = folder_.filePath(name);
        FontFileC(path, {lineEnding, QStringList(u"log"_s)}).Write(*Test::MakeSampleFont(format));
        return Test::ReadAll(path);
    }

private Q_SLOTS:
    void WhatIsWrittenIsAFontAlone()
    {
        for (int format = 0; format < FormatCount; ++format) {
            for (const QByteArray& lineEnding : {"\r\n"_ba, "\r"_ba, "\n"_ba}) {
                for (const QString& name : {u"font.c"_s, u"font.h"_s}) {
                    const QByteArray text = Text(FontFormat(format), name, lineEnding);
                    QCOMPARE(Beside(text), QStringList());
                }
            }
        }
    }

    void Additions_data()
    {
        const Test::Rows<QByteArray, QStringList> rows;
        const auto row = [&rows](const QByteArray& code, const QStringList& names) {
            rows(code.left(40).constData(), code, names);
        };
        row("", {});
        row("// int a;\n/* int b; */\n", {});
        row("#if 1\n#endif\n#pragma once\n#include <GUI.h>\n", {});
        row("#ifdef __cplusplus\nextern \"C\" {\n#endif\n#ifdef __cplusplus\n}\n#endif\n", {});
        row("namespace Fonts {\n}\n", {});
        row("extern const GUI_FONT GUI_Font8_Tests_Plain_1;\n", {});
        row("extern const GUI_FONT GUI_FontOther;\n", {u"GUI_FontOther"_s});
        row("int a;", {u"a"_s});
        row("const char text[] = \"{;'\";\n", {u"text"_s});
        row("const char quote = '\"'; int b;\n", {u"quote"_s, u"b"_s});
        row("static int f(int x) {\n  if (x) { return '}'; }\n  return 0;\n}\nint b;",
            {u"f"_s, u"b"_s});
        row("void f(void);", {u"f"_s});
        row("struct Pair { int a; int b; };\n", {u"Pair"_s});
        row("typedef unsigned char U8;", {u"U8"_s});
        row("const unsigned char a[1] __attribute__((section(\".a\"))) = { 0 };", {u"a"_s});
        row("__attribute__((used)) const int a = 1;", {u"a"_s});
        row("enum { One, Two };\n", {u"enum"_s});
        row("#define LIMIT 5\n", {u"#define LIMIT 5"_s});
        row("#define FONT_H 1\n#define GUI_X 2\n", {});
        row("  #include \"other.h\"\n", {u"#include \"other.h\""_s});
        row("#define LONG \\\n  int c;\n", {u"#define LONG \\\n  int c;"_s});
        row("extern \"C\" { int a; }\n", {u"a"_s});
        row("int a; int a;", {u"a"_s});
    }

    // In front of the font and behind it.
    void Additions()
    {
        const auto [code, names] = Test::Row<QByteArray, QStringList>();
        for (const FontFormat format : {FontFormat::Legacy, FontFormat::Framed}) {
            const QByteArray text = Text(format);
            QCOMPARE(Beside(code + '\n' + text), names);
            QCOMPARE(Beside(text + code), names);
            QCOMPARE(Beside(text + QByteArray(code).replace('\n', "\r\n")).size(), names.size());
        }
        QCOMPARE(Beside(code), QStringList());
    }

    // What is skipped makes no difference, wherever something is added and pieces end.
    void SkippingHidesNothing()
    {
        std::mt19937 numbers(14);
        const QByteArrayList additions = {// as they may break in anywhere
                                          "int a;",
                                          "};",
                                          "{",
                                          "}",
                                          "/*",
                                          "*/",
                                          "//",
                                          "\"",
                                          "'",
                                          "#define A 1\n",
                                          " = {1};\n",
                                          "\\\n",
                                          "x[1]",
                                          "Plain",
                                          ", ",
                                          "\n",
                                          "\n};\nint b[] = {\n"};
        for (int round = 0; round < 2000; ++round) {
            QByteArray text = Text(round % 2 == 0 ? FontFormat::Framed : FontFormat::LegacyAA4);
            for (int count = 0; count < 1 + round % 2; ++count)
                text.insert(qsizetype(numbers()) % text.size(),
                            additions[qsizetype(numbers()) % additions.size()]);
            const QStringList names = BesideTheFont(CScanner(text).Text());
            QCOMPARE(Beside(text), names);

            CSkimmer skimmer;
            const qsizetype size = 1 + round % 70;
            for (qsizetype at = 0; at < text.size(); at += size)
                skimmer.Add(QByteArrayView(text).sliced(at, std::min(size, text.size() - at)));
            const auto rest = skimmer.Finish();
            const bool isAlone = rest && BesideTheFont(CScanner(*rest).Text()).isEmpty();
            QVERIFY(!isAlone || names.isEmpty());
        }
        CSkimmer skimmer;
        const QByteArray text = Text(FontFormat::AA4);
        skimmer.Add(text);
        const auto rest = skimmer.Finish();
        QVERIFY(rest && !rest->contains("unsigned char") && !rest->contains("// Code"));
    }

    void FurtherFonts()
    {
        const QByteArray second = Text(FontFormat::AA2).replace("Plain_1", "Other");
        const QStringList names = Beside(Text(FontFormat::Standard) + second);
        for (const char* const part : {"", "_CharInfo", "_Prop1"})
            QVERIFY(names.contains(u"GUI_Font8_Tests_Other"_s + QString::fromUtf8(part)));
        QVERIFY(names.contains(u"acGUI_Font8_Tests_Other_0041"_s));
        QVERIFY(!names.join(u' ').contains(u"Plain"_s));

        Test::RecordingInterface interface;
        const QString path = folder_.filePath(u"both.c"_s);
        Test::WriteAll(path, Text(FontFormat::Standard) + second);
        QVERIFY(FontFileC(path, {}).Read()->HasEnabledChars());
        QCOMPARE(interface.warnings.size(), 1);
        QVERIFY(interface.warnings[0].startsWith(
            u"The file holds more than its first font, which alone was read. Beside it: "
            "GUI_Font8_Tests_Other, acGUI_Font8_Tests_Other_0041, "_s));
        QVERIFY(interface.warnings[0].endsWith(u", ..."_s));
    }

    void WideCharacters()
    {
        const QString path = folder_.filePath(u"wide.c"_s);
        const QByteArray text = Text(FontFormat::Standard);
        QByteArray wide;
        for (const char character : text)
            wide += {character, '\0'};
        QByteArray bigEndian = QByteArray(1, '\0') + wide.chopped(1);
        for (const QByteArray& contents : {"\xFF\xFE"_ba + wide, "\xFE\xFF"_ba + bigEndian}) {
            Test::WriteAll(path, contents);
            QVERIFY(Test::FailureOf([&] {
                        (void)FontFileC(path, {}).Read();
                    }).contains(u" is encoded in UTF-16 or UTF-32. Save it in UTF-8"_s));
        }
        Test::WriteAll(path, "\xEF\xBB\xBF" + text); // of UTF-8
        QVERIFY(FontFileC(path, {}).Read()->HasEnabledChars());
    }
};

GLYPHOR_TEST(TestCSurvey)

} // namespace Glyphor

#include "tst_c_survey.moc"
