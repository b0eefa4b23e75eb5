#include "app/file_name.h"
#include "app/settings.h"
#include "cli/command_line_parser.h"
#include "cli/option_actions.h"
#include "cli/run_options.h"
#include "cli/written_options.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QProcess>
#include <QTest>

#include <functional>

namespace Glyphor {

namespace {

// What the program would open with these words.
ActionOpenFontArgs ReadBack(const QStringList& words)
{
    std::vector<OptionOccurrence> occurrences = CommandLineParser().parse(words);
    ReorderOccurrences(occurrences);
    RunOptions options = ReadRunOptions(occurrences);
    for (const OptionOccurrence& occurrence : occurrences) {
        if (SelectsCharacters(occurrence.Id()))
            Select(occurrence, options);
        else if (occurrence.Id() == OptionId::Open)
            options.open.path = occurrence.Get<QString>(0);
    }
    return options.open;
}

ActionOpenFontArgs Base()
{
    ActionOpenFontArgs args;
    args.path = u"/a b/font.ttf"_s;
    args.size = {16, false};
    args.render.SetHeight(args.size, 0);
    args.render.findsLayoutKerning = false; // there is nobody to look at it
    return args;
}

} // namespace

class TestWrittenOptions : public QObject
{
    Q_OBJECT

    using Change = std::function<void(ActionOpenFontArgs&)>;

private Q_SLOTS:
    void MakeTheSame_data()
    {
        const Test::Rows<Change, QString> rows; // the options beside file and height
        const auto row = [&rows](const char* words, const Change& change) {
            rows(words, change, QString::fromUtf8(words));
        };
        row("", [](auto&) {});
        row("-format LEG_AA2 -encoding SJIS", [](auto& args) {
            args.format = FontFormat::LegacyAA2;
            args.encoding = EncodingType::ShiftJis;
        });
        row("-bold -italic -face 3",
            [](auto& args) { args.render.effects = 3, args.render.faceIndex = 3; });
        row("-fit -hinting light -gamma 1.45", [](auto& args) {
            args.render.fitsInk = true;
            args.render.hinting = Hinting::Light;
            args.render.gamma = 1.45;
        });
        row("-axes wght=550,wdth=-87.25", [](auto& args) {
            args.render.axes = {{"wght", 550}, {"wdth", -87.25}};
        });
        row("-features tnum,salt=2", [](auto& args) {
            args.render.features = {{u"tnum"_s}, {u"salt"_s, 2}};
        });
        row("-charmap 0 -map ?0x20-0x7E,0xF02D1=0xE001:heart", [](auto& args) {
            args.render.charmapIndex = 0;
            args.render.map = ParseCharacterMap(u"?32-126,0xF02D1=0xE001:heart"_s);
        });
        row("-source icons.ttf 0xF000=0xE000 em:12.5px -source /b.bdf 0x41 -name Big_1",
            [](auto& args) {
                args.sources = {{u"icons.ttf"_s, ParseCharacterMap(u"0xF000=0xE000"_s),
                                 FontSize{12, false, HeightUnit::Em, 32}},
                                {u"/b.bdf"_s, ParseCharacterMap(u"0x41"_s), std::nullopt}};
                args.name = u"Big_1"_s;
            });
        row("-enable 0x0041 -enable 0x0043-0xFFFF", [](auto& args) {
            args.selection.emplace().SetRange('A', 0xFFFF, true);
            args.selection->Set('B', false);
        });
        row("-disable all", [](auto& args) { args.selection.emplace(); });
    }

    void MakeTheSame()
    {
        const auto [change, expected] = Test::Row<Change, QString>();
        ActionOpenFontArgs args = Base();
        change(args);
        const QStringList words = WordsOf(args);
        QCOMPARE(words.sliced(3).join(u' '), expected);
        const ActionOpenFontArgs read = ReadBack(words);
        QCOMPARE(read.path, args.path);
        QCOMPARE(read.size, args.size);
        QCOMPARE(read.render, args.render);
        QCOMPARE(read.format, args.format);
        QCOMPARE(read.encoding, args.encoding);
        QCOMPARE(read.sources, args.sources);
        QCOMPARE(read.name, args.name);
        QVERIFY(read.selection == args.selection);
    }

