#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/editor/char_bitmap_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

namespace Glyphor {

using namespace Qt::StringLiterals;

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
        view_->SetCharacter(&character);
        QTest::qWait(40); // for the delayed layout
    }

    [[nodiscard]] QPoint Place(int column, int row) const
    {
        return view_->mapFromScene(view_->ItemAt(column, row)->rect().center());
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
            view_->SetCharacter(font_->FindChar('B'));
        }
        QCOMPARE(view_->ColumnCount(), 5);
        QCOMPARE(view_->RowCount(), 4);
        const QColor colours[] = {{}, QColor(255, 255, 128), QColor(128, 255, 255)};
        for (int row = 0; row < 4; ++row) {
            const CharPixelItem& item = *view_->ItemAt(1, row);
            const int state = states[row] - '0';
            QCOMPARE(int(item.CellState()), state);
            QCOMPARE(item.flags().testFlag(QGraphicsItem::ItemIsSelectable), state == 0);
            if (state != 0) {
                QCOMPARE(item.Colour(), colours[state]);
                QCOMPARE(item.PixelPosition(), QPoint(-1, -1));
                QVERIFY(!view_->SelectItem(view_->ItemAt(1, row)));
            }
        }
    }

    void Colours()
    {
        Show(FontFormat::AA4);
        Character& character = *font_->FindChar('B');
        for (const auto& [index, alpha] : {std::pair(0, 0), std::pair(5, 85), std::pair(15, 255)}) {
            character.bitmap->SetPixelIndex(2, 0, index);
            view_->SetCharacter(&character);
            const QColor colour = view_->ItemAt(2, 1)->Colour();
            QCOMPARE(colour.alpha(), alpha);
            QCOMPARE(colour.rgb() & 0xFFFFFF, 0U);
        }
        const QImage picture = view_->viewport()->grab().toImage();
        QVERIFY(picture.pixelColor(Place(2, 1)) == Qt::black);
        QVERIFY(picture.pixelColor(Place(2, 0)) == QColor(255, 255, 128));
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

    // Space takes the row of the grid for that of the bitmap.
    void Space()
    {
        Show(FontFormat::Standard);
        const CharBitmap& bitmap = *font_->FindChar('B')->bitmap;
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(3, 1));
        const int before = bitmap.GetPixelIndex(3, 1);
        const int other = bitmap.GetPixelIndex(3, 0);
        QSignalSpy inversions(view_.get(), &CharBitmapView::PixelInverted);
        QTest::keyClick(view_->viewport(), Qt::Key_Space);
        QCOMPARE(bitmap.GetPixelIndex(3, 1), 1 - before);
        QCOMPARE(bitmap.GetPixelIndex(3, 0), other);
        QCOMPARE(inversions.count(), 1);
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

    void Pencil()
    {
        Show(FontFormat::AA4);
        view_->SetPencil(true);
        QSignalSpy painted(view_.get(), &CharBitmapView::PixelPainted);
        QSignalSpy ends(view_.get(), &CharBitmapView::StrokeEnded);
        QTest::mousePress(view_->viewport(), Qt::LeftButton, {}, Place(0, 1));
        QTest::mouseMove(view_->viewport(), Place(1, 1));
        QTest::mouseMove(view_->viewport(), Place(1, 0)); // outside
        QTest::mouseRelease(view_->viewport(), Qt::LeftButton, {}, Place(1, 0));
        QCOMPARE(painted.count(), 2);
        QCOMPARE(painted[1], (QVariantList{1, 0, false}));
        QCOMPARE(ends.count(), 1);
    }

    // A fast mouse skips cells, and comes back to some.
    void PencilPaintsTheWayOnce()
    {
        Show(FontFormat::AA4);
        view_->SetPencil(true);
        QSignalSpy painted(view_.get(), &CharBitmapView::PixelPainted);
        QSignalSpy ends(view_.get(), &CharBitmapView::StrokeEnded);
        const auto move = [this](QPoint place, Qt::MouseButtons buttons) {
            QMouseEvent event(QEvent::MouseMove, place, view_->viewport()->mapToGlobal(place),
                              Qt::NoButton, buttons, Qt::NoModifier);
            QApplication::sendEvent(view_->viewport(), &event);
        };
        QTest::mousePress(view_->viewport(), Qt::LeftButton, {}, Place(0, 1));
        move(Place(4, 1), Qt::LeftButton);
        move(Place(0, 1), Qt::LeftButton);
        QCOMPARE(painted.count(), 5);
        move(Place(0, 2), Qt::NoButton); // the release went elsewhere
        QCOMPARE(ends.count(), 1);
        QCOMPARE(painted.count(), 5);
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
