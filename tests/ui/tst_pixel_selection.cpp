#include "support/rows.h"
#include "support/test_main.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/pixel_selection.h"
#include "window_fixture.h"

#include <QMouseEvent>

namespace Glyphor {

class TestPixelSelection : public QObject, Test::WindowFixture
{
    Q_OBJECT

    // "A" is 4 x 3 pixels large, and its box begins in the font's second row.
    void ShowFont(FontFormat format)
    {
        auto font = std::make_unique<Font>(format, EncodingType::Unicode);
        font->SetHeight(IsLegacyFormat(format) ? 3 : 5);
        for (const quint16 code : std::initializer_list<quint16>{'A', 'B'}) {
            const std::vector<uchar> empty(64);
            Character& character = font->PutChar(code, {4, 3, 0, 1, 5}, empty);
            const QByteArray indices = "123045600000";
            for (int at = 0; at < indices.size(); ++at)
                character.bitmap->SetPixelIndex(at % 4, at / 4, indices[at] - '0');
        }
        session_->ReplaceFont(std::move(font), QStringLiteral("a.sif"));
        window_->ActionChanged(nullptr);
        window_->Table().SelectCode('A');
        window_->Editor().setFocus();
        QTest::qWait(40); // for the delayed layout
    }

    // The rows of "A", a digit for each pixel.
    [[nodiscard]] QByteArray Picture() const
    {
        const Character& character = *CurrentFont().FindChar('A');
        QByteArray text;
        for (int y = 0; y < character.info.Rows(); ++y) {
            for (int x = 0; x < character.info.width; ++x)
                text += QByteArray::number(character.bitmap->GetPixelIndex(x, y), 16);
            text += ' ';
        }
        return text.trimmed();
    }

    [[nodiscard]] PixelSelection& Selection() const
    {
        return *window_->Editor().findChild<PixelSelection*>();
    }

    [[nodiscard]] QPoint Place(int x, int y) const
    {
        const CharBitmapView& editor = window_->Editor();
        return editor.mapFromScene(editor.CellItem(x, y + editor.Top())->rect().center());
    }

    void Drag(QPoint from, QPoint to) const
    {
        QWidget* const viewport = window_->Editor().viewport();
        QTest::mousePress(viewport, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(&window_->Editor(), key, modifiers);
    }

    // A letter for each step.
    void Do(char step) const
    {
        switch (step) {
        case 'r':
            return Press(Qt::Key_Right);
        case 'l':
            return Press(Qt::Key_Left);
        case 'd':
            return Press(Qt::Key_Down);
        case 'x':
            return Press(Qt::Key_Delete);
        case ' ':
            return Press(Qt::Key_Space);
        case 'S': // the key of a shortcut
            return Press(Qt::Key_3);
        case 'E':
            return Press(Qt::Key_Right, Qt::ShiftModifier);
        case 'F':
            return Trigger(WindowCommand::FillPixels);
        case 'H':
            return Trigger(ActionType::FlipHorizontally);
        case 'V':
            return Trigger(ActionType::FlipVertically);
        case 'R':
            return Trigger(ActionType::RotateRight);
        case 'L':
            return Trigger(ActionType::RotateLeft);
        default:
            QFAIL("no such step");
        }
    }

private Q_SLOTS:
    void init() { OpenWindow(); }
    void cleanup() { CloseWindow(); }

    void Steps_data()
    {
        const Test::Rows<FontFormat, QByteArray, QByteArray, QRect, int> row;
        constexpr auto grey = FontFormat::AA4;
        // From 1 2 / 4 5 on.
        row("moved", grey, "r", "0120 0450 0000", {1, 0, 2, 2}, 1);
        row("moved over others, which come back", grey, "rd", "0030 0120 0450", {1, 1, 2, 2}, 2);
        row("over the edge", grey, "rrrr", "0031 0064 0000", {3, 0, 2, 2}, 3);
        row("over the edge and back", grey, "rrrrl", "0012 0045 0000", {2, 0, 2, 2}, 4);
        row("deleted", grey, "x", "0030 0060 0000", {0, 0, 2, 2}, 1);
        row("inverted", grey, " ", "ed30 ba60 0000", {0, 0, 2, 2}, 1);
        row("set", grey, "S", "3330 3360 0000", {0, 0, 2, 2}, 1);
        row("filled", grey, "F", "ff30 ff60 0000", {0, 0, 2, 2}, 1);
        row("flipped", grey, "HV", "5430 2160 0000", {0, 0, 2, 2}, 2);
        row("rotated", grey, "R", "4130 5260 0000", {0, 0, 2, 2}, 1);
        row("larger, and rotated in its corner", grey, "EL", "3600 2500 1400", {0, 0, 2, 3}, 1);
        row("larger, rotated and moved", grey, "ELr", "0360 0250 0140", {1, 0, 2, 3}, 2);
        row("too wide to be rotated", grey, "EEL", "1230 4560 0000", {0, 0, 4, 2}, 0);
        row("in a legacy font", FontFormat::LegacyAA4, "dH", "0030 2160 5400", {0, 1, 2, 2}, 2);
        row("with a frame", FontFormat::Framed, "d", "0010 1000 0100", {0, 1, 2, 2}, 1);
    }

    // Each is undone as one, and brings back everything.
    void Steps()
    {
        const auto [format, steps, expected, area, count] =
            Test::Row<FontFormat, QByteArray, QByteArray, QRect, int>();
        ShowFont(format);
        const QByteArray before = Test::Snapshot(CurrentFont());
        Drag(Place(0, 0), Place(1, 1));
        QCOMPARE(Selection().Area(), QRect(0, 0, 2, 2));
        for (const char step : steps)
            Do(step);
        QCOMPARE(Picture(), expected);
        QCOMPARE(Selection().Area(), area);
        QCOMPARE(history_->count(), count);
        if (format == FontFormat::Framed) {
            const QByteArray bytes = CurrentFont().FindChar('A')->bitmap->DataAsList();
            CurrentFont().FindChar('A')->bitmap->AssignData(bytes);
            QCOMPARE(CurrentFont().FindChar('A')->bitmap->DataAsList(), bytes);
        }
        while (history_->canUndo())
            Trigger(WindowCommand::Undo);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
        QVERIFY(!session_->IsModified());
    }

    void TheMouseMoves()
    {
        ShowFont(FontFormat::AA4);
        Drag(Place(0, 0), Place(1, 0));
        Drag(Place(1, 0), Place(3, 2));
        QCOMPARE(Picture(), QByteArray("0030 4560 0012"));
        QCOMPARE(session_->Stack().LogLines(), QStringList(u"[Char 0x0041]: Moved pixels."_s));
        Drag(Place(3, 2), Place(3, 2) + QPoint(1000, 1000));
        QCOMPARE(Selection().Area(), QRect(3, 2, 2, 1));
        QCOMPARE(Picture(), QByteArray("0030 4560 0001"));
    }

    void Ends_data()
    {
        const Test::Rows<int> row;
        const char* const names[] = {"click", "Esc", "other character", "other box", "undo"};
        for (int way = 0; way < 5; ++way)
            row(names[way], way);
    }

    void Ends()
    {
        const auto [way] = Test::Row<int>();
        ShowFont(FontFormat::AA4);
        Trigger(ActionType::FlipHorizontally);
        Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Selection().Area(), QRect(0, 0, 4, 3));
        switch (way) {
        case 0:
            QTest::mouseClick(window_->Editor().viewport(), Qt::LeftButton, {}, Place(2, 1));
            QCOMPARE(window_->Editor().SelectedPixel(), QPoint(2, 1));
            break;
        case 1:
            Press(Qt::Key_Escape);
            break;
        case 2:
            window_->Table().SelectCode('B');
            break;
        case 3:
            Trigger(ActionType::DeleteRowTop);
            break;
        default:
            Trigger(WindowCommand::Undo);
            break;
        }
        QVERIFY(Selection().IsEmpty());
        QVERIFY(!IsEnabled(WindowCommand::FillPixels));
    }

