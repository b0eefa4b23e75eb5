#include "actions/action_set_font_metrics.h"
#include "actions/edit_actions.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "support/undo_session.h"

#include <QTest>

#include <random>

namespace Glyphor {

namespace {

constexpr quint16 FirstCode = 0x41;
constexpr quint16 LastCode = 0x4A;

enum class Kind { Any, Exact };

// Random edits of a font whose characters lie at every limit: any, or those alone that lose
// nothing.
class RandomEdits
{
public:
    RandomEdits(FontFormat format, unsigned seed, Kind kind)
        : format_(format), isExact_(kind == Kind::Exact), numbers_(seed)
    {
        session_.ReplaceFont(MakeFont(), {});
        saved_ = Test::Snapshot(*session_.CurrentFont());
    }

    void Edit()
    {
        const auto first = quint16(Number(FirstCode, LastCode));
        const auto last = quint16(Number(first, LastCode));
        switch (Number(0, 9)) {
        case 0:
            EditFont();
            break;
        case 1:
        case 2:
            EditPixel(first);
            break;
        case 3:
            EditState(first, last);
            break;
        case 4: {
            CodeSet codes;
            codes.SetRange(first, first, true);
            std::make_shared<ActionCharDelete>(session_, codes)->Run();
            break;
        }
        case 5: {
            const int type = Number(int(ActionType::SetXPos), int(ActionType::SetHeight));
            const auto action = std::make_shared<ActionChar>(session_, ActionType(type));
            action->Args() = {first, last, Number(-150, 300)};
            action->Run();
            break;
        }
        case 6: {
            const auto action =
                std::make_shared<ActionChar>(session_, ActionType(Number(140, 144)));
            action->Args() = {first, last, Number(FirstCode, LastCode)};
            action->SetRepeat(Repeat());
            action->Run();
            break;
        }
        default:
            EditChars(first, last);
            break;
        }
    }

    void Save()
    {
        session_.SetSaved({});
        saved_ = Test::Snapshot(*session_.CurrentFont());
    }

    // Undoes or redoes a few actions.
    void Wander()
    {
        for (int moves = Number(0, 6); moves > 0; --moves) {
            if (Number(0, 2) > 0)
                session_.Stack().Undo();
            else
                session_.Stack().Redo();
        }
    }

    [[nodiscard]] bool IsAsSaved() const
    {
        return Test::Snapshot(*session_.CurrentFont()) == saved_;
    }

    Test::UndoSession& CurrentSession() { return session_; }
    int Number(int least, int most)
    {
        return std::uniform_int_distribution<int>(least, most)(numbers_);
    }

private:
    int Repeat() { return Number(0, 9) == 0 ? 300 : Number(1, 3); }

    void EditChars(quint16 first, quint16 last)
    {
        const int lastType = isExact_ ? 22 : 26;
        const int choice = Number(8, lastType);
        const auto type = choice == lastType ? ActionType::Toggle : ActionType(choice);
        const auto action = std::make_shared<ActionChar>(session_, type);
        action->Args() = {first, last};
        action->SetRepeat(Repeat());
        action->Run();
    }

    void EditState(quint16 first, quint16 last)
    {
        const auto action = std::make_shared<ActionCharState>(session_, ActionType(Number(30, 33)));
        if (action->Type() != ActionType::DisableAll)
            action->Args() = {.first = first, .last = last, .previousCodes = {}};
        action->Run();
    }

    void EditFont()
    {
        if (Number(0, 1) == 0) {
            const auto metric = FontMetric(Number(0, int(FontMetric::CapitalHeight)));
            std::make_shared<ActionSetFontMetrics>(session_, metric, Number(-1, 20))->Run();
            return;
        }
        const int lastType = isExact_ && IsLegacyFormat(format_) ? 27 : 29;
        const auto action =
            std::make_shared<ActionFont>(session_, ActionType(Number(26, lastType)));
        action->SetRepeat(Repeat());
        action->Run();
    }

