#include "support/rows.h"
#include "support/test_main.h"
#include "ui/window_fixture.h"

#include <QFileDialog>
#include <QStatusBar>

namespace Glyphor {

using Test::DialogAnswer;

// Files that somebody else writes while a window has them.
class TestFileWatch : public QObject, protected Test::WindowFixture
{
    Q_OBJECT

    enum class Change { None, Rewritten, Removed, Damaged };

    void Meanwhile(Change change) const
    {
        if (change == Change::Rewritten)
            WriteSample(FontFormat::AA4, Path("sample.sif"));
        else if (change == Change::Removed)
            QVERIFY(QFile::remove(Path("sample.sif")));
        else if (change == Change::Damaged)
            Test::WriteAll(Path("sample.sif"), "nothing");
    }

    // Activates the window, answers all questions and gives their texts.
    [[nodiscard]] QStringList ComeBack(QMessageBox::StandardButton button) const
    {
        const Test::BoxAnswers answers(button);
        QEvent event(QEvent::ActivationChange);
        QCoreApplication::sendEvent(window_.get(), &event);
        QCoreApplication::processEvents();
        return answers.texts;
    }

private Q_SLOTS:
    void init()
    {
        QFile::remove(Path("other.sif"));
        OpenWindow();
    }
    void cleanup() { CloseWindow(); }

    void ComingBack_data()
    {
        const Test::Rows<Change, bool, QMessageBox::StandardButton, QString, QString, bool> row;
        const QString asked = u"The file sample.sif was changed on the disk. Load it again?"_s;
        const QString told = u"The file sample.sif was changed on the disk."_s;
        const QString gone = u"The file sample.sif is no longer there."_s;
        row("nothing happened", Change::None, false, QMessageBox::No, {}, {}, false);
        row("loaded again", Change::Rewritten, false, QMessageBox::Yes, asked, {}, true);
        row("kept", Change::Rewritten, false, QMessageBox::No, asked, {}, false);
        row("not readable", Change::Damaged, false, QMessageBox::Yes, asked, {}, false);
        row("own changes", Change::Rewritten, true, QMessageBox::Yes, {}, told, false);
        row("removed", Change::Removed, false, QMessageBox::Yes, {}, gone, false);
        row("own changes, removed", Change::Removed, true, QMessageBox::Yes, {}, gone, false);
    }

    void ComingBack()
    {
        const auto [change, isEdited, button, asked, told, isLoaded] =
            Test::Row<Change, bool, QMessageBox::StandardButton, QString, QString, bool>();
        OpenSample();
        if (isEdited)
            Trigger(ActionType::FontInsertRowTop);
        Meanwhile(change);
        QCOMPARE(ComeBack(button).value(0), asked);
        if (!told.isEmpty())
            QCOMPARE(window_->statusBar()->currentMessage(), told);
        QCOMPARE(CurrentFont().Metrics().format == FontFormat::AA4, isLoaded);
        const bool isModified = change != Change::None && !isLoaded;
        QCOMPARE(window_->isWindowModified(), isModified);
        QCOMPARE(IsEnabled(ActionType::SaveFont), isModified);
        QCOMPARE(ComeBack(button), QStringList()); // once is enough
    }

    void Saving_data()
    {
        const Test::Rows<Change, int, bool> row; // the button, or -1
        row("nothing happened", Change::None, -1, true);
        row("gone", Change::Removed, -1, true);
        row("over it", Change::Rewritten, 0, true);
        row("elsewhere", Change::Rewritten, 1, false);
        row("given up", Change::Rewritten, 2, false);
    }

    void Saving()
    {
        const auto [change, button, isSavedHere] = Test::Row<Change, int, bool>();
        OpenSample();
        Trigger(ActionType::FontInsertRowTop);
        Meanwhile(change);
        const QByteArray before = Test::ReadAll(Path("sample.sif"));
        const DialogAnswer<QMessageBox> question([button = button](QMessageBox& box) {
            const QStringList buttons = {u"&Replace"_s, u"Save &As..."_s, u"Cancel"_s};
            for (QAbstractButton* const each : box.buttons()) {
                if (each->text() == buttons.value(button))
                    each->click();
            }
        });
        const DialogAnswer<QFileDialog> elsewhere(
            [this](QFileDialog& dialog) { Test::Choose(dialog, u"other.sif"_s, folder_); });
        QCOMPARE(window_->CurrentDocument().Save(), button != 2);
        QCOMPARE(question.wasAsked, button >= 0);
        QCOMPARE(Test::ReadAll(Path("sample.sif")) != before, isSavedHere);
        QCOMPARE(QFile::exists(Path("other.sif")), button == 1);
        // What it wrote itself is no change.
        QCOMPARE(ComeBack(QMessageBox::No).isEmpty(), true);
        if (button == 2)
            return;
        Trigger(ActionType::FontInsertRowTop);
        QVERIFY(window_->CurrentDocument().Save());
    }
};

GLYPHOR_TEST(TestFileWatch)

} // namespace Glyphor

#include "tst_file_watch.moc"
