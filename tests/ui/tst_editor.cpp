#include "actions/session.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/pencil_tool.h"
#include "ui/support/undo_stack.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

namespace Glyphor {

class TestEditor : public QObject
{
    Q_OBJECT

    std::unique_ptr<CharBitmapView> view_;
    std::unique_ptr<Font> font_;

    // A font of 4 rows whose "B" is 5 pixels wide and has the rows 1 and 2 of them.
    void Show(FontFormat format)
    {
        font_ = Test::MakeSampleFont(format);
        font_->SetHeight(4);
        Character& character = *font_->FindChar('B');
        if (!IsLegacyFormat(format))
            character.info.yPos = 1;
        character.bitmap->AdjustData();
        view_ = std::make_unique<CharBitmapView>();
        view_->resize(220, 200);
        view_->show();
        view_->SetCharacter(&character, 'B');
        QTest::qWait(40); // for the delayed layout
    }

    [[nodiscard]] QPoint Place(int column, int row) const
    {
        return view_->mapFromScene(view_->CellItem(column, row)->rect().center());
    }

    [[nodiscard]] QPoint CurrentCell() const
    {
        const CharPixelItem* const item = view_->CurrentPixel();
        return item != nullptr ? QPoint(item->Column(), item->Row()) : QPoint(-1, -1);
    }

private Q_SLOTS:
    void Cells_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QByteArray>("states"); // of the second column, from the top
        QTest::newRow("legacy") << int(FontFormat::LegacyAA4) << QByteArray("0000");
        QTest::newRow("standard") << int(FontFormat::AA4) << QByteArray("1001");
        QTest::newRow("framed") << int(FontFormat::Framed) << QByteArray("1021");
    }

    void Cells()
    {
        QFETCH(const int, format);
        QFETCH(const QByteArray, states);
        Show(FontFormat(format));
        if (FontFormat(format) == FontFormat::Framed) {
            for (int x = 0; x < 5; ++x)
                for (int y = 0; y < 2; ++y)
                    font_->FindChar('B')->bitmap->SetPixelIndex(x, y, int(x == 1 && y == 0));
            view_->SetCharacter(font_->FindChar('B'), 'B');
        }
        QCOMPARE(view_->ColumnCount(), 5);
        QCOMPARE(view_->RowCount(), 4);
        const QColor colours[] = {{}, QColor(255, 255, 128), QColor(128, 255, 255)};
        for (int row = 0; row < 4; ++row) {
            const CharPixelItem& item = *view_->CellItem(1, row);
            const int state = states[row] - '0';
            QCOMPARE(int(item.CellState()), state);
            QCOMPARE(item.flags().testFlag(QGraphicsItem::ItemIsSelectable), state == 0);
            if (state != 0) {
                QCOMPARE(item.Colour(), colours[state]);
                QCOMPARE(item.PixelPosition(), QPoint(-1, -1));
                QVERIFY(!view_->SelectItem(view_->CellItem(1, row)));
            }
        }
    }

    void Colours()
    {
        Show(FontFormat::AA4);
        Character& character = *font_->FindChar('B');
        for (const auto& [index, alpha] : {std::pair(0, 0), std::pair(5, 85), std::pair(15, 255)}) {
            character.bitmap->SetPixelIndex(2, 0, index);
            view_->SetCharacter(&character, 'B');
            const QColor colour = view_->CellItem(2, 1)->Colour();
            QCOMPARE(colour.alpha(), alpha);
            QCOMPARE(colour.rgb() & 0xFFFFFF, 0U);
        }
        const QImage picture = view_->viewport()->grab().toImage();
        QVERIFY(picture.pixelColor(Place(2, 1)) == Qt::black);
        QVERIFY(picture.pixelColor(Place(2, 0)) == QColor(255, 255, 128));
    }

