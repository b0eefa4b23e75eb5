#include "support/count_action.h"
#include "support/test_main.h"
#include "support/undo_session.h"

#include <QTest>

namespace Glyphor {

using Test::CountAction;

class TestActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RepeatedStepsMoveTogether()
    {
        Test::RecordingInterface interface;
        Test::UndoSession session;
        int total = 0;
        const auto action = std::make_shared<CountAction>(session, total, 3);
        QVERIFY(action->Run());
        QCOMPARE(total, 3);
        QCOMPARE(action->Applied(), 3);
        QCOMPARE(interface.performed, QStringList{u"Counted."_s});
        QCOMPARE(session.Stack().LogLines(), QStringList(3, u"Counted."_s));
        QVERIFY(session.IsModified());

        session.Stack().Undo();
        QCOMPARE(total, 0);
        QVERIFY(session.Stack().LogLines().isEmpty());
        QVERIFY(!session.IsModified());
        session.Stack().Redo();
        QCOMPARE(total, 3);
        QCOMPARE(session.Stack().LogLines().size(), 3);
        QCOMPARE(interface.changes, 3);
    }

    void NewActionsDropUndoneOnes()
    {
        Test::UndoSession session;
        int total = 0;
        std::weak_ptr<Action> undone;
        {
            const auto action = std::make_shared<CountAction>(session, total, 1, u"first"_s);
            action->Run();
            undone = action;
        }
        session.Stack().Undo();
        QVERIFY(!undone.expired());
        std::make_shared<CountAction>(session, total, 1, u"second"_s)->Run();
        QVERIFY(undone.expired());
        std::make_shared<CountAction>(session, total, 1, QString())->Run(); // no log line
        QCOMPARE(session.Stack().LogLines(), QStringList{u"second"_s});
    }

    void NothingToDo()
    {
        Test::RecordingInterface interface;
        Test::UndoSession session;
        int total = 0;
        const auto action = std::make_shared<CountAction>(session, total, 1);
        action->Args().step = 0;
        QVERIFY(!action->Run());
        QCOMPARE(session.Stack().Count(), 0U);
        QVERIFY(interface.performed.isEmpty() && session.Stack().LogLines().isEmpty());

        CountAction unshared(session, total, 1);
        QVERIFY_THROWS_EXCEPTION(std::bad_weak_ptr, unshared.Run());
        QVERIFY_THROWS_EXCEPTION(std::bad_weak_ptr, unshared.Undo());
        QVERIFY_THROWS_EXCEPTION(std::bad_weak_ptr, unshared.Redo());
    }
};

GLYPHOR_TEST(TestActions)

} // namespace Glyphor

#include "tst_actions.moc"
