#include "actions/action_replace_chars.h"
#include "actions/edit_actions.h"
#include "model/code_text.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "support/undo_session.h"

#include <QTest>

namespace Glyphor {

namespace {

// A font with "A", "B" and "D", whose pixels differ.
std::unique_ptr<Font> MakeFont(FontFormat format, EncodingType encoding = EncodingType::Unicode)
{
    auto font = std::make_unique<Font>(format, encoding);
    font->SetHeight(4);
    font->SetBaseline(3);
    for (const char code : {'A', 'B', 'D'}) {
        const std::vector<uchar> empty(64);
        CharBitmap& bitmap = *font->PutChar(quint16(code), {5, 4, 0, 0, 6}, empty).bitmap;
        bitmap.SetPixelIndex(code % 4, 1, 1);
        bitmap.SetPixelIndex(2, 2, 1);
    }
    return font;
}

} // namespace

class TestEditActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CharEdits_data()
    {
        const Test::Rows<int, int> row;
        for (int format = 0; format < FormatCount; ++format) {
            for (int type = 8; type <= 25; ++type)
                row(QTest::addRow("format %d, type %d", format, type), format, type);
        }
    }

    // Undo of a deletion (22 and above) brings back the size, but empty pixels.
    void CharEdits()
    {
        const auto [format, type] = Test::Row<int, int>();
        Test::UndoSession session(MakeFont(FontFormat(format)));
        const Font& font = *session.CurrentFont();
        const QByteArray before = Test::Snapshot(font);
        const QByteArray lastBefore = before.mid(before.lastIndexOf('\n'));
        const auto action = std::make_shared<ActionChar>(session, ActionType(type));
        action->Args() = {'A', 'C'};
        action->SetRepeat(2);
        QVERIFY(action->Run());
        const QByteArray after = Test::Snapshot(font);
        const bool isRowEdit = type == 10 || type == 11 || type == 24 || type == 25;
        const bool isRefused = isRowEdit && IsLegacyFormat(FontFormat(format));
        QCOMPARE(after == before, isRefused);
        QCOMPARE(after.mid(after.lastIndexOf('\n')), lastBefore); // "D" is outside
        QCOMPARE(
            session.Stack().LogLines(),
            QStringList(isRefused ? 0 : 2, u"[Range 0x0041-0x0043]: "_s +
                                               QString::fromLatin1(LogMessage(ActionType(type)))));

        session.Stack().Undo();
        const QByteArray undone = Test::Snapshot(font);
        if (type < 22)
            QCOMPARE(undone, before);
        QVERIFY(session.IsModified() || undone == before);
        QCOMPARE(font.FindChar('A')->info.width, quint8(5));
        QCOMPARE(font.FindChar('A')->info.height, quint8(4));
        QVERIFY(session.Stack().LogLines().isEmpty());
    }

    // The characters of the font are 5 pixels wide, but "D" has 7.
    void Shortfalls_data()
    {
        const Test::Rows<ActionType, CodeRange, int, QString, qsizetype> row;
        using enum ActionType;
        row("one", DeleteColumnRight, {'A', 'A'}, 50, u"0x0041: 46 of 50 steps were left out"_s, 4);
        row("some", DeleteColumnRight, {'A', 'D'}, 6,
            u"0x0041-0x0044: up to 2 of 6 steps were left out, on 2 of 3 characters"_s, 6);
        row("none", DeleteColumnRight, {'A', 'D'}, 4, QString(), 4);
        row("nobody", ShiftRight, {'0', '9'}, 1,
            u"0x0030-0x0039: the font has no character there"_s, 1);
        row("box of a legacy font", RotateRight, {'A', 'D'}, 5,
            u"0x0041-0x0044: up to 1 of 1 steps were left out, on 3 of 3 characters"_s, 0);
        row("rows", FontDeleteRowTop, {}, 300,
            u"[Font]: 296 of 300 steps were left out; its height is 0 now"_s, 4);
    }

