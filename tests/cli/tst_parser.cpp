#include "app/critical_exception.h"
#include "cli/command_line_parser.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

using Test::Words;

namespace {

QList<int> Ids(const std::vector<OptionOccurrence>& occurrences)
{
    QList<int> ids;
    for (const OptionOccurrence& occurrence : occurrences)
        ids.append(int(occurrence.Id()));
    return ids;
}

} // namespace

class TestParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Failures_data()
    {
        const Test::Rows<QString, QString> rows;
        const auto row = [&rows](const char* line, const char* text) {
            rows(line, QString::fromUtf8(line), QString::fromUtf8(text));
        };
        const char* const missing = "Parameter missing!";
        row("-save", missing);
        row("-create Arial", missing);
        row("-save -verbose", "Read new argument -verbose where a parameter was expected!");
        row("-merge a.c -nonsense", "Read new argument -nonsense where a parameter was expected!");
        row("-enable -5", "Read new argument -5 where a parameter was expected!");
        row("a.ttf b.ttf", "Invalid argument b.ttf entered!");
        row("-bold a.ttf", "Invalid argument a.ttf entered!");
        row("--hide", "Invalid argument --hide entered!");
        row("-", "Invalid argument - entered!");
        row("-enable~1-2,", "Invalid argument -enable~1-2, entered!");
        row("-bold -B", "Argument -bold supplied more than once!");
        row("a.c -ec SETX all", missing);
        row("a.c -ec SETADV all -verbose",
            "Read new argument -verbose where a parameter was expected!");
        row("a.c -ec SETY all one", "Error while parsing number: one");
        row("a.c -ec SHIFTR all -1", "Read new argument -1 where a parameter was expected!");
        row("-format XYZ", "Given parameter XYZ did not match constraint!");
        row("a.c -merge b.c REPLAC", "Given parameter REPLAC did not match constraint!");
        row("-face one", "Error while parsing number: one");
        row("-face 0x", "Error while parsing number: 0x");
        row("-face +1", "Error while parsing number: +1");
        row("-face 99999999999999999999", "The number 99999999999999999999 is too large.");
        row("-face 4294967296", "The number 4294967296 is too large.");
        row("-enable 0x", "Error while parsing number: 0x");
        row("-enable 1-2-3", "Invalid range entered: 1-2-3\n"
                             "Expected format: {<first char>[-<last char>]|all}");
        row("-enable 1-", "Invalid range entered: 1-\n"
                          "Expected format: {<first char>[-<last char>]|all}");
        row("-disable 0x10000",
            "The character code 0x10000 is too large: codes end at 0xFFFF (65535).");
    }

    void Failures()
    {
        const auto [line, text] = Test::Row<QString, QString>();
        QCOMPARE(Test::FailureOf([&line = line] { (void)CommandLineParser().parse(Words(line)); }),
                 u"Critical error!: "_s + text);
    }

    void Checks_data()
    {
        const Test::Rows<QString, QString, QList<int>> row; // without a text for no failure
        const auto ok = [&row](const char* line, const QList<int>& order) {
            row(line, QString::fromUtf8(line), QString(), order);
        };
        row("both", u"a.ttf -create A B"_s,
            u"Mutually exclusive arguments - and -create both set!"_s, QList<int>());
        row("neither", u"-save a.c"_s,
            u"Mutually exclusive arguments - and -create both not set!"_s, QList<int>());
        ok("a.ttf -help -create A B", {18});
        ok("-save a.c -listfonts -?", {21});
        ok("font.ttf -save out.c -enable 0x20-0x7F -h 16px", {9, 1, 3, 15});
        ok("-exit -save a.c -hide -C Arial Bold", {2, 19, 15, 17});
        ok("a.ttf -v -p one -d 1 -p two -b", {11, 10, 11, 1, 16, 5});
        ok("-HIDE a.c -merge b.c -ec INST all -EF DelTop 2", {1, 19, 14, 13, 12});
    }

    void Checks()
    {
        const auto [line, text, order] = Test::Row<QString, QString, QList<int>>();
        const CommandLineParser parser;
        try {
            auto occurrences = parser.parse(Words(line));
            if (!parser.check(occurrences))
                ReorderOccurrences(occurrences);
            QVERIFY(text.isEmpty());
            QCOMPARE(Ids(occurrences), order);
        } catch (const CriticalException& error) {
            QCOMPARE(error.Text(), text);
        }
    }

    void Values()
    {
        const auto occurrences = CommandLineParser().parse(
            Words(u"-hide a.ttf -format leg_aa2 -enc shift-jis -e 0X7e-32 -e All -e 160 "
                  "-merge m.c replaceold -face 0x10 -editfont INSTOP -verbose"_s));
        QCOMPARE(occurrences[1].Get<QString>(0), u"a.ttf"_s);
        for (const auto& [index, value] : {std::pair(2, 1), {3, 1}, {8, 16}, {9, 26}})
            QCOMPARE(occurrences[std::size_t(index)].Get<int>(0), value);
        QCOMPARE(occurrences[4].Get<CodeRange>(0), (CodeRange{0x7E, 32}));
        QCOMPARE(occurrences[5].Get<CodeRange>(0), (CodeRange{0, 0xFFFF}));
        QCOMPARE(occurrences[6].Get<CodeRange>(0), (CodeRange{160, 160}));
        QCOMPARE(occurrences[7].Get<int>(1), 2);
        QVERIFY(std::holds_alternative<std::monostate>(occurrences[9].values[1]));
        QCOMPARE(occurrences[10].Id(), OptionId::Verbose);
        const auto edits =
            CommandLineParser().parse(Words(u"a.c -ec setx all -3 -ec CINC 65 -ec SETADV 65 0"_s));
        QCOMPARE(edits[1].Get<int>(2), -3);
        QVERIFY(std::holds_alternative<std::monostate>(edits[2].values[2]));
        QCOMPARE(edits[3].Get<int>(2), 0);
    }

    void Usage()
    {
        const QString usage = CommandLineParser().usage();
        QVERIFY(usage.startsWith(
            u"USAGE:\n   Glyphor_CL.exe  {<file path>|-create <family name> <style name>}"_s));
        const QStringList parts = {
            u"\n\nWhere:\n   <file path>\n     (OR required)  Open font file. "_s,
            u"\n    -- OR --\n   -create <family name> <style name>\n     (OR required)  Create "_s,
            u"\n   -enable {<first char>[-<last char>]|all}  (accepted multiple times)\n     Enable"_s,
            u"\n       LEG      Legacy, 1bpp\n"_s,
            u"\n       UC    16-bit Unicode encoding.\n       SJIS  Shift JIS "_s,
            u"\n   -save <file path>\n     (required)  Save font file.\n"_s,
            u" -editchar <action> {<first char>[-<last char>]|all} <value> ..."_s};
        for (const QString& part : parts)
            QVERIFY2(usage.contains(part), qUtf8Printable(part));
        for (const QString& hidden : {u"xirtsek"_s, u"UC16"_s, u"ReplaceOld"_s})
            QVERIFY2(!usage.contains(hidden), qUtf8Printable(hidden));
        for (const QString& line : usage.split(u"Where:"_s)[0].split(u'\n'))
            QVERIFY(line.size() <= 80);
    }
};

GLYPHOR_TEST(TestParser)

} // namespace Glyphor

#include "tst_parser.moc"
