#include "actions/session.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/drawing_tools.h"
#include "ui/editor/index_palette.h"
#include "ui/support/undo_stack.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

namespace Glyphor {

class TestEditor : public QObject
{
    Q_OBJECT

    std::unique_ptr<Font> font_;
    std::unique_ptr<UndoStack> history_;
    std::unique_ptr<Session> session_;
    std::unique_ptr<CharBitmapView> view_;
    std::unique_ptr<IndexPalette> palette_;
    DrawingTools* tools_ = nullptr; // the view's

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

    void Clear()
    {
        Character& character = *font_->FindChar('B');
        for (int x = 0; x < 5; ++x)
            for (int y = 0; y < 4; ++y)
                character.bitmap->SetPixelIndex(x, y, 0);
        view_->SetCharacter(&character, 'B');
    }

    // The session takes the font.
    void StartTools()
    {
        history_ = std::make_unique<UndoStack>();
        session_ = std::make_unique<Session>(*history_);
        session_->ReplaceFont(std::move(font_), {});
        tools_ = new DrawingTools(*session_, *view_);
        palette_.reset(&tools_->Palette());
        tools_->ShowFont(session_->CurrentFont());
    }

    void ShowDrawing()
    {
        Show(FontFormat::LegacyAA4);
        Clear();
        font_->FindChar('B')->bitmap->SetPixelIndex(0, 2, 2);
        view_->SetCharacter(view_->CurrentCharacter(), 'B');
        StartTools();
    }

    // The indices of the font's character row by row, and those that the cells show.
    [[nodiscard]] QString Pixels() const
    {
        const Character& character = *session_->CurrentFont()->FindChar('B');
        return Rows(character.info.Rows(),
                    [&](int x, int y) { return character.bitmap->GetPixelIndex(x, y); });
    }

    [[nodiscard]] QString ShownPixels() const
    {
        return Rows(view_->RowCount(),
                    [this](int x, int y) { return view_->CellItem(x, y)->Colour().alpha() / 17; });
    }

    [[nodiscard]] static QString Rows(int count, const std::function<int(int, int)>& index)
    {
        QStringList rows(count);
        for (int y = 0; y < count; ++y)
            for (int x = 0; x < 5; ++x)
                rows[y] += QString::number(index(x, y), 16);
        return rows.join(u' ');
    }

    void Move(QPoint place, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = {}) const
    {
        QMouseEvent event(QEvent::MouseMove, place, view_->viewport()->mapToGlobal(place),
                          Qt::NoButton, buttons, modifiers);
        QApplication::sendEvent(view_->viewport(), &event);
    }

    // From cell to cell, without a release.
    void Drag(const QList<QPoint>& way, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mousePress(view_->viewport(), Qt::LeftButton, modifiers, Place(way.first()));
        for (const QPoint cell : way.sliced(1))
            Move(Place(cell), Qt::LeftButton, modifiers);
    }

    [[nodiscard]] QPoint Place(QPoint cell) const
    {
        return view_->mapFromScene((QPointF(cell) + QPointF(0.5, 0.5)) * view_->CellSize());
    }

