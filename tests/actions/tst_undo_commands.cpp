#include "actions/session.h"
#include "support/count_action.h"
#include "support/test_main.h"

#include <QAction>
#include <QTest>

namespace Glyphor {

using namespace Qt::StringLiterals;

// What needs a desktop.
class TestUndoCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CommandsFollowTheStack()
    {
        QAction undo;
        QAction redo;
        Session session;
        session.Stack().AddUndoCommand(&undo);
        session.Stack().AddRedoCommand(&redo);
        QCOMPARE(undo.statusTip(), u"Undo last action"_s);
        QCOMPARE(redo.statusTip(), u"Redo last action"_s);
        QVERIFY(!undo.isEnabled() && !redo.isEnabled());

        int total = 0;
        std::make_shared<Test::CountAction>(session, total, 1)->Run();
        QCOMPARE(undo.statusTip(), u"Undo last action: Counted."_s);
        QVERIFY(undo.isEnabled() && !redo.isEnabled());
        session.Stack().undo();
        QCOMPARE(undo.statusTip(), u"Undo last action"_s);
        QCOMPARE(redo.statusTip(), u"Redo last action: Counted."_s);
        QVERIFY(!undo.isEnabled() && redo.isEnabled());
    }
};

GLYPHOR_TEST(TestUndoCommands)

} // namespace Glyphor

#include "tst_undo_commands.moc"
