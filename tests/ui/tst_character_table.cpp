#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/support/char_picture.h"
#include "ui/table/character_model.h"
#include "ui/table/character_table.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

namespace Glyphor {

class TestCharacterTable : public QObject
{
    Q_OBJECT

    std::unique_ptr<CharacterTable> table_;
    std::unique_ptr<Font> font_;

    [[nodiscard]] QList<int> Selected() const
    {
        QList<int> codes;
        const CodeSet& set = table_->SelectedCodes();
        for (const quint16 code : set)
            codes.append(code);
        return codes;
    }

    [[nodiscard]] QStringList Labels(Qt::Orientation orientation) const
    {
        const QAbstractItemModel& model = *table_->model();
        QStringList labels;
        const int count = orientation == Qt::Vertical ? model.rowCount() : model.columnCount();
        for (int section = 0; section < count; ++section)
            labels.append(model.headerData(section, orientation).toString());
        return labels;
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(table_.get(), key, modifiers);
    }

private Q_SLOTS:
    void init()
    {
        font_ = Test::MakeSampleFont(FontFormat::AA4);
        table_ = std::make_unique<CharacterTable>();
        table_->resize(700, 300);
        table_->show();
        table_->ShowFont(font_.get());
    }

    void RowsAndLabels()
    {
        QCOMPARE(Labels(Qt::Vertical), (QStringList{u"0x0040"_s, u"0x0070"_s, u"0x0080"_s}));
        QCOMPARE(Labels(Qt::Horizontal)[10], u"A"_s);
        table_->ShowHexadecimal(false);
        QCOMPARE(Labels(Qt::Horizontal)[10], u"+10"_s);
        font_->SetEnabled(0x7F, 0x7F, false);
        table_->ShowAll(false);
        QCOMPARE(Labels(Qt::Vertical), (QStringList{u"64"_s, u"128"_s}));
        QVERIFY(!table_->SelectCode(0x7E));
        table_->ShowFont(nullptr);
        QCOMPARE(table_->model()->rowCount(), 0);
        QCOMPARE(table_->CurrentCode(), -1);
    }

    // Of those that are shown.
    void BeginsAtTheFirstCharacterWithPixels()
    {
        font_->SetEnabled(0x41, 0x42, false);
        table_->ShowAll(false);
        table_->ShowFont(font_.get());
        QCOMPARE(table_->CurrentCode(), 0x7F);
        QCOMPARE(Selected(), QList<int>{0x7F});
    }

    void Keys()
    {
        QSignalSpy changes(table_.get(), &CharacterTable::CurrentCodeChanged);
        QCOMPARE(table_->CurrentCode(), 0x42); // the first one with pixels to see
        table_->SelectCode(0x41);
        changes.clear();
        Press(Qt::Key_Right);
        QCOMPARE(table_->CurrentCode(), 0x42);
        Press(Qt::Key_Down); // rows without characters are left out
        QCOMPARE(table_->CurrentCode(), 0x72);
        Press(Qt::Key_End);
        QCOMPARE(table_->CurrentCode(), 0x7F);
        Press(Qt::Key_Right);
        QCOMPARE(table_->CurrentCode(), 0x80);
        Press(Qt::Key_Left);
        QCOMPARE(table_->CurrentCode(), 0x7F);
        Press(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(table_->CurrentCode(), 0x40);
        Press(Qt::Key_Left);
        QCOMPARE(table_->CurrentCode(), 0x40);
        Press(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(table_->CurrentCode(), 0x8F);
        Press(Qt::Key_Right);
        QCOMPARE(table_->CurrentCode(), 0x8F);
        QTest::keyClicks(table_.get(), u"B"_s);
        QCOMPARE(table_->CurrentCode(), 0x42);
        QTest::keyClicks(table_.get(), u"Z"_s); // not in the font
        QCOMPARE(table_->CurrentCode(), 0x42);
        QVERIFY(changes.count() >= 8);
    }

    void Selecting()
    {
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, {}, table_->CellRect(0x42).center());
        QCOMPARE(Selected(), QList<int>{0x42});
        Press(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(Selected(), (QList<int>{0x42, 0x43}));
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          table_->CellRect(0x80).center());
        QCOMPARE(Selected(), (QList<int>{0x42, 0x43, 0x80}));
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          table_->CellRect(0x43).center());
        QCOMPARE(Selected(), (QList<int>{0x42, 0x80}));
        // The menu of a selection keeps it.
        QTest::mouseClick(table_->viewport(), Qt::RightButton, {}, table_->CellRect(0x80).center());
        QCOMPARE(Selected(), (QList<int>{0x42, 0x80}));
        Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Selected().size(), 3 * CharacterModel::Columns);
    }