    void EditPixel(quint16 code)
    {
        if (isExact_ && format_ == FontFormat::Framed)
            return;
        const auto action =
            std::make_shared<ActionPixelIndex>(session_, ActionType(Number(35, 53)));
        const Character* const character = session_.CurrentFont()->FindChar(code);
        const int width = character != nullptr ? character->info.width : 0;
        const int rows = character != nullptr ? character->info.Rows() : 0;
        action->Args() = {.code = code, .x = Number(-1, width), .y = Number(-1, rows)};
        action->Run();
    }

    // Pixels, those of a frame too, are as random as a file may have them.
    void AddChar(Font& font, quint16 code, const CharMetrics& metrics)
    {
        CharMetrics own = metrics;
        if (IsLegacyFormat(format_)) {
            own.height = font.Metrics().height;
            own.xPos = 0;
            own.yPos = 0;
        }
        const int length = BytesPerLine(own.width, font.Metrics().bitsPerPixel);
        std::vector<uchar> bytes(std::size_t(length * own.height * PlaneCount(format_)));
        for (uchar& byte : bytes)
            byte = uchar(Number(0, 1) * Number(0, 255));
        font.PutChar(code, own, bytes);
    }

    std::unique_ptr<Font> MakeFont()
    {
        auto font = std::make_unique<Font>(format_, EncodingType::Unicode);
        font->SetHeight(quint8(Number(0, 2) == 0 ? 254 : Number(1, 12)));
        font->SetBaseline(quint8(Number(0, 255)));
        const CharMetrics metrics[] = {
            {.width = 0, .height = 0, .xPos = 0, .yPos = 0, .cursorDistance = 0},
            {.width = 0, .height = 0, .xPos = -128, .yPos = 127, .cursorDistance = 255},
            {.width = 1, .height = 1, .xPos = 127, .yPos = 126, .cursorDistance = 1},
            {.width = 9, .height = 3, .xPos = -1, .yPos = 125, .cursorDistance = 10},
            {.width = 0, .height = 4, .xPos = 0, .yPos = -128, .cursorDistance = 3},
            {.width = 5, .height = 0, .xPos = 0, .yPos = 127, .cursorDistance = 3},
            {.width = 255, .height = 255, .xPos = -128, .yPos = -127, .cursorDistance = 255},
            {.width = 8, .height = 254, .xPos = 0, .yPos = 0, .cursorDistance = 8},
        };
        quint16 code = FirstCode;
        for (const CharMetrics& each : metrics)
            AddChar(*font, code++, each);
        return font;
    }

    FontFormat format_;
    bool isExact_;
    std::mt19937 numbers_;
    Test::UndoSession session_;
    QByteArray saved_;
};

} // namespace

class TestUndoRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Formats_data()
    {
        QTest::addColumn<int>("format");
        for (int format = 0; format < FormatCount; ++format)
            QTest::addRow("format %d", format) << format;
    }

    // A font that counts as unmodified is what was saved, wherever undo and redo went.
    void Formats()
    {
        QFETCH(const int, format);
        for (unsigned seed = 0; seed < 12; ++seed) {
            RandomEdits edits(FontFormat(format), seed, Kind::Any);
            for (int step = 0; step < 25; ++step) {
                edits.Edit();
                if (edits.Number(0, 9) == 0)
                    edits.Save();
                edits.Wander();
                QVERIFY2(edits.CurrentSession().IsModified() || edits.IsAsSaved(),
                         qPrintable(QStringLiteral("seed %1, step %2").arg(seed).arg(step)));
            }
        }
    }

    void WholeUndo_data() { Formats_data(); }

    // Edits that lose nothing come back exactly, and the font knows it.
    void WholeUndo()
    {
        QFETCH(const int, format);
        for (unsigned seed = 0; seed < 12; ++seed) {
            RandomEdits edits(FontFormat(format), seed, Kind::Exact);
            for (int step = 0; step < 20; ++step)
                edits.Edit();
            while (edits.CurrentSession().Stack().CanUndo())
                edits.CurrentSession().Stack().Undo();
            QVERIFY2(edits.IsAsSaved(), qPrintable(QStringLiteral("seed %1").arg(seed)));
            QVERIFY(!edits.CurrentSession().IsModified());
        }
    }
};

GLYPHOR_TEST(TestUndoRandom)

} // namespace Glyphor

#include "tst_undo_random.moc"