    void Shortfalls()
    {
        const auto [type, range, repeat, text, logged] =
            Test::Row<ActionType, CodeRange, int, QString, qsizetype>();
        const bool isTurn = type == ActionType::RotateRight;
        auto font = MakeFont(isTurn ? FontFormat::LegacyAA4 : FontFormat::AA4);
        font->FindChar('D')->bitmap->InsertColumnRight();
        font->FindChar('D')->bitmap->InsertColumnRight();
        Test::UndoSession session(std::move(font));
        Test::RecordingInterface interface;
        const auto run = [count = repeat](const auto& action) {
            action->SetRepeat(count);
            action->Run();
        };
        if (type == ActionType::FontDeleteRowTop) {
            run(std::make_shared<ActionFont>(session, type));
        } else {
            const auto action = std::make_shared<ActionChar>(session, type);
            action->Args() = {.first = range.first, .last = range.last};
            run(action);
        }
        QCOMPARE(interface.shortfalls, text.isEmpty() ? QStringList() : QStringList(text));
        QCOMPARE(session.Stack().LogLines().size(), logged);
    }

    void TogglesTellTheirTarget()
    {
        Test::UndoSession session(MakeFont(FontFormat::AA2));
        for (int round = 0; round < 2; ++round)
            std::make_shared<ActionChar>(session, ActionType::Toggle, quint16('A'))->Run();
        QCOMPARE(session.Stack().LogLines(),
                 (QStringList{u"[Char 0x0041]: Disabled."_s, u"[Char 0x0041]: Enabled."_s}));
    }

    void ValuesAreSet_data()
    {
        // What is told, in the log or of what could not be done; nothing for no change.
        const Test::Rows<FontFormat, ActionType, int, QString, QString> row;
        using enum ActionType;
        const auto refused = [&](const char* name, ActionType type, int value) {
            row(name, FontFormat::AA2, type, value, QString(),
                u"%1 does not fit, so it was left out on 2 of 2 characters"_s.arg(value));
        };
        row("distance", FontFormat::Framed, SetCursorDistance, 9, u"Cursor distance set to 9."_s,
            QString());
        row("left", FontFormat::AA2, SetXPos, -128, u"Left edge set to -128."_s, QString());
        row("top", FontFormat::AA4, SetYPos, 127, u"Top row set to 127."_s, QString());
        row("as it is", FontFormat::AA2, SetCursorDistance, 6, QString(), QString());
        refused("distance too large", SetCursorDistance, 256);
        refused("distance too small", SetCursorDistance, -1);
        refused("left too small", SetXPos, -129);
        refused("top too large", SetYPos, 128);
        for (const ActionType type : {SetXPos, SetYPos})
            row(QTest::addRow("legacy %d", int(type)), FontFormat::LegacyAA2, type, 1, QString(),
                u"characters of legacy formats have the font's height and no offsets"_s);
    }

    void ValuesAreSet()
    {
        const auto [format, type, value, log, shortfall] =
            Test::Row<FontFormat, ActionType, int, QString, QString>();
        Test::UndoSession session(MakeFont(format));
        Test::RecordingInterface interface;
        const QByteArray before = Test::Snapshot(*session.CurrentFont());
        const auto action = std::make_shared<ActionChar>(session, type);
        action->Args() = {'A', 'B', value};
        QCOMPARE(action->Run(), !log.isEmpty());
        QCOMPARE(Test::Snapshot(*session.CurrentFont()) == before, log.isEmpty());
        QCOMPARE(session.Stack().LogLines().join(u'\n'),
                 log.isEmpty() ? QString() : u"[Range 0x0041-0x0042]: "_s + log);
        QCOMPARE(interface.shortfalls.join(u'\n'),
                 shortfall.isEmpty() ? QString() : u"0x0041-0x0042: "_s + shortfall);
        session.Stack().Undo();
        QCOMPARE(Test::Snapshot(*session.CurrentFont()), before);
        QVERIFY(!session.IsModified());
    }