    void Pictures()
    {
        const Character& character = *font_->FindChar(0x42);
        const QImage picture = CharPicture(character, Qt::black, Qt::white);
        QCOMPARE(picture.size(), QSize(5, 2));
        for (int x = 0; x < 5; ++x)
            QCOMPARE(qAlpha(picture.pixel(x, x % 2)),
                     character.bitmap->GetPixelIndex(x, x % 2) * 255 / 15);
        const QImage view = table_->viewport()->grab().toImage();
        const QRect disabled = table_->CellRect(0x7E);
        const QRect enabled = table_->CellRect(0x7F);
        QVERIFY(view.pixelColor(enabled.topLeft() + QPoint(2, 2)) == Qt::white);
        QVERIFY(view.pixelColor(disabled.topRight() + QPoint(-3, 3)) != Qt::white);
    }

    // All have the zoom at which nine tenths of them fit; the others are cut and marked.
    void OneZoomForAll()
    {
        for (int code = 0x100; code < 0x120; ++code) {
            const auto width = quint8(code == 0x11F ? 200 : 10);
            const std::vector<uchar> ink(std::size_t(3) * width, 0xFF);
            font_->PutChar(quint16(code), {width, 3, 0, 0, 0},
                           std::span(ink).first(std::size_t(3) * (width / 2U)));
        }
        table_->Refresh();
        const QImage view = table_->viewport()->grab().toImage();
        const auto inkWidth = [&](int code) {
            const QRect cell = table_->CellRect(code).adjusted(3, 0, -3, 0);
            int width = 0;
            for (int x = cell.left(); x <= cell.right(); ++x)
                width += int(view.pixelColor(x, cell.center().y()) == Qt::black);
            return width;
        };
        const QRect usual = table_->CellRect(0x110);
        const int zoom = (usual.width() - 6) / 10;
        QVERIFY(zoom >= 2);
        QCOMPARE(inkWidth(0x110), 10 * zoom);
        table_->SelectCode(0x110); // the mark of the current character is not in the way
        const QRect wide = table_->CellRect(0x11F);
        QCOMPARE(wide.size(), usual.size());
        QCOMPARE(inkWidth(0x11F), wide.width() - 6);
        const QColor mark = table_->palette().color(QPalette::Highlight);
        QCOMPARE(view.pixelColor(wide.bottomRight() - QPoint(2, 2)), mark);
        QVERIFY(view.pixelColor(usual.bottomRight() - QPoint(2, 2)) != mark);
        for (const int code : {0x110, 0x11F}) {
            QHelpEvent help(QEvent::ToolTip, table_->CellRect(code).center(), {});
            QApplication::sendEvent(table_->viewport(), &help);
            QCOMPARE(QToolTip::text().contains(u"<img"_s), code == 0x11F);
            QVERIFY(QToolTip::text().contains(
                u"0x"_s + QString::number(code, 16).toUpper().rightJustified(4, u'0')));
        }
    }

    void WheelZooms()
    {
        table_->resize(900, 400);
        const auto turn = [this](int angle, Qt::KeyboardModifiers modifiers) {
            QWheelEvent wheel({50, 50}, {50, 50}, {}, {0, angle}, Qt::NoButton, modifiers,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(table_->viewport(), &wheel);
        };
        const QSize fitting = table_->CellRect('A').size();
        turn(120, {});
        QCOMPARE(table_->CellRect('A').size(), fitting);
        turn(60, Qt::ControlModifier);
        QCOMPARE(table_->Zoom(), 0);
        turn(60, Qt::ControlModifier);
        QVERIFY(table_->Zoom() > 1);
        turn(-120, Qt::ControlModifier);
        QCOMPARE(table_->Zoom(), 0);
        QCOMPARE(table_->CellRect('A').size(), fitting);
        turn(-12000, Qt::ControlModifier);
        QCOMPARE(table_->Zoom(), 1);
        table_->ShowFont(font_.get());
        QCOMPARE(table_->Zoom(), 0);
    }

    void ScreenReadersFindTheCells()
    {
        font_->SetEnabled(0x42, 0x42, false);
        QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(table_.get());
        QVERIFY(table->tableInterface() != nullptr);
        const auto text = [&](int row, int column) {
            return table->tableInterface()->cellAt(row, column)->text(QAccessible::Name);
        };
        QCOMPARE(text(0, 2), u"0x0042 LATIN CAPITAL LETTER B, disabled"_s);
        QCOMPARE(text(1, 15), u"0x007F <control>, enabled"_s);
        QCOMPARE(text(0, 5), u"0x0045 LATIN CAPITAL LETTER E, no character"_s);
    }

    void HugeFont()
    {
        font_->SetEnabled(0, 0xFFFF, true);
        QElapsedTimer timer;
        timer.start();
        table_->ShowFont(font_.get());
        table_->viewport()->repaint();
        table_->verticalScrollBar()->setValue(table_->verticalScrollBar()->maximum());
        table_->viewport()->repaint();
        QVERIFY(table_->SelectCode(0x8000));
        table_->viewport()->repaint();
        QCOMPARE(table_->model()->rowCount(), 4096);
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(table_->viewport()->rect().contains(table_->CellRect(0x8000)));
    }
};

GLYPHOR_TEST(TestCharacterTable)

} // namespace Glyphor

#include "tst_character_table.moc"
