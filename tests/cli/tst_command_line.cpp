#include "actions/action_merge_font.h"
#include "actions/edit_actions.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "cli/command_line.h"
#include "cli/feature_list.h"
#include "cli/font_height.h"
#include "cli/option_actions.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTest>

#include <algorithm>
#include <iostream>
#include <sstream>

namespace Glyphor {

namespace {

// Answers the console's questions for as long as it lives.
class Answers
{
public:
    explicit Answers(const std::string& text) : text_(text), before_(std::cin.rdbuf(text_.rdbuf()))
    {
        std::cin.clear();
    }
    ~Answers() { std::cin.rdbuf(before_); }
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;

private:
    std::istringstream text_;
    std::streambuf* before_;
};

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Mode()
    {
        for (const auto& [argument, isCommandLine] :
             {std::pair("-HIDE", true), {"--hide", false}, {"hide", false}}) {
            const char* const last[] = {"-hide", "x", argument};
            QCOMPARE(CommandLine::isCommandLineMode(3, last), isCommandLine);
        }
    }

    void Features_data()
    {
        const Test::Rows<QString, std::vector<FontFeature>> row; // none where it is refused
        row("one", u"zero"_s, {{u"zero"_s}});
        row("several", u"tnum,ss01=2,zero=1"_s, {{u"tnum"_s}, {u"ss01"_s, 2}, {u"zero"_s}});
        for (const auto* const bad :
             {",", "zero,", "zer", "zeros", "z ro", "zero=", "zero=0", "zero=-1", "zero=x",
              "zero=65536", "zero=99999999999", "=1", "zero;tnum", "z\xC3\xA4ro"})
            row(bad, QString::fromUtf8(bad), {});
    }

    void Features()
    {
        const auto [text, features] = Test::Row<QString, std::vector<FontFeature>>();
        const OptionOccurrence use{&OptionOf(OptionId::Features), {text}};
        try {
            QCOMPARE(ParseFeatures(use.Get<QString>(0)), features);
        } catch (const CriticalException& error) {
            QVERIFY(features.empty());
            QVERIFY(error.Text().contains(OptionOf(OptionId::Features).Form()));
        }
    }

    void KerningIsFoundWhereItIsLookedAt_data()
    {
        const Test::Rows<QString, bool, bool> row; // options, whether there is a window, kerning
        row("font alone", u"-save a.c"_s, false, false);
        row("kerning", u"-save a.c -kerning k.c"_s, false, true);
        row("binary kerning", u"-save a.kern"_s, false, true);
        row("report", u"-report r.json"_s, false, true);
        row("window", u"-bold"_s, true, true);
    }

    void KerningIsFoundWhereItIsLookedAt()
    {
        const auto [options, hasWindow, expected] = Test::Row<QString, bool, bool>();
        const auto uses = CommandLineParser().parse(Test::Words(u"a.ttf -height 9px "_s + options));
        QCOMPARE(ReadRunOptions(uses, hasWindow).open.render.findsLayoutKerning, expected);
    }

    void Heights_data()
    {
        const Test::Rows<QString, FontSize> row; // height 0 where it is refused
        row("pixels", u"24px"_s, {24});
        row("points", u"12Pt"_s, {12, true});
        row("no unit", u"16"_s, {16});
        row("capitals", u"CAP:14px"_s, {14, false, HeightUnit::Capital});
        row("lowercase", u"x:8px"_s, {8, false, HeightUnit::LowercaseX});
        row("line", u"line:20pt"_s, {20, true, HeightUnit::Line});
        row("em", u"em:16px"_s, {16, false, HeightUnit::Em});
        row("fraction", u"em:16.25px"_s, {16, false, HeightUnit::Em, 16});
        for (const auto* const bad : {"cap:", "cap:1.5px", "em:0px", "em:.px", "em:1e3px",
                                      "em:70000px", "box:3px", "+5px", " 5px", "%1px", "0px", "px",
                                      "-5px", "1.5px", "24em", "65536px", "4294967320px", "twelve"})
            row(bad, QString::fromUtf8(bad), {});
    }

    void Heights()
    {
        const auto [text, expected] = Test::Row<QString, FontSize>();
        Test::RecordingInterface interface;
        if (!expected.IsGiven()) {
            QVERIFY_THROWS_EXCEPTION(CriticalException, (void)ParseHeight(text));
            return;
        }
        const FontSize size = ParseHeight(text);
        QVERIFY(size == expected);
        QVERIFY(text == u"16"_s || TextOf(size) == text.toLower());
        QCOMPARE(interface.warnings.contains(u"Invalid measuring format, assuming px."_s),
                 text == u"16"_s);
    }