    void Copies_data()
    {
        const Test::Rows<EncodingType, int, QString> row;
        constexpr auto unicode = EncodingType::Unicode;
        row("over themselves", unicode, 'B', QString());
        row("elsewhere", unicode, 0xE000, QString());
        row("beyond", unicode, 0xFFFD,
            u"Characters can't be copied!: 0x0044 would get a code beyond 0xFFFF."_s);
        row("no Shift JIS", EncodingType::ShiftJis, 0x80,
            u"Characters can't be copied!: 0x0041 would get the code 0x0080, which the encoding of "
            "the font does not have."_s);
    }

    // "C" has no character, and is none.
    void Copies()
    {
        const auto [encoding, target, fault] = Test::Row<EncodingType, int, QString>();
        Test::UndoSession session(MakeFont(FontFormat::Legacy, encoding));
        Font& font = *session.CurrentFont();
        Character& first = *font.FindChar('A');
        first.kerning = {{'B', -1}};
        first.label = std::make_shared<CharacterLabel>();
        const QByteArray bytes = font.FindChar('D')->bitmap->Data();
        const QByteArray before = Test::Snapshot(font);
        const auto action = std::make_shared<ActionChar>(session, ActionType::CopyTo);
        action->Args() = {'A', 'D', target};
        QCOMPARE(Test::FailureOf([&action] { action->Run(); }), fault);
        if (!fault.isEmpty()) {
            QCOMPARE(Test::Snapshot(font), before);
            return;
        }
        const Character* const copy = font.FindChar(quint16(target));
        QVERIFY(copy->kerning == font.FindChar('A')->kerning && copy->label == nullptr);
        QCOMPARE(font.FindChar(quint16(target + 3))->bitmap->Data(), bytes);
        QVERIFY(font.IsEnabled(quint16(target + 3)) && !font.FindChar(0xE002));
        QCOMPARE(session.Stack().LogLines(),
                 QStringList(
                     u"[Range 0x0041-0x0044]: Copied to 0x%1."_s.arg(Hex4Text(quint16(target)))));
        session.Stack().Undo();
        QCOMPARE(Test::Snapshot(font), before);
        QVERIFY(!session.IsModified());
    }

    // Changes one character, makes one and removes one.
    void ReplacingIsOneStep()
    {
        Test::UndoSession session(MakeFont(FontFormat::Framed));
        Font& font = *session.CurrentFont();
        font.SetEnabled('A', 'A', false);
        const QByteArray before = Test::Snapshot(font);
        const auto action =
            std::make_shared<ActionReplaceChars>(session, "Changed %2.", QStringList(u"it"_s));
        action->Change('A').bitmap->SetPixelIndex(0, 0, 1);
        (void)action->Change('B'); // and leaves it
        (void)action->Change('E');
        action->Put('D', nullptr);
        QVERIFY(action->Run());
        QCOMPARE(session.Stack().LogLines(), QStringList(u"[Range 0x0041-0x0045]: Changed it."_s));
        QCOMPARE(action->AffectedCodes().Count(), 3);
        QVERIFY(!font.IsEnabled('A') && font.IsEnabled('E') && font.FindChar('D') == nullptr);
        const QByteArray after = Test::Snapshot(font);
        session.Stack().Undo();
        QCOMPARE(Test::Snapshot(font), before);
        session.Stack().Redo();
        QCOMPARE(Test::Snapshot(font), after);
        const auto nothing = std::make_shared<ActionReplaceChars>(session, "Changed.");
        (void)nothing->Change('A');
        QVERIFY(!nothing->Run());
    }

