#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/support/char_picture.h"
#include "ui/table/char_table_view.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace Glyphor {

using namespace Qt::StringLiterals;

class TestCharTable : public QObject
{
    Q_OBJECT

    std::unique_ptr<CharTableView> table_;
    std::unique_ptr<Font> font_;

    [[nodiscard]] QList<int> Selected() const
    {
        QList<int> codes;
        const CodeSet& set = table_->SelectedCodes();
        for (const quint16 code : set)
            codes.append(code);
        return codes;
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(table_.get(), key, modifiers);
    }

private Q_SLOTS:
    void init()
    {
        font_ = Test::MakeSampleFont(FontFormat::AA4);
        table_ = std::make_unique<CharTableView>();
        table_->resize(700, 300);
        table_->show();
        table_->SetFont(font_.get());
    }

    void RowsAndLabels()
    {
        QCOMPARE(table_->ShownRows(), (std::vector<int>{4, 7, 8}));
        QCOMPARE(table_->RowLabel(4), u"0x0040"_s);
        QCOMPARE(table_->ColumnLabel(10), u"A"_s);
        table_->SetHexadecimal(false);
        QCOMPARE(table_->RowLabel(4), u"64"_s);
        QCOMPARE(table_->ColumnLabel(10), u"+10"_s);
        font_->SetEnabled(0x7F, 0x7F, false);
        table_->SetShowAll(false);
        QCOMPARE(table_->ShownRows(), (std::vector<int>{4, 8}));
        QVERIFY(!table_->SetCurrentCode(0x7E));
        table_->SetFont(nullptr);
        QVERIFY(table_->ShownRows().empty());
        QCOMPARE(table_->CurrentCode(), -1);
    }

    void Keys()
    {
        QSignalSpy changes(table_.get(), &CharTableView::CurrentChanged);
        QCOMPARE(table_->CurrentCode(), 0x42); // the first one with pixels to see
        table_->SetCurrentCode(0x41);
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
        QCOMPARE(Selected().size(), 3 * CharTableView::Columns);
        QCOMPARE(table_->CodeAt({1, 1}), -1);
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

    void HugeFont()
    {
        font_->SetEnabled(0, 0xFFFF, true);
        QElapsedTimer timer;
        timer.start();
        table_->SetFont(font_.get());
        table_->viewport()->repaint();
        table_->verticalScrollBar()->setValue(table_->verticalScrollBar()->maximum());
        table_->viewport()->repaint();
        QVERIFY(table_->SetCurrentCode(0x8000));
        table_->viewport()->repaint();
        QCOMPARE(table_->ShownRows().size(), std::size_t(4096));
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(table_->viewport()->rect().contains(table_->CellRect(0x8000)));
    }
};

GLYPHOR_TEST(TestCharTable)

} // namespace Glyphor

#include "tst_char_table.moc"