    void Selection()
    {
        Test::RecordingInterface interface;
        std::optional<CodeSet> enabling;
        SelectRange(enabling, {0x20, 0x7E}, true);
        SelectRange(enabling, {0x41, 0x40}, false);
        QVERIFY(enabling->Test(0x3F) && enabling->Test(0x42) && !enabling->Test(0x7F));
        QVERIFY(!enabling->Test(0x40) && !enabling->Test(0x41));
        QCOMPARE(interface.warnings,
                 QStringList{u"The range 0x0041-0x0040 is reversed, assuming 0x0040-0x0041."_s});

        std::optional<CodeSet> disabling;
        SelectRange(disabling, {0, 0xFFFE}, false);
        QCOMPARE(disabling->Next(0), 0xFFFF);
    }

    void ActionsHaveTheirArguments()
    {
        const Test::RecordingInterface interface;
        const auto uses = CommandLineParser().parse(
            Test::Words(u"a.ttf -height 9px -bold -merge b.sif KEEP -editchar SHIFTR 0x41-0x42 "
                        "-editfont INSTOP 3"_s));
        RunOptions options = ReadRunOptions(uses);
        options.open.selection.emplace().Set('A', true);
        Session session;
        const auto make = [&](OptionId id) {
            const auto use = std::ranges::find(uses, id, &OptionOccurrence::Id);
            return ActionOf(id)->make(*use, options, session);
        };
        const auto open = std::dynamic_pointer_cast<ActionOpenFont>(make(OptionId::Open));
        QCOMPARE(open->Args().path, u"a.ttf"_s);
        QCOMPARE(open->Args().render,
                 (RenderOptions{.height = 9, .effects = BoldEffect, .findsLayoutKerning = false}));
        QVERIFY(open->Args().selection->Test('A'));
        const auto merge = std::dynamic_pointer_cast<ActionMergeFont>(make(OptionId::Merge));
        QCOMPARE(merge->Args().source.path, u"b.sif"_s);
        QCOMPARE(merge->Args().mode, MergeMode::Keep);
        QVERIFY(!merge->Args().source.selection); // that of the opened font alone
        const auto edit = std::dynamic_pointer_cast<ActionChar>(make(OptionId::EditChar));
        QVERIFY(edit->Args().first == 0x41 && edit->Args().last == 0x42 && edit->Repeat() == 1);
        QCOMPARE(make(OptionId::EditFont)->Repeat(), 3);
    }

    void EditsMayNeedAValue()
    {
        const auto read = [](const QString& words) {
            auto uses = CommandLineParser().parse(Test::Words(words));
            (void)ReadRunOptions(uses);
            return uses;
        };
        QCOMPARE(Test::FailureOf([&] { read(u"a.sif -editchar COPY 0x41 -save b.sif"_s); }),
                 u"Critical error!: Read new argument -save where a parameter was expected!"_s);
        Session session;
        for (const auto& [value, code] : {std::pair(u"0xE000"_s, 0xE000), {u"0"_s, 0}}) {
            const auto uses = read(u"a.sif -editchar COPY 0x41 %1 -save b.sif"_s.arg(value));
            const auto action = std::dynamic_pointer_cast<ActionChar>(
                ActionOf(OptionId::EditChar)->make(uses[1], {}, session));
            QVERIFY(action->Args().value == code && action->Repeat() == 1);
        }
    }

    void Questions()
    {
        CommandLine commandLine;
        {
            const Answers answers("nonsense\n aa4 \nKEEP\n");
            const auto choice = commandLine.askFontFormat(EncodingType::ShiftJis);
            QCOMPARE(choice->format, FontFormat::AA4);
            QCOMPARE(choice->encoding, EncodingType::ShiftJis);
            QCOMPARE(commandLine.askMergeMode(), MergeMode::Keep);
        }
        const Answers none("nonsense\n");
        QVERIFY_THROWS_EXCEPTION(CriticalException,
                                 commandLine.askFontFormat(EncodingType::Unicode));
    }
};

GLYPHOR_TEST(TestCommandLine)

} // namespace Glyphor

#include "tst_command_line.moc"