    void FontEdits_data()
    {
        const Test::Rows<int, int, int, int> row;
        for (const int format : {int(FontFormat::LegacyAA4), int(FontFormat::Framed)}) {
            row(QTest::addRow("insert top %d", format), format, 26, 2, 2);
            row(QTest::addRow("insert bottom %d", format), format, 27, 2, 2);
            row(QTest::addRow("delete top %d", format), format, 28, 2, 2);
            row(QTest::addRow("delete bottom %d", format), format, 29, 2, 2);
            row(QTest::addRow("insert beyond the limit %d", format), format, 27, 999, 251);
        }
        row(QTest::addRow("delete all"), int(FontFormat::AA2), 29, 9, 4);
        row(QTest::addRow("delete all of a legacy font"), int(FontFormat::Legacy), 29, 9, 3);
    }

    void FontEdits()
    {
        const auto [format, type, count, done] = Test::Row<int, int, int, int>();
        Test::UndoSession session(MakeFont(FontFormat(format)));
        const Font& font = *session.CurrentFont();
        const QByteArray before = Test::Snapshot(font);
        const auto action = std::make_shared<ActionFont>(session, ActionType(type));
        action->SetRepeat(count);
        QVERIFY(action->Run());
        const int sign = type < 28 ? 1 : -1;
        QCOMPARE(int(font.Metrics().height), 4 + sign * done);
        QCOMPARE(int(font.Metrics().baseline), 3 + (type % 2 == 0 ? sign * done : 0));
        QVERIFY(
            session.Stack().LogLines().contains(QString::fromLatin1(LogMessage(ActionType(type)))));
        session.Stack().Undo();
        QCOMPARE(int(font.Metrics().height), 4);
        const bool losesPixels = sign < 0 && IsLegacyFormat(FontFormat(format));
        QCOMPARE(Test::Snapshot(font) == before, !losesPixels);
        QCOMPARE(session.IsModified(), losesPixels);
    }

    void FontAtItsLimit()
    {
        Test::UndoSession session(MakeFont(FontFormat::AA2));
        session.CurrentFont()->SetHeight(255);
        QVERIFY(!std::make_shared<ActionFont>(session, ActionType::FontInsertRowTop)->Run());
        session.CurrentFont()->SetHeight(0);
        QVERIFY(!std::make_shared<ActionFont>(session, ActionType::FontDeleteRowBottom)->Run());
        // Steps that an offset has no room for are not taken, and not told.
        session.ReplaceFont(MakeFont(FontFormat::AA2), {});
        session.CurrentFont()->FindChar('A')->info.yPos = -126;
        const auto top = std::make_shared<ActionFont>(session, ActionType::FontDeleteRowTop);
        top->SetRepeat(3);
        QVERIFY(top->Run());
        QCOMPARE(int(session.CurrentFont()->Metrics().height), 2);
        QCOMPARE(session.Stack().LogLines().size(), 2);
        // The pixels of a legacy character must not vanish.
        session.ReplaceFont(MakeFont(FontFormat::Legacy), {});
        const auto deletion = std::make_shared<ActionFont>(session, ActionType::FontDeleteRowTop);
        deletion->SetRepeat(3);
        QVERIFY(deletion->Run());
        QVERIFY(!std::make_shared<ActionFont>(session, ActionType::FontDeleteRowBottom)->Run());
        QCOMPARE(session.Stack().LogLines().size(), 3);
    }

    void PixelEdits_data()
    {
        const Test::Rows<int, int, QString> row; // the index afterwards, from 1 of 3
        row("increase", 35, 2, u"Increased pixel index (65,1)."_s);
        row("decrease", 36, 0, u"Decreased pixel index (65,1)."_s);
        row("invert", 37, 2, u"Inverted pixel index (65,1)."_s);
        row("set to 3", 41, 3, u"Set pixel index (65,1) to 2."_s);
        row("set to itself", 39, 1, QString());
    }