    // With the focus on the table the characters are flipped.
    void TheFocusSaysWhatIsFlipped()
    {
        ShowFont(FontFormat::AA4);
        Drag(Place(0, 0), Place(1, 1));
        window_->Table().setFocus();
        Trigger(ActionType::FlipHorizontally);
        QCOMPARE(Picture(), QByteArray("0321 0654 0000"));
    }

    // The keys go on from the pixel that is selected, which stays alone where they go back to it.
    void KeysSelect()
    {
        ShowFont(FontFormat::AA4);
        QTest::mouseClick(window_->Editor().viewport(), Qt::LeftButton, {}, Place(1, 1));
        QVERIFY(Selection().IsEmpty());
        const std::pair<Qt::Key, QRect> steps[] = {{Qt::Key_Up, {1, 0, 1, 2}},
                                                   {Qt::Key_Down, {}},
                                                   {Qt::Key_Left, {0, 1, 2, 1}},
                                                   {Qt::Key_Left, {0, 1, 2, 1}}};
        for (const auto& [key, area] : steps) {
            Press(key, Qt::ShiftModifier);
            QCOMPARE(Selection().Area(), area);
        }
    }

    void TheOutlineShowsOnAnyGrey()
    {
        ShowFont(FontFormat::AA4);
        CharBitmapView& editor = window_->Editor();
        for (const int index : {0, 8, 15}) {
            Trigger(WindowCommand::SelectAllPixels);
            Trigger(ActionType(int(ActionType::SetPixelIndex0) + index));
            Press(Qt::Key_Escape);
            Drag(Place(1, 1), Place(2, 2));
            const QImage image = editor.viewport()->grab().toImage();
            const QPoint corner = editor.mapFromScene(editor.CellItem(1, 2)->rect().topLeft());
            QList<int> greys;
            for (int x = corner.x() + 3; x < Place(2, 1).x(); ++x)
                greys.append(qGray(image.pixel(x, corner.y())));
            const auto [darkest, lightest] = std::ranges::minmax(greys);
            QVERIFY2(lightest - darkest > 200, qPrintable(QString::number(index)));
        }
    }
};

GLYPHOR_TEST(TestPixelSelection)

} // namespace Glyphor

#include "tst_pixel_selection.moc"