    [[nodiscard]] QPoint Place(int column, int row) const { return Place({column, row}); }

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
        Show(FontFormat::Framed);
        Clear();
        StartTools();
        tools_->SetTool(EditorTool::Pencil);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(2, 1));
        QCOMPARE(view_->CellItem(3, 1)->CellState(), CharPixelItem::Frame);
        view_->SetCharacter(session_->CurrentFont()->FindChar('B'), 'B');
        QVERIFY(view_->SelectItem(view_->CellItem(4, 1)));
        view_->setFocus();
        QTest::keyClick(view_->viewport(), Qt::Key_Left);
        QCOMPARE(CurrentCell(), QPoint(4, 1));
        QTest::keyClick(view_->viewport(), Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(CurrentCell(), QPoint(2, 1));
        QTest::keyClick(view_->viewport(), Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(CurrentCell(), QPoint(2, 1));
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Place(3, 1));
        QCOMPARE(Pixels(), u"00110 00000"_s);
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

    void Tools_data()
    {
        QTest::addColumn<int>("tool");
        QTest::addColumn<QList<QPoint>>("way");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("pixels");
        QTest::addColumn<QString>("log");
        const auto row = [](const char* name, EditorTool tool, const QList<QPoint>& way,
                            const QString& pixels, const QString& log, int modifiers = 0) {
            QTest::newRow(name) << int(tool) << way << modifiers << pixels << log;
        };
        row("stroke", EditorTool::Pencil, {{0, 0}, {4, 0}, {4, 3}, {4, 0}},
            u"77777 00007 20007 00007"_s, u"Drew a stroke with index 7."_s);
        row("inverting stroke", EditorTool::Pencil, {{0, 1}, {0, 2}, {0, 0}},
            u"f0000 f0000 d0000 00000"_s, u"Inverted the pixels of a stroke."_s,
            Qt::ControlModifier);
        row("eraser", EditorTool::Eraser, {{0, 0}, {0, 3}}, u"00000 00000 00000 00000"_s,
            u"Erased the pixels of a stroke."_s);
        row("line", EditorTool::Line, {{0, 3}, {0, 0}, {4, 1}}, u"00000 00077 27700 70000"_s,
            u"Drew a line with index 7 from (0,3) to (4,1)."_s);
        row("level line", EditorTool::Line, {{0, 0}, {4, 1}}, u"77777 00000 20000 00000"_s,
            u"Drew a line with index 7 from (0,0) to (4,0)."_s, Qt::ShiftModifier);
        row("rectangle", EditorTool::Rectangle, {{3, 3}, {0, 0}, {0, 1}},
            u"00000 77770 70070 77770"_s, u"Drew a rectangle with index 7 from (3,3) to (0,1)."_s);
        row("square", EditorTool::FilledRectangle, {{1, 1}, {3, 2}}, u"00000 07770 27770 07770"_s,
            u"Filled a rectangle with index 7 from (1,1) to (3,3)."_s, Qt::ShiftModifier);
        row("beyond the edge", EditorTool::Rectangle, {{3, 1}, {9, 3}},
            u"00000 00077 20070 00077"_s, u"Drew a rectangle with index 7 from (3,1) to (9,3)."_s);
        row("area", EditorTool::Fill, {{4, 3}, {0, 2}}, u"77777 77777 27777 77777"_s,
            u"Filled the area at (4,3) with index 7."_s);
        row("area of one", EditorTool::Fill, {{0, 2}}, u"00000 00000 70000 00000"_s,
            u"Filled the area at (0,2) with index 7."_s);
    }

    // In a bitmap of 5 x 4 with one pixel, whose index is 2.
    void Tools()
    {
        QFETCH(const int, tool);
        QFETCH(const QList<QPoint>, way);
        QFETCH(const int, modifiers);
        QFETCH(const QString, pixels);
        QFETCH(const QString, log);
        ShowDrawing();
        tools_->SetTool(EditorTool(tool));
        tools_->Palette().SetIndex(7);
        Drag(way, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(ShownPixels(), pixels); // while it is drawn
        QCOMPARE(Pixels(), u"00000 00000 20000 00000"_s);
        QTest::mouseRelease(view_->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(modifiers),
                            Place(way.last()));
        QCOMPARE(Pixels(), pixels);
        QCOMPARE(session_->Stack().LogLines().join(u'|'), u"[Char 0x0042]: "_s + log);
        history_->undo();
        QCOMPARE(Pixels(), u"00000 00000 20000 00000"_s);
    }

    // The release can go elsewhere, as can the character.
    void DrawingsEnd_data()
    {
        QTest::addColumn<int>("way");
        QTest::addColumn<int>("steps");
        QTest::newRow("escape") << 0 << 0;
        QTest::newRow("button was let go elsewhere") << 1 << 1;
        QTest::newRow("another character") << 2 << 1;
        QTest::newRow("character is gone") << 3 << 0;
        QTest::newRow("another font") << 4 << 0;
        QTest::newRow("nothing was changed") << 5 << 0;
    }

    void DrawingsEnd()
    {
        QFETCH(const int, way);
        QFETCH(const int, steps);
        ShowDrawing();
        tools_->SetTool(EditorTool::Line);
        if (way == 5)
            tools_->Palette().SetIndex(0);
        Drag({{0, 0}, {4, 0}});
        if (way == 0)
            QTest::keyClick(view_->viewport(), Qt::Key_Escape);
        else if (way == 1)
            Move(Place({0, 3}), Qt::NoButton);
        else if (way == 2)
            view_->SetCharacter(session_->CurrentFont()->FindChar('A'), 'A');
        else if (way == 3)
            static_cast<void>(session_->CurrentFont()->RemoveChar('B'));
        else if (way == 4)
            session_->ReplaceFont(Test::MakeSampleFont(FontFormat::LegacyAA4), {});
        if (way == 3 || way == 4)
            view_->SetCharacter(nullptr, -1);
        else
            QTest::mouseRelease(view_->viewport(), Qt::LeftButton, {}, Place({4, 0}));
        QVERIFY(!tools_->IsDrawing());
        QCOMPARE(history_->count(), steps);
        if (way == 0)
            QCOMPARE(ShownPixels(), u"00000 00000 20000 00000"_s);
    }

    // Whatever tool is in use.
    void RightButtonErasesAndAltPicks()
    {
        ShowDrawing();
        tools_->SetTool(EditorTool::Line);
        const IndexPalette& palette = tools_->Palette();
        QCOMPARE(palette.Index(), 15);
        QTest::mouseClick(view_->viewport(), Qt::LeftButton, Qt::AltModifier, Place({0, 2}));
        QCOMPARE(palette.Index(), 2);
        QTest::mouseClick(view_->viewport(), Qt::RightButton, {}, Place({0, 2}));
        QCOMPARE(Pixels(), u"00000 00000 00000 00000"_s);
        QSignalSpy menus(view_.get(), &CharBitmapView::MenuRequested);
        const QPoint place = Place({0, 2});
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place,
                               view_->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view_->viewport(), &menu);
        QCOMPARE(menus.count(), 0);
        tools_->SetTool(EditorTool::Select);
        QApplication::sendEvent(view_->viewport(), &menu);
        QCOMPARE(menus.count(), 1);
    }

    void PaletteByKeys()
    {
        IndexPalette palette;
        palette.SetDepth(2);
        palette.show();
        palette.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&palette));
        QCOMPARE(palette.Index(), 3);
        palette.findChildren<QAbstractButton*>().last()->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(palette.Index(), 2);
        palette.SetIndex(4);
        QCOMPARE(palette.Index(), 2);
        palette.SetDepth(4);
        QCOMPARE(palette.Index(), 15);
    }

    void Neighbours_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<QPoint>>("places");
        // "A" is 3 pixels wide at the offset -1 and takes 4, "B" takes 6; "AB" is kerned by -2.
        QTest::newRow("left, kerned") << u"AB"_s << QList<QPoint>{{-3, 1}};
        QTest::newRow("right") << u"BA"_s << QList<QPoint>{{5, 1}};
        QTest::newRow("place with both") << u"AB AB BA ABA"_s << QList<QPoint>{{-3, 1}, {5, 1}};
        QTest::newRow("missing characters") << u"\u20ACB\u20AC"_s << QList<QPoint>{};
        QTest::newRow("not in the text") << u"AA"_s << QList<QPoint>{};
    }

    void Neighbours()
    {
        QFETCH(const QString, text);
        QFETCH(const QList<QPoint>, places);
        Show(FontFormat::AA4);
        const std::vector<uchar> ink(6, 0xFF);
        font_->PutChar('A', {3, 3, -1, 1, 4}, ink).kerning = {{'B', -2}};
        CharInfo& info = font_->FindChar('B')->info;
        info.cursorDistance = 6;
        info.xPos = 1;
        QList<QPoint> found;
        const std::vector<Neighbour> neighbours = NeighboursIn(text, *font_, 'B');
        for (const Neighbour& neighbour : neighbours)
            found.append(neighbour.place);
        QCOMPARE(found, places);
        view_->SetBackground(neighbours, {});
        view_->SetCharacter(view_->CurrentCharacter(), 'B');
        const QImage picture = view_->viewport()->grab().toImage();
        for (const QPoint cell : places) {
            const QColor colour = picture.pixelColor(Place(cell + QPoint(1 - info.xPos, 0)));
            QVERIFY2(colour.value() > 100 && colour.value() < 180, qPrintable(colour.name()));
        }
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