    void Heights_data()
    {
        const Test::Rows<FontSize, QString> row;
        row("box", {24, false}, u"24px"_s);
        row("points", {12, true}, u"16px"_s);
        row("points, cut", {13, true, HeightUnit::Capital}, u"cap:17px"_s);
        row("small letters", {8, false, HeightUnit::LowercaseX}, u"x:8px"_s);
        row("line", {20, false, HeightUnit::Line}, u"line:20px"_s);
        row("em", {16, false, HeightUnit::Em, 33}, u"em:16.515625px"_s);
        row("em in points", {10, true, HeightUnit::Em, 32}, u"em:14px"_s);
        row("less than a pixel", {0, false, HeightUnit::Em, 1}, u"em:0.015625px"_s);
    }

    void Heights()
    {
        const auto [size, text] = Test::Row<FontSize, QString>();
        constexpr int dotsPerInch = 96;
        ActionOpenFontArgs args = Base();
        args.size = size;
        args.dotsPerInch = dotsPerInch;
        args.render.SetHeight(size, dotsPerInch);
        args.sources = {{u"icons.ttf"_s, ParseCharacterMap(u"all"_s), size}};
        const QStringList words = WordsOf(args);
        QCOMPARE(words[2], text);
        QCOMPARE(words.last(), text);
        const ActionOpenFontArgs read = ReadBack(words);
        QCOMPARE(read.render, args.render);
        RenderOptions source = args.render;
        source.SetHeight(*read.sources.at(0).size, 0);
        QCOMPARE(source, args.render);
    }

    void Texts_data()
    {
        const Test::Rows<QString, QString> row; // without words where ranges are needed
        row("letters", u"ba a"_s, u" ab"_s);
        row("dash first", u"-@"_s, u"@-"_s);
        row("dash alone", u"-"_s, QString());
        row("control character", u"a\t"_s, QString());
        row("half a character", QString(QChar(0xD800)), QString());
        row("nothing", QString(), QString());
    }

    void Texts()
    {
        const auto [text, expected] = Test::Row<QString, QString>();
        CodeSet codes;
        for (const QChar character : text)
            codes.Set(character.unicode(), true);
        const auto words = WordsOfText(codes);
        QCOMPARE(words ? words->last() : QString(), expected);
        ActionOpenFontArgs args = Base();
        args.selection = codes;
        QVERIFY(ReadBack(WordsOf(args, words)).selection == codes);
    }

    void PathsThatLookLikeOptions()
    {
        for (const auto* const name : {u"-save.ttf", u"@x.ttf"}) {
            ActionOpenFontArgs args = Base();
            args.path = QString::fromUtf16(name);
            QCOMPARE(ReadBack(WordsOf(args)).path, u"./"_s + args.path);
        }
    }

    void Preferences()
    {
        auto& bitmaps = Settings::Instance().useIncludedBitmaps;
        auto& endings = Settings::Instance().lineEndings;
        bitmaps.setValue(false);
        endings.setValue(2);
        const QStringList words = PreferenceWords();
        bitmaps.setValue(true);
        endings.setValue(0);
        QCOMPARE(words.join(u' '), u"-defaults -set UseIncludedBitmaps=false -set LineEndings=2"_s);
        QCOMPARE(PreferenceWords(), QStringList{u"-defaults"_s});
    }

    // The shell gives the words again, byte by byte.
    void Shell()
    {
        const QStringList words = {u"/plain-1.ttf"_s, u"a b"_s,         u"it's"_s,
                                   u"$(x) `y` \\"_s,  u"ä\U0001F600"_s, u"*?\"~#;&|<>\n."_s,
                                   QString(),         u"caf\xDCE9.c"_s};
        const QString line = ShellLine(words);
        QVERIFY(line.startsWith(u"/plain-1.ttf 'a b' "_s));
        QVERIFY(line == QString::fromUtf8(line.toUtf8())); // as a clipboard keeps it
        QProcess shell;
        shell.start(u"/bin/sh"_s, {u"-c"_s, u"printf '%s\\001' "_s + line});
        QVERIFY(shell.waitForFinished());
        QByteArray expected;
        for (const QString& word : words)
            expected += BytesOf(word) + '\1';
        QCOMPARE(shell.readAllStandardOutput(), expected);
    }
};

GLYPHOR_TEST(TestWrittenOptions)

} // namespace Glyphor

#include "tst_written_options.moc"
