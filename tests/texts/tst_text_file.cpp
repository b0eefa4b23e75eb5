#include "app/critical_exception.h"
#include "support/cost.h"
#include "support/rows.h"
#include "support/test_main.h"
#include "texts/text_file.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace Glyphor {

namespace {

// With the zeros in the text.
template <std::size_t Size>
QByteArray Bytes(const char (&text)[Size])
{
    return {text, Size - 1};
}

QByteArray Utf16(const char* text)
{
    QByteArray bytes("\xff\xfe");
    for (; *text != '\0'; ++text)
        bytes.append(*text).append('\0');
    return bytes;
}

} // namespace

class TestTextFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Characters_data()
    {
        // File name, contents, the characters in their order.
        const Test::Rows<QString, QByteArray, QString> row;
        row("plain", u"a.txt"_s, "Grün\tA\r\nB\x7f\xc2\x85\xef\xbb\xbf"_ba, u"GrünAB"_s);
        row("plain, empty", u"a"_s, ""_ba, u""_s);
        row("beyond 16 bits", u"a.text"_s, "\xf0\x9f\x98\x80\xef\xbf\xbf"_ba, u"😀\uffff"_s);
        row("UTF-8 with a mark", u"a.json"_s, "\xef\xbb\xbf[\"ab\"]"_ba, u"ab"_s);
        row("UTF-16, little", u"a.txt"_s, "\xff\xfe\xac\x20\x3d\xd8\x00\xde"_ba, u"€😀"_s);
        row("UTF-16, big", u"a.JSON"_s, Bytes("\xfe\xff\0[\0\"\x20\xac\0\"\0]"), u"€"_s);
        row("UTF-16, XML that says so", u"a.ts"_s,
            Utf16("<?xml version='1.0' encoding='UTF-16'?><TS><message>"
                  "<translation>ab</translation></message></TS>"),
            u"ab"_s);
        row("zero bytes", u"a.txt"_s, Bytes("a\0b"), u"ab"_s);

        row("CSV", u"a.csv"_s, "a,\"b,\"\"c\"\"\nd\"\r\ne\"f;\n"_ba, u"ab,\"c"_s + u"def;"_s);
        row("CSV, semicolons", u"a.CSV"_s, "a;\"b\";c\nd,e;"_ba, u"abcd,e"_s);
        row("CSV, tabs", u"a.csv"_s, "a\tb,\tc"_ba, u"ab,c"_s);
        row("CSV, separator told", u"a.csv"_s, "sep=;\na,b;c"_ba, u"a,bc"_s);

        row("PO", u"a.po"_s,
            "# c\nmsgid \"\"\nmsgstr \"H\"\n\"h\\n\"\n\n#: f.c:1\n#, c-format\nmsgctxt \"x\"\n"
            "msgid \"s\"\nmsgid_plural \"p\"\nmsgstr[0] \"a\"\n\"b\\\"\"\nmsgstr[1] \"c\\n\"\n"
            "#, c-format, fuzzy\n#| msgid \"o\"\nmsgid \"s\"\nmsgstr \"F\"\n"
            "msgid \"s\"\nmsgstr \"d\" \"e\"\r\n#, fuzzy\n#~ msgid \"s\"\n#~ msgstr \"O\"\n\n"
            "msgid \"s\"\n  msgstr \"\\303\\244\\xc3\\xb6\""_ba,
            u"ab\"cdeäö"_s);
        row("PO, message in a context that is empty", u"a.pot"_s,
            "msgctxt \"c\"\nmsgid \"\"\nmsgstr \"a\"\ndomain \"x\"\n"_ba, u"a"_s);
        row("PO, another encoding that does not matter", u"a.po"_s,
            "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=ISO-8859-1\\n\"\n"_ba, u""_s);

        row("TS", u"a.Ts"_s,
            "<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n<TS><context><name>n</name>\n"
            "<message><source>s<byte value='64'/></source><comment>c</comment>"
            "<translation>a&amp;<![CDATA[<]]><byte value='x62'/><byte value='99'/>&#228;"
            "</translation></message>"
            "<message><translation type='unfinished'>U</translation></message>"
            "<message><translation type='vanished'>V</translation></message>"
            "<message numerus='yes'><translation type='unfinished'><numerusform>W</numerusform>"
            "</translation></message>"
            "<message numerus='yes'><translation> \n<numerusform>d</numerusform>\n"
            "<numerusform variants='yes'> <lengthvariant>e</lengthvariant></numerusform>"
            "</translation></message>"
            "<message><translation variants='yes'> <lengthvariant>f</lengthvariant>"
            "</translation></message></context></TS>"_ba,
            u"a&<bcädef"_s);
        row("XLIFF 1.2", u"a.xlf"_s,
            "<xliff version='1.2'><file><body><trans-unit id='1'><source>s</source><target>a"
            "<g id='1'>b<bpt id='2'>&lt;i<sub>c</sub>J</bpt></g><mrk>d</mrk><x id='3'/></target>"
            "<note>n</note><alt-trans><target>T</target></alt-trans></trans-unit></body></file>"
            "</xliff>"_ba,
            u"abcd"_s);
        row("XLIFF 2.0", u"a.XLIFF"_s,
            "<x:xliff version='2.0' xmlns:x='u'><x:unit><m:matches xmlns:m='v'><m:match><x:target>T"
            "</x:target></m:match></m:matches><x:segment><x:source>s</x:source><x:target>a"
            "<x:pc id='1'>b</x:pc><x:ph id='2'/><x:cp hex='00E4'/></x:target></x:segment></x:unit>"
            "</x:xliff>"_ba,
            u"abä"_s);

        row("JSON", u"a.json"_s,
            "{\"k\" : \"a\\n\\\"\\\\\\/\", \"l\": [\"b\", {\"m\": \"\\u00e4\\uD83D\\uDE00c\", \"n\": 12}, true, \"d\"]}"_ba,
            u"a\"\\/bä😀cd"_s);

        row("C strings", u"a.c"_s,
            "puts(\"a\\t\\\"\\x62\\143\\?\" \"\\xE2\\x82\\xAC\" \"\\u00E4\\U0001F600\\u{f6}\" u8\"d\");"_ba,
            u"a\"bc?€ä😀öd"_s);
        row("C++ wide strings", u"a.cpp"_s,
            "L\"\\xE4\xc3\xb6\" u\"\\xD83D\\xDE00\" U\"\\u20AC\" prefix\"a\""_ba, u"äö😀€a"_s);
        row("8-bit strings", u"a.h"_s, "\"\\xE4\" \"\\344\\xC3\\x80\\x85\""_ba, u"äÀ"_s);
        row("raw strings", u"a.hpp"_s, "R\"(a\\x62)\" u8R\"x(\")c)\" )x\" LR\"(d)\""_ba,
            u"a\\x62\")c d"_s);
        row("no strings", u"a.cc"_s,
            "#include \"i.h\" // \"\n  # error don't \"q\n#pragma message(\"p\") /* \" \n \" */\n"
            "// \"c\\\n\"d\nextern \"C\" { char q = '\"', r = '\\'', s = L'\"'; }\n"
            "int n = 1'000'000; /* \"e\" */ #define T \"a\"\nx = 0x1'F; \"b\""_ba,
            u"ab"_s);
        row("disabled source", u"a.hxx"_s,
            "#if 0 /* c */\n\"A\" don't\n#if "
            "X\n#else\n\"B\"\n#endif\n\"/*\"\n#else\n\"a\"\n#endif\n"
            "#if 0 || X\n\"b\"\n#endif\n#if 0\n"_ba,
            u"ab"_s);
        row("continued lines", u"a.cxx"_s, "#define T \\\r\n \"a\\\r\nb\\\nc\"\n"_ba, u"abc"_s);
    }

    void Characters()
    {
        const auto [name, contents, expected] = Test::Row<QString, QByteArray, QString>();
        std::u32string found;
        for (const TextCharacter& character : Read(name, contents))
            found.push_back(character.code);
        QCOMPARE(QString::fromStdU32String(found), expected);
    }

    void Lines_data()
    {
        // File name, contents with the lines of the letters in them.
        const Test::Rows<QString, QByteArray> row;
        row("plain", u"a"_s, "1\r\n2\n\n4\r5"_ba);
        row("CSV", u"a.csv"_s, "1,\"1\n2\"\n3"_ba);
        row("PO", u"a.po"_s, "msgid \"a\"\nmsgstr \"2\"\n\"3\"\r\n\"4\""_ba);
        row("XML", u"a.ts"_s,
            "<TS>\n<message><translation>\n3\n4<byte\nvalue='53'/>5</translation></message>\n</TS>"_ba);
        row("JSON", u"a.json"_s, "{\"k\":\n\"2\", \"l\"\n:\n[\"4\"\r\n,\"5\"]}"_ba);
        row("C", u"a.c"_s, "/*\n*/\"2\" //\\\n\n\"4\\\n5\" R\"(\n6)\" \"6\""_ba);
    }

    void Lines()
    {
        const auto [name, contents] = Test::Row<QString, QByteArray>();
        const auto characters = Read(name, contents);
        QVERIFY(characters.size() >= 2);
        for (const TextCharacter& character : characters)
            QCOMPARE(character.line, int(character.code) - '0');
    }

    void Damage_data()
    {
        // File name, contents, reason, line.
        const Test::Rows<QString, QByteArray, QString, int> row;
        row("not UTF-8", u"a"_s, "a\n\xe4 "_ba, u"It is not valid UTF-8."_s, 2);
        row("overlong", u"a"_s, "\xc0\x80"_ba, u"It is not valid UTF-8."_s, 1);
        row("cut", u"a.c"_s, "\n\n\xe2\x82"_ba, u"It is not valid UTF-8."_s, 3);
        row("odd UTF-16", u"a"_s, Bytes("\xff\xfe\n\0a"),
            u"It ends in the middle of a character."_s, 2);
        row("half a pair", u"a"_s, Bytes("\xff\xfe\n\0\x3d\xd8"), Half, 2);
        row("UTF-32", u"a"_s, Bytes("\xff\xfe\0\0a\0\0\0"), u"It is in UTF-32; save it in UTF-8."_s,
            1);
        row("UTF-16 without a mark", u"a"_s, Utf16("ab").sliced(2),
            u"It seems to be in UTF-16, but it has no byte order mark."_s, 1);
        row("CSV", u"a.csv"_s, "a\n\"b\"\"\n"_ba, u"A field in quotes is not closed."_s, 2);
        row("PO, open string", u"a.po"_s, "msgid \"a\"\nmsgstr \"b\n\""_ba, Open, 2);
        row("PO, other keyword", u"a.po"_s, "\nmsg \"a\""_ba, u"It is no catalogue of gettext."_s,
            2);
        row("PO, no keyword", u"a.po"_s, "\"a\""_ba, u"A string lacks its keyword."_s, 1);
        row("PO, cut", u"a.po"_s, "msgid \"a\"\n"_ba, u"A message lacks its translation."_s, 2);
        row("PO, no message", u"a.po"_s, "msgstr \"\""_ba, u"A translation lacks its message."_s,
            1);
        row("PO, other encoding", u"a.po"_s,
            "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=latin1\\n\"\n# \xe4"_ba,
            u"It is in the encoding latin1; convert it to UTF-8."_s, 3);
        row("XML", u"a.ts"_s, "<TS>\n<message>\n</TS>"_ba, u"It is not valid XML: "_s, 3);
        row("XML, other encoding", u"a.ts"_s, "<?xml version='1.0' encoding='latin1'?><TS/>"_ba,
            u"It is in the encoding latin1; convert it to UTF-8."_s, 1);
        row("XML, other root", u"a.xlf"_s, "\n<a/>"_ba, u"Its first element is not xliff."_s, 2);
        row("XML, no character", u"a.ts"_s,
            "<TS><message><translation>\n<byte value='xd800'/></translation></message></TS>"_ba,
            u"The value \"d800\" is no character."_s, 2);
        row("JSON", u"a.json"_s, "[1,\n2,]"_ba, u"It is not valid JSON: "_s, 2);
        row("JSON, damaged behind texts", u"a.json"_s, "[\"a\",\n\"\",\"\\\"\"\n\"\"]"_ba,
            u"It is not valid JSON: "_s, 3);
        row("JSON, damaged key", u"a.json"_s, "\n{\"\\u12\":1}"_ba, u"It is not valid JSON: "_s, 2);
        row("JSON, open string", u"a.json"_s, "[\n\"a\n\"]"_ba, Open, 2);
        row("JSON, open at the end", u"a.json"_s, "[\"a\\\""_ba, Open, 1);
        row("JSON, no escape", u"a.json"_s, "[\"\\\xc3\xa4\"]"_ba,
            u"An escape sequence has no meaning."_s, 1);
        row("JSON, no digits", u"a.json"_s, "[\"\\u+123\"]"_ba,
            u"An escape sequence lacks its digits."_s, 1);
        row("JSON, few digits", u"a.json"_s, "[\"\\uD83D\\u12\"]"_ba,
            u"An escape sequence lacks its digits."_s, 1);
        row("JSON, half a pair", u"a.json"_s, "[\n\"\\uD83Dx\"]"_ba, Half, 2);
        row("JSON, second half", u"a.json"_s, "[\"\\uDE00\"]"_ba, Half, 1);
        row("C, open string", u"a.c"_s, "\n\"a\\\nb\nc\""_ba, Open, 2);
        row("C, open at the end", u"a.c"_s, "\"a\\"_ba, Open, 1);
        row("C, open raw string", u"a.cpp"_s, "\n R\"x(\n)\""_ba, Open, 2);
        row("C, open character", u"a.c"_s, "'\\'\n'"_ba, u"A character literal is not closed."_s,
            1);
        row("C, open comment", u"a.c"_s, "\n/*/\n"_ba, u"A comment is not closed."_s, 2);
        row("C, half a pair", u"a.c"_s, "\nu\"\\xD83D\""_ba, Half, 2);
        row("C, number for no byte", u"a.c"_s, "\"\\x100\""_ba, TooLarge, 1);
        row("C, endless number", u"a.c"_s, "L\"\\x" + QByteArray(1000, '1') + '"', TooLarge, 1);
        row("C, no digits", u"a.c"_s, "\"\\u\""_ba, u"An escape sequence lacks its digits."_s, 1);
    }

    void Damage()
    {
        const auto [name, contents, reason, line] = Test::Row<QString, QByteArray, QString, int>();
        try {
            static_cast<void>(Read(name, contents));
            QFAIL("read");
        } catch (const CriticalException& failure) {
            const QString path = folder_.filePath(name);
            QCOMPARE(failure.Title(), u"Error opening file!"_s);
            // The toolkit's own words may follow.
            const QString text = u"The file %1 could not be read: %2"_s.arg(path, reason);
            QCOMPARE(failure.Text().first(std::min(text.size(), failure.Text().size())), text);
            QCOMPARE(failure.Where().file, path);
            QCOMPARE(failure.Where().line, line);
        }
    }

    void WhatIsNoFile()
    {
        const QString pipe = folder_.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString& path : {folder_.path(), pipe, folder_.filePath(u"missing"_s)}) {
            try {
                static_cast<void>(ReadTextFile(path));
                QFAIL("read");
            } catch (const CriticalException& failure) {
                QVERIFY(failure.Text().contains(path));
                QCOMPARE(failure.Where().file, path);
                QCOMPARE(failure.Where().line, 0);
            }
        }
    }

    void HostileXml()
    {
        for (const char* entities : {"<!ENTITY a '&b;'><!ENTITY b '&a;'>",
                                     "<!ENTITY e 'xxxxxxxxxx'><!ENTITY d '&e;&e;&e;&e;&e;&e;&e;'>"
                                     "<!ENTITY c '&d;&d;&d;&d;&d;&d;&d;'>"
                                     "<!ENTITY b '&c;&c;&c;&c;&c;&c;&c;'><!ENTITY a '&b;&b;&b;'>"})
            QVERIFY_THROWS_EXCEPTION(
                CriticalException,
                static_cast<void>(Read(u"a.ts"_s, "<!DOCTYPE TS ["_ba + entities +
                                                      "]><TS><message><translation>&a;"
                                                      "</translation></message></TS>")));
    }

    void LargeFilesAreLinear_data()
    {
        // File name, beginning, what is repeated, end.
        const Test::Rows<QString, QByteArray, QByteArray, QByteArray> row;
        row("plain", u"a"_s, ""_ba, "ä\r"_ba, ""_ba);
        row("quotes in CSV", u"a.csv"_s, "\""_ba, "\"\""_ba, "\""_ba);
        row("open quotes in CSV", u"a.csv"_s, ""_ba, "\"a\","_ba, ""_ba);
        row("PO", u"a.po"_s, "msgid \"a\"\nmsgstr \"\""_ba, "\"a\"\n"_ba, ""_ba);
        row("PO, comments", u"a.po"_s, ""_ba, "#, fuzzy\n"_ba, ""_ba);
        row("elements", u"a.xlf"_s, "<xliff><target>"_ba, "<g>a</g>"_ba, "</target></xliff>"_ba);
        row("JSON, escapes", u"a.json"_s, "[\""_ba, "\\n"_ba, "\"]"_ba);
        row("JSON, strings", u"a.json"_s, "["_ba, "\"a\" ,"_ba, "0]"_ba);
        row("C, long string", u"a.c"_s, "\""_ba, "\\\n"_ba, "\""_ba);
        row("C, raw strings", u"a.cpp"_s, ""_ba, "R\"a()a\""_ba, ""_ba);
        row("C, groups", u"a.c"_s, ""_ba, "#if 0\n"_ba, ""_ba);
        row("C, comments", u"a.c"_s, ""_ba, "/**/"_ba, ""_ba);
    }

    void LargeFilesAreLinear()
    {
        const auto [name, start, part, end] =
            Test::Row<QString, QByteArray, QByteArray, QByteArray>();
        QVERIFY(Test::IsLinear(
            [&](int count) { static_cast<void>(Read(name, start + part.repeated(count) + end)); },
            10000));
    }

private:
    std::vector<TextCharacter> Read(const QString& name, const QByteArray& contents) const
    {
        const QString path = folder_.filePath(name);
        Test::WriteAll(path, contents);
        return ReadTextFile(path);
    }

    const QString Half = u"It holds one half of a surrogate pair."_s;
    const QString Open = u"A string is not closed."_s;
    const QString TooLarge = u"The number of an escape sequence is too large."_s;
    QTemporaryDir folder_;
};

GLYPHOR_TEST(TestTextFile)

} // namespace Glyphor

#include "tst_text_file.moc"