    // Of the baseline and the cursor distance, which may lie beyond the pixels.
    void Guides()
    {
        Show(FontFormat::AA4);
        Character& character = *font_->FindChar('B');
        character.info.xPos = 1;
        view_->SetCharacter(&character, 'B');
        const QImage picture = view_->viewport()->grab().toImage();
        const auto colour = [&](qreal column, qreal row) {
            return picture.pixelColor(
                view_->mapFromScene(QPointF(column, row) * view_->CellSize()));
        };
        QCOMPARE(colour(2.5, font_->Metrics().baseline), QColor(230, 30, 30));
        QCOMPARE(colour(character.info.cursorDistance - 1, 2.5), QColor(40, 90, 220));
        character.info.cursorDistance = 200; // too far away
        view_->SetCharacter(&character, 'B');
        QCOMPARE(view_->scene()->width(), 5 * view_->CellSize());
    }

    void MouseAndKeys()
    {
        Show(FontFormat::AA2);
        QSignalSpy selections(view_.get(), &CharBitmapView::PixelSelected);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(1, 0));
        QCOMPARE(CurrentCell(), QPoint(-1, -1)); // outside of the character
        QVERIFY(view_->scene()->focusItem() == nullptr);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(1, 1));
        QCOMPARE(CurrentCell(), QPoint(1, 1));
        QCOMPARE(view_->CurrentPixel()->PixelPosition(), QPoint(1, 0));
        QCOMPARE(view_->accessibleDescription(),
                 u"Index of pixel [1, 0]: %1"_s.arg(
                     view_->CurrentCharacter()->bitmap->GetPixelIndex(1, 0)));
        QVERIFY(selections.count() > 0);
        const auto press = [this](Qt::Key key) { QTest::keyClick(view_->viewport(), key); };
        press(Qt::Key_Up); // there is no pixel
        QCOMPARE(CurrentCell(), QPoint(1, 1));
        press(Qt::Key_Right);
        press(Qt::Key_Down);
        QCOMPARE(CurrentCell(), QPoint(2, 2));
        press(Qt::Key_Left);
        QCOMPARE(CurrentCell(), QPoint(1, 2));
    }

    // The pencil draws over the frame of its own ink; only Ctrl and the arrow keys cross one.
    void FramesAreNoBarrier()
    {
        UndoStack history;
        Session session(history);
        Show(FontFormat::Framed);
        session.ReplaceFont(std::move(font_), {});
        const CharBitmap& bitmap = *view_->CurrentCharacter()->bitmap;
        for (int x = 0; x < 5; ++x)
            for (int y = 0; y < 2; ++y)
                session.CurrentFont()->FindChar('B')->bitmap->SetPixelIndex(x, y, 0);
        view_->SetCharacter(view_->CurrentCharacter(), 'B');
        PencilTool pencil(session, history, *view_);
        const std::unique_ptr<QSpinBox> box(&pencil.IndexBox());
        pencil.ShowFont(session.CurrentFont());
        pencil.Command().setChecked(true);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(2, 1));
        view_->SetCharacter(view_->CurrentCharacter(), 'B');
        QCOMPARE(view_->CellItem(3, 1)->CellState(), CharPixelItem::Frame);
        QVERIFY(view_->SelectItem(view_->CellItem(4, 1)));
        view_->setFocus();
        QTest::keyClick(view_->viewport(), Qt::Key_Left);
        QCOMPARE(CurrentCell(), QPoint(4, 1));
        QTest::keyClick(view_->viewport(), Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(CurrentCell(), QPoint(2, 1));
        QTest::keyClick(view_->viewport(), Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(CurrentCell(), QPoint(2, 1));
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(3, 1));
        QCOMPARE(bitmap.GetPixelIndex(3, 0), 1);
        QCOMPARE(bitmap.GetPixelIndex(2, 0), 1);
    }

    // With a dark line and a light one there is contrast to any grey.
    void SelectedPixelStandsOut()
    {
        Show(FontFormat::AA4);
        const auto brightness = [this](QPoint place) {
            return qGray(view_->viewport()->grab().toImage().pixel(place));
        };
        for (int index = 0; index < 16; ++index) {
            font_->FindChar('B')->bitmap->SetPixelIndex(2, 1, index);
            view_->SetCharacter(view_->CurrentCharacter(), 'B');
            QVERIFY(view_->SelectItem(view_->CellItem(2, 2)));
            const QRect cell = view_->mapFromScene(view_->CellItem(2, 2)->rect()).boundingRect();
            QVERIFY(brightness({cell.left(), cell.center().y()}) > 200);
            QVERIFY(brightness({cell.left() + 1, cell.center().y()}) < 50);
        }
        view_->ClearPixel();
    }

    // Space takes the row of the grid for that of the bitmap.
    void Space()
    {
        Show(FontFormat::Standard);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(3, 1));
        QSignalSpy inversions(view_.get(), &CharBitmapView::InversionRequested);
        QTest::keyClick(view_->viewport(), Qt::Key_Space);
        QCOMPARE(inversions.count(), 1);
        QCOMPARE(inversions[0], (QVariantList{3, 1}));
    }

    void HoverTellsTheIndex()
    {
        Show(FontFormat::AA4);
        font_->FindChar('B')->bitmap->SetPixelIndex(2, 1, 9);
        QSignalSpy texts(view_.get(), &CharBitmapView::StatusChanged);
        QTest::mouseMove(view_->viewport(), Place(2, 2));
        QTRY_COMPARE(texts.count(), 1);
        QCOMPARE(texts.takeFirst()[0].toString(), u"Index of pixel [2, 1]: 9"_s);
        QTest::mouseMove(view_->viewport(), Place(2, 0));
        QTRY_COMPARE(texts.count(), 1);
        QCOMPARE(texts.takeFirst()[0].toString(), QString());
    }

    // A fast mouse skips cells, comes back to some, and is let go elsewhere.
    void PencilPaintsTheWayOnce()
    {
        UndoStack history;
        Session session(history);
        Show(FontFormat::AA4);
        session.ReplaceFont(std::move(font_), {});
        PencilTool pencil(session, history, *view_);
        const std::unique_ptr<QSpinBox> box(&pencil.IndexBox());
        pencil.ShowFont(session.CurrentFont());
        pencil.Command().setChecked(true);
        QSignalSpy ends(&pencil, &PencilTool::StrokeEnded);
        const auto move = [this](QPoint place, Qt::MouseButtons buttons) {
            QMouseEvent event(QEvent::MouseMove, place, view_->viewport()->mapToGlobal(place),
                              Qt::NoButton, buttons, Qt::NoModifier);
            QApplication::sendEvent(view_->viewport(), &event);
        };
        const CharBitmap& bitmap = *view_->CurrentCharacter()->bitmap;
        for (int x = 0; x < 5; ++x)
            session.CurrentFont()->FindChar('B')->bitmap->SetPixelIndex(x, 0, 0);
        QTest::mousePress(view_->viewport(), Qt::LeftButton, {}, Place(0, 1));
        move(Place(4, 1), Qt::LeftButton);
        move(Place(4, 0), Qt::LeftButton); // outside
        for (int x = 0; x < 5; ++x)
            QCOMPARE(bitmap.GetPixelIndex(x, 0), 15);
        pencil.IndexBox().setValue(3);
        move(Place(0, 1), Qt::LeftButton);
        QCOMPARE(bitmap.GetPixelIndex(2, 0), 15);
        const int below = bitmap.GetPixelIndex(0, 1);
        move(Place(0, 2), Qt::NoButton);
        QCOMPARE(ends.count(), 1);
        QCOMPARE(bitmap.GetPixelIndex(0, 1), below);
        QCOMPARE(history.count(), 1);
    }

    void KeysAloneSelect()
    {
        Show(FontFormat::AA4);
        view_->setFocus();
        QTest::keyClick(view_->viewport(), Qt::Key_Down);
        QCOMPARE(CurrentCell(), QPoint(0, 1));
    }
};

GLYPHOR_TEST(TestEditor)

} // namespace Glyphor

#include "tst_editor.moc"
