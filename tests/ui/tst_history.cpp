#include "support/test_main.h"
#include "ui/window/history_view.h"
#include "ui/window_fixture.h"

#include <QDockWidget>

namespace Glyphor {

class TestHistory : public QObject, protected Test::WindowFixture
{
    Q_OBJECT

    [[nodiscard]] HistoryView& View() const { return *window_->findChild<HistoryView*>(); }

    [[nodiscard]] QStringList Rows() const
    {
        QStringList rows;
        for (int row = 0; row < View().model()->rowCount(); ++row)
            rows.append(View().model()->index(row, 0).data().toString());
        return rows;
    }

    void Click(int row) const
    {
        const QRect place = View().visualRect(View().model()->index(row, 0));
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, place.center());
    }

private Q_SLOTS:
    void init()
    {
        OpenWindow();
        OpenSample();
    }
    void cleanup()
    {
        window_->findChild<QDockWidget*>(u"history"_s)->close();
        QTest::qWait(100); // until that is remembered
        CloseWindow();
    }

    void LeadsToAnyState()
    {
        const QAction& command = *window_->Menus().Command(WindowCommand::History);
        QVERIFY(!View().isVisible() && !command.isChecked());
        Trigger(ActionType::MoveRight);
        Trigger(WindowCommand::History);
        QVERIFY(View().isVisible() && command.isChecked());
        Trigger(ActionType::SaveFont);
        QTest::keyClick(&window_->Table(), Qt::Key_A, Qt::ControlModifier);
        Trigger(ActionType::MoveDown); // several actions as one
        window_->Table().SelectCode('B');
        Trigger(ActionType::ShiftLeft);
        QCOMPARE(Rows(), (QStringList{u"Beginning"_s,
                                      u"Saved: [Char 0x0041]: Moved 1 pixel to the right."_s,
                                      u"Selection: Moved 1 pixel down."_s,
                                      u"[Char 0x0042]: Pixel data shifted to the left."_s}));
        QCOMPARE(View().currentIndex().row(), 3);
        const QByteArray last = Test::Snapshot(CurrentFont());
        Click(1);
        QCOMPARE(history_->index(), 1);
        QVERIFY(!window_->isWindowModified());
        Click(0);
        QCOMPARE(int(CurrentFont().FindChar('A')->info.xPos), -1);
        QVERIFY(View().model()->index(1, 0).data(Qt::ForegroundRole).isValid());
        Click(3);
        QCOMPARE(Test::Snapshot(CurrentFont()), last);
        // What is undone goes with the next action.
        Click(1);
        Trigger(ActionType::MoveLeft);
        QCOMPARE(Rows().size(), 3);
        QCOMPARE(View().currentIndex().row(), 2);
        Trigger(ActionType::SaveFont);
        OpenSample();
        QCOMPARE(Rows(), QStringList(u"Saved: Beginning"_s));
        window_->findChild<QDockWidget*>(u"history"_s)->close();
        QVERIFY(!command.isChecked());
    }

    // Nothing was saved that could be marked.
    void FontsWithoutFileAreNotSaved()
    {
        session_->ReplaceFont(Test::MakeSampleFont(FontFormat::AA2), u"sample.ttf"_s);
        window_->ActionChanged(nullptr);
        Trigger(WindowCommand::History);
        QCOMPARE(Rows(), QStringList(u"Beginning"_s));
    }
};

GLYPHOR_TEST(TestHistory)

} // namespace Glyphor

#include "tst_history.moc"
