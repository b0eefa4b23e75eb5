#include "actions/action_merge_font.h"
#include "actions/action_save_file.h"
#include "app/progress.h"
#include "files/file_types.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "support/undo_session.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

namespace {

class MergeInterface final : public Test::RecordingInterface
{
public:
    std::optional<MergeMode> askMergeMode() override
    {
        ++questions;
        return answer;
    }
    std::optional<FormatChoice> askFontFormat(EncodingType) override { return choice; }
    Answer Ask(const QString&, const QString&) override { return question; }

    std::optional<MergeMode> answer;
    std::optional<FormatChoice> choice;
    Answer question = Answer::Nobody;
    int questions = 0;
};

// Every character is filled with the index.
std::unique_ptr<Font> MakeFilled(const QByteArray& codes, int index,
                                 FontFormat format = FontFormat::Framed)
{
    auto font = std::make_unique<Font>(format, EncodingType::Unicode);
    font->SetHeight(4);
    for (const char code : codes) {
        Character& character = font->AddChar(quint16(code));
        character.info.SetWidth(3);
        character.bitmap->AdjustData();
        character.bitmap->SetPixelIndex(index, 0, 1);
    }
    return font;
}

// 0 for none.
std::optional<MergeMode> ModeOf(int number)
{
    return number != 0 ? std::optional(MergeMode(number)) : std::nullopt;
}

ActionOpenFontArgs Source(const QString& path)
{
    ActionOpenFontArgs args;
    args.path = path;
    return args;
}

} // namespace

class TestMerge : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    [[nodiscard]] QString Path(const char* name) const
    {
        return folder_.filePath(QString::fromUtf8(name));
    }

    static void SaveAs(Session& session, const QString& path)
    {
        const auto save = std::make_shared<ActionSaveFile>(session, ActionType::SaveFont);
        save->Args().path = path;
        save->Run();
    }

    void WriteFont(std::unique_ptr<Font> font, const QString& path) const
    {
        Test::UndoSession session(std::move(font));
        SaveAs(session, path);
    }