    void PixelEdits()
    {
        const auto [type, index, log] = Test::Row<int, int, QString>();
        Test::UndoSession session(MakeFont(FontFormat::AA2));
        CharBitmap& bitmap = *session.CurrentFont()->FindChar('A')->bitmap;
        bitmap.SetPixelIndex(1, 2, 1);
        const auto action = std::make_shared<ActionPixelIndex>(session, ActionType(type));
        action->Args() = {.code = 'A', .x = 1, .y = 2};
        QCOMPARE(action->Run(), !log.isEmpty());
        QCOMPARE(bitmap.GetPixelIndex(1, 2), index);
        // The messages begin at %2: the code stands where x was meant to.
        QCOMPARE(session.Stack().LogLines().join(u'\n'), log);
        session.Stack().Undo();
        QCOMPARE(bitmap.GetPixelIndex(1, 2), 1);

        const auto missing = std::make_shared<ActionPixelIndex>(session, ActionType(type));
        missing->Args().code = 'C';
        QVERIFY(!missing->Run());
    }

    void States_data()
    {
        const Test::Rows<int, int, int, QByteArray, QString>
            row; // "A" and "D" are enabled at first
        row("enable", 30, int('A'), int('C'), QByteArray("ABCD"),
            u"[Range 0x0041-0x0043]: Enabled."_s);
        row("disable", 31, int('A'), int('A'), QByteArray("D"), u"[Char 0x0041]: Disabled."_s);
        row("disable all", 32, 0, 0xFFFF, QByteArray(), u"[Range 0x0000-0xFFFF]: Disabled."_s);
        row("toggle off", 33, int('A'), int('B'), QByteArray("D"),
            u"[Range 0x0041-0x0042]: Disabled."_s);
        row("toggle on", 33, int('B'), int('D'), QByteArray("ABCD"),
            u"[Range 0x0042-0x0044]: Enabled."_s);
        row("nothing to do", 30, int('D'), int('D'), QByteArray("AD"), QString());
    }

    void States()
    {
        const auto [type, first, last, enabled, log] =
            Test::Row<int, int, int, QByteArray, QString>();
        Test::UndoSession session(MakeFont(FontFormat::AA2));
        Font& font = *session.CurrentFont();
        font.SetEnabled('B', 'B', false);
        const QByteArray before = Test::Snapshot(font);
        const auto action = std::make_shared<ActionCharState>(session, ActionType(type));
        if (type != 32)
            action->Args() = {.first = quint16(first), .last = quint16(last), .previousCodes = {}};
        QCOMPARE(action->Run(), !log.isEmpty());
        for (int round = 0; round < 2; ++round) {
            QByteArray now;
            for (const char code : {'A', 'B', 'C', 'D'}) {
                if (font.IsEnabled(quint16(code)))
                    now += code;
            }
            QCOMPARE(now, enabled);
            QCOMPARE(session.Stack().LogLines().join(u'\n'), log);
            if (log.isEmpty())
                return;
            session.Stack().Undo();
            QCOMPARE(Test::Snapshot(font), before);
            session.Stack().Redo();
        }
        CodeSet others;
        action->ApplyTo(others);
        QCOMPARE(others.Test(quint16(first)), enabled.contains(char(first)));
    }

    void Deletion()
    {
        Test::UndoSession session(MakeFont(FontFormat::Framed));
        Font& font = *session.CurrentFont();
        const QByteArray before = Test::Snapshot(font);
        CodeSet codes;
        codes.SetRange('B', 'Z', true);
        QVERIFY(std::make_shared<ActionCharDelete>(session, codes)->Run());
        QVERIFY(font.FindChar('B') == nullptr && !font.EnabledCodes().Test('D'));
        QCOMPARE(session.Stack().LogLines(), QStringList{u"[Range 0x0042-0x0044]: Deleted."_s});
        session.Stack().Undo();
        QCOMPARE(Test::Snapshot(font), before);
        session.Stack().Redo();
        QVERIFY(!std::make_shared<ActionCharDelete>(session, codes)->Run());
    }
};

GLYPHOR_TEST(TestEditActions)

} // namespace Glyphor

#include "tst_edit_actions.moc"
