#include "ui/support/undo_stack.h"

#include "actions/session.h"
#include "support/count_action.h"
#include "support/test_main.h"

#include <QAction>
#include <QTest>

namespace Glyphor {

class TestUndoStack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CommandsFollowTheStack()
    {
        QAction undo;
        QAction redo;
        UndoStack stack;
        Session session(stack);
        stack.AddUndoCommand(&undo);
        stack.AddRedoCommand(&redo);
        QCOMPARE(undo.statusTip(), u"Undo last action"_s);
        QCOMPARE(redo.statusTip(), u"Redo last action"_s);
        QVERIFY(!undo.isEnabled() && !redo.isEnabled());

        int total = 0;
        std::make_shared<Test::CountAction>(session, total, 1)->Run();
        QCOMPARE(undo.statusTip(), u"Undo last action: Counted."_s);
        QVERIFY(undo.isEnabled() && !redo.isEnabled());
        stack.undo();
        QCOMPARE(undo.statusTip(), u"Undo last action"_s);
        QCOMPARE(redo.statusTip(), u"Redo last action: Counted."_s);
        QVERIFY(!undo.isEnabled() && redo.isEnabled());
        QVERIFY(session.Stack().LogLines().isEmpty() && !session.IsModified());

        // What was undone is dropped, and like actions are never merged.
        std::weak_ptr<Action> undone;
        {
            const auto action = std::make_shared<Test::CountAction>(session, total, 2);
            action->Run();
            undone = action;
        }
        stack.undo();
        for (int run = 0; run < 2; ++run)
            std::make_shared<Test::CountAction>(session, total, 1)->Run();
        QVERIFY(undone.expired() && session.IsModified());
        QCOMPARE(stack.count(), 2);
        QCOMPARE(stack.command(0)->id(), 12);
        QCOMPARE(session.Stack().LogLines().size(), 2);
        session.SetSaved(u"font.c"_s);
        QVERIFY(!session.IsModified());
    }
};

GLYPHOR_TEST(TestUndoStack)

} // namespace Glyphor

#include "tst_undo_stack.moc"