private Q_SLOTS:
    void Merges_data()
    {
        // The indices are those of A, B, C and D afterwards; "-" is for none.
        const Test::Rows<int, int, const char*, bool, int, const char*, char> row;
        row("replace", 2, 0, "BCD", true, 0, "0111", '\0');
        row("keep", 3, 0, "BCD", true, 0, "0011", '\0');
        row("ask, replace", 0, 2, "BC", true, 1, "011-", '\0');
        row("ask, keep", 0, 3, "BC", true, 1, "001-", '\0');
        row("ask, cancel", 0, 0, "BC", false, 1, "00--", '\0');
        row("no duplicates", 0, 0, "CD", true, 0, "0011", '\0');
        row("nothing new", 3, 0, "AB", true, 0, "00--", '\0');
        // What is disabled is not missed, so nothing is asked about it.
        row("disabled duplicate", 0, 0, "BC", true, 0, "011-", 'B');
        row("disabled, keep", 3, 0, "AB", true, 0, "01--", 'B');
    }

    void Merges()
    {
        const auto [mode, answer, other, merged, questions, indices, disabled] =
            Test::Row<int, int, const char*, bool, int, const char*, char>();
        MergeInterface interface;
        interface.answer = ModeOf(answer);
        WriteFont(MakeFilled(other, 1), Path("other.sif"));
        Test::UndoSession session(MakeFilled("AB", 0));
        Font& font = *session.CurrentFont();
        if (disabled != '\0')
            font.SetEnabled(quint16(disabled), quint16(disabled), false);
        const QByteArray before = Test::Snapshot(font);

        const auto action = std::make_shared<ActionMergeFont>(session);
        action->Args() = {Source(Path("other.sif")), ModeOf(mode)};
        QCOMPARE(action->Run(), merged);
        QCOMPARE(interface.questions, questions);
        for (int code = 'A'; code <= 'D'; ++code) {
            const Character* const character = font.FindChar(quint16(code));
            const char index = indices[code - 'A'];
            QCOMPARE(character == nullptr, index == '-');
            if (character != nullptr)
                QCOMPARE(character->bitmap->GetPixelIndex(index - '0', 0), 1);
        }
        QCOMPARE(font.IsEnabled('B'), true);
        if (!merged) {
            QCOMPARE(session.Stack().Count(), 0U);
            return;
        }
        QCOMPARE(session.Stack().LogLines(),
                 QStringList{u"[Font]: Font merged with: "_s + Path("other.sif")});
        const QByteArray after = Test::Snapshot(font);
        session.Stack().Undo();
        QCOMPARE(Test::Snapshot(font), before);
        session.Stack().Redo();
        QCOMPARE(Test::Snapshot(font), after);
    }

    void Refusals_data()
    {
        const Test::Rows<int, int, int, QString> row;
        row("format", int(FontFormat::AA2), 4, 0,
            u"The two fonts do not have the same format!\nThe current font "
            "with the format \"%1\" cannot be merged with the other font of "
            "the format \"%2\"."_s.arg(FormatDisplayName(FontFormat::Legacy),
                                       FormatDisplayName(FontFormat::AA2)));
        row("encoding", int(FontFormat::Legacy), 4, 1,
            u"One of the two fonts is encoded in Unicode and the other one "
            "in Shift JIS: a code means different characters in them."_s);
        row("height", int(FontFormat::Legacy), 5, 0,
            u"All characters of a font in a legacy format have the font's "
            "height: the current font is 4 pixels high and the other one "
            "5."_s);
    }

    void Refusals()
    {
        const auto [format, height, encoding, text] = Test::Row<int, int, int, QString>();
        auto other = std::make_unique<Font>(FontFormat(format), EncodingType(encoding));
        other->SetHeight(quint8(height));
        other->AddChar('C');
        WriteFont(std::move(other), Path("other.c"));
        Test::UndoSession session(MakeFilled("AB", 0, FontFormat::Legacy));
        const QByteArray before = Test::Snapshot(*session.CurrentFont());
        const auto action = std::make_shared<ActionMergeFont>(session);
        action->Args().source.path = Path("other.c");
        QCOMPARE(Test::FailureOf([&] { action->Run(); }), u"Font merging not possible!: "_s + text);
        QCOMPARE(Test::Snapshot(*session.CurrentFont()), before);
    }

    void KerningIsThatOfEither()
    {
        WriteFont(MakeFilled("C", 1), Path("other.sif"));
        for (const auto& [own, other] : {std::pair(true, false), {false, true}, {false, false}}) {
            Test::UndoSession session(MakeFilled("AB", 0));
            session.CurrentFont()->SetHasKerning(own);
            const auto action = std::make_shared<ActionMergeFont>(session);
            action->Args() = {Source(other ? Test::FontPath("outlines.ttf") : Path("other.sif")),
                              MergeMode::Replace};
            action->Args().source.format = FontFormat::Framed;
            action->Args().source.render.height = 12;
            QVERIFY(action->Run());
            QCOMPARE(session.CurrentFont()->HasKerning(), own || other);
            session.Stack().Undo();
            QCOMPARE(session.CurrentFont()->HasKerning(), own);
        }
    }

    void Aligns_data()
    {
        // The baselines, the answer where nothing is told (-1: told), the offset of a character
        // with rows 1 and 2 inked of 3, and how the warning begins.
        const Test::Rows<FontFormat, int, int, int, int, QString> row;
        const QString differ = u"The current font is 20 pixels high with its baseline at "_s;
        const QString leave = u"Characters that leave the current font's line on its baseline: 1 "
                              "(0x0043), by up to "_s;
        const FontFormat standard = FontFormat::AA4;
        row("down", standard, 15, 10, -1, 5, {});
        row("up", standard, 5, 6, -1, -1, {});
        row("above the line", standard, 5, 8, -1, -3, leave + u"2 rows above it and 0 below it."_s);
        row("below the line", standard, 30, 12, -1, 18,
            leave + u"0 rows above it and 1 below it."_s);
        row("padded", standard, 140, 10, -1, 127, leave + u"0 rows above it and 2 below it."_s);
        row("frames", FontFormat::Framed, 15, 10, -1, 5, {});
        row("no answer", standard, 15, 10, int(Answer::Nobody), 0, differ);
        row("not wanted", standard, 15, 10, int(Answer::No), 0, {});
        row("wanted", standard, 15, 10, int(Answer::Yes), 5, {});
    }

    void Aligns()
    {
        const auto [format, own, theirs, answer, offset, warning] =
            Test::Row<FontFormat, int, int, int, int, QString>();
        MergeInterface interface;
        interface.question = answer < 0 ? Answer::Nobody : Answer(answer);
        const auto withBaseline = [format = format](const QByteArray& codes, int baseline) {
            auto font = MakeFilled(codes, 1, format);
            font->SetHeight(20);
            font->SetBaseline(quint8(baseline));
            return font;
        };
        auto other = withBaseline("C", theirs);
        Character& character = *other->FindChar('C');
        character.info.yPos = 0;
        character.info.height = 3;
        character.bitmap->AssignData({});
        character.bitmap->SetPixelIndex(0, 1, 1);
        character.bitmap->SetPixelIndex(0, 2, 1);
        WriteFont(std::move(other), Path("other.sif"));
        Test::UndoSession session(withBaseline("A", own));
        const auto action = std::make_shared<ActionMergeFont>(session);
        action->Args().source = Source(Path("other.sif"));
        if (answer < 0)
            action->Args().alignment = MergeAlignment::Baseline;
        QVERIFY(action->Run());
        const Character& merged = *session.CurrentFont()->FindChar('C');
        QCOMPARE(merged.info.yPos, offset);
        const int padding = merged.info.height - 3;
        QCOMPARE(padding, std::max(0, own - theirs - 127));
        for (int y = 0; y < merged.info.height; ++y)
            QCOMPARE(merged.bitmap->GetPixelIndex(0, y), y > padding ? 1 : 0);
        QCOMPARE(interface.warnings.isEmpty(), warning.isEmpty());
        if (!warning.isEmpty())
            QVERIFY2(interface.warnings.first().startsWith(warning),
                     qPrintable(interface.warnings.first()));
        QCOMPARE(interface.warnings.join(u' ').contains(u"-align baseline"_s),
                 answer == int(Answer::Nobody));
    }

    void AlignsCells_data()
    {
        // The current baseline (that of the other is 2), and the rows with ink, which were 0 and 2.
        const Test::Rows<int, QByteArray, QString> row;
        const QString cut = u"Characters cut on the baseline of the current font: 1 (0x0043). They "
                            "lose up to "_s;
        row("same", 2, "X_X_", {});
        row("down", 3, "_X_X", {});
        row("down, cut", 4, "__X_", cut + u"0 rows of ink at the top and 1 at the bottom."_s);
        row("up, cut", 1, "_X__", cut + u"1 rows of ink at the top and 0 at the bottom."_s);
        row("out", 9, "____", cut + u"0 rows of ink at the top and 3 at the bottom."_s);
    }

    void AlignsCells()
    {
        const auto [own, rows, warning] = Test::Row<int, QByteArray, QString>();
        MergeInterface interface;
        auto other = MakeFilled("C", 0, FontFormat::Legacy);
        other->SetBaseline(2);
        other->FindChar('C')->bitmap->AssignData({});
        other->FindChar('C')->bitmap->SetPixelIndex(0, 0, 1);
        other->FindChar('C')->bitmap->SetPixelIndex(0, 2, 1);
        WriteFont(std::move(other), Path("other.c"));
        auto font = MakeFilled("A", 0, FontFormat::Legacy);
        font->SetBaseline(quint8(own));
        Test::UndoSession session(std::move(font));
        const auto action = std::make_shared<ActionMergeFont>(session);
        action->Args().source.path = Path("other.c");
        action->Args().alignment = MergeAlignment::Baseline;
        QVERIFY(action->Run());
        QByteArray seen;
        for (int y = 0; y < 4; ++y)
            seen +=
                session.CurrentFont()->FindChar('C')->bitmap->GetPixelIndex(0, y) != 0 ? 'X' : '_';
        QCOMPARE(seen, rows);
        QCOMPARE(interface.warnings.join(u'\n'), warning);
    }

    void RefusesOffsets()
    {
        auto other = MakeFilled("C", 1);
        other->SetBaseline(200);
        other->FindChar('C')->info.yPos = 0;
        WriteFont(std::move(other), Path("other.sif"));
        Test::UndoSession session(MakeFilled("AB", 0));
        const QByteArray before = Test::Snapshot(*session.CurrentFont());
        const auto action = std::make_shared<ActionMergeFont>(session);
        action->Args().source = Source(Path("other.sif"));
        action->Args().alignment = MergeAlignment::Baseline;
        QVERIFY(Test::FailureOf([&] { action->Run(); }).contains(u"the character 0x0043 "_s));
        QCOMPARE(Test::Snapshot(*session.CurrentFont()), before);
    }

    void OpeningFiles()
    {
        MergeInterface interface;
        WriteFont(MakeFilled("ABC", 0, FontFormat::AA2), Path("font.sif"));
        CodeSet selection;
        selection.SetRange('B', 'Z', true);
        ActionOpenFontArgs args = Source(Path("font.sif"));
        args.format = FontFormat::AA4;
        args.selection = selection;
        const auto font = ReadFont(args);
        QCOMPARE(font->Metrics().format, FontFormat::AA2);
        QCOMPARE(interface.warnings.size(), 1); // the format is that of the file
        QVERIFY(!font->IsEnabled('A') && font->FindChar('A') != nullptr);
        QVERIFY(font->IsEnabled('C') && font->FindChar('D') == nullptr);

        const auto failure = [](const ActionOpenFontArgs& bad) {
            return Test::FailureOf([&bad] { (void)ReadFont(bad); });
        };
        args.format.reset();
        args.encoding = EncodingType::ShiftJis;
        QVERIFY(failure(args).startsWith(u"Invalid combination of encoding and font format!"_s));
        auto flat = MakeFilled("A", 0);
        flat->SetHeight(0);
        RowOf(FileType::Xbf).make(Path("flat.xbf"), {})->Write(*flat);
        QVERIFY(Test::FailureOf([&] {
                    WriteFont(std::move(flat), Path("flat.c"));
                }).startsWith(u"Font has no rows!"_s));
        QCOMPARE(failure(Source(Path("flat.xbf"))),
                 u"Font creation failed!: Font has invalid metrics."_s);
        const QByteArray sif = Test::ReadAll(Path("font.sif"));
        Test::WriteAll(Path("old.sif"), sif.chopped(4));
        const ActionOpenFontArgs old = Source(Path("old.sif"));
        QVERIFY_THROWS_EXCEPTION(WorkStopped, (void)ReadFont(old)); // nobody told the format
        interface.choice = FormatChoice{FontFormat::AA2, EncodingType::Unicode};
        QVERIFY(ReadFont(old)->FindChar('C') != nullptr);
        Test::WriteAll(Path("no.sif"), "GUIX" + sif.mid(4).chopped(4));
        interface.choice.reset(); // nothing is asked about a file of another kind
        QVERIFY(failure(Source(Path("no.sif"))).startsWith(u"Reading of SIF file failed!"_s));

        // Over the file that was opened.
        Test::UndoSession session;
        session.ReplaceFont(ReadFont(Source(Path("font.sif"))), Path("font.sif"));
        SaveAs(session, Path("font.sif"));
        QVERIFY(ReadFont(Source(Path("font.sif")))->FindChar('C') != nullptr);
    }
};

GLYPHOR_TEST(TestMerge)

} // namespace Glyphor

#include "tst_merge.moc"
