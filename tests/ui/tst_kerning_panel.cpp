#include "actions/action_save_file.h"
#include "support/test_main.h"
#include "ui/preview/text_preview.h"
#include "ui/window/kerning_panel.h"
#include "ui/window_fixture.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>

namespace Glyphor {

class TestKerningPanel : public QObject, protected Test::WindowFixture
{
    Q_OBJECT

    [[nodiscard]] KerningPanel& Panel() const { return *window_->findChild<KerningPanel*>(); }
    [[nodiscard]] QTableView& Pairs() const { return *Panel().findChild<QTableView*>(); }

    [[nodiscard]] QPushButton& Button(const QString& text) const
    {
        for (QPushButton* const button : Panel().findChildren<QPushButton*>()) {
            if (button->text() == text)
                return *button;
        }
        qFatal("no such button");
    }

    void Add(const QString& next, int distance) const
    {
        Panel().findChild<QSpinBox*>()->setValue(distance);
        Panel().findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)->setText(next);
        Button(u"Add"_s).click();
    }

    // "A:-1 ..." of the list.
    [[nodiscard]] QString Listed() const
    {
        QStringList pairs;
        const QAbstractItemModel& model = *Pairs().model();
        for (int row = 0; row < model.rowCount(); ++row)
            pairs.append(model.index(row, 0).data().toString().section(u' ', -1) + u':' +
                         model.index(row, 1).data().toString());
        return pairs.join(u' ');
    }

    void SaveKerning(const QString& path) const
    {
        const auto save = std::make_shared<ActionSaveFile>(*session_, ActionType::SaveKerning);
        save->Args().path = path;
        QVERIFY(save->Run());
    }

private Q_SLOTS:
    void init()
    {
        OpenWindow();
        OpenSample();
        Trigger(WindowCommand::KerningPairs);
        QVERIFY(Panel().isVisible());
    }
    void cleanup()
    {
        window_->findChild<QDockWidget*>(u"kerning"_s)->close();
        QTest::qWait(100); // until that is remembered
        CloseWindow();
    }

    void PairsAreEdited()
    {
        const Font& font = CurrentFont();
        CurrentFont().SetEnabled('C', 'C', false);
        auto& withKerning = *window_->Preview().findChild<QCheckBox*>();
        QVERIFY(!IsEnabled(ActionType::SaveKerning) && !withKerning.isEnabled());
        Add(u"B"_s, -2);
        Add(u"0x43"_s, 3);
        Add(u"A"_s, 300);
        QCOMPARE(Listed(), u"0x0041:300 0x0042:-2 0x0043:3"_s);
        QCOMPARE(session_->Stack().LogLines().back(),
                 u"[Char 0x0041]: Kerning with 0x0041 set to 300."_s);
        QVERIFY(Pairs().model()->index(2, 0).data(Qt::ForegroundRole).isValid());
        QVERIFY(IsEnabled(ActionType::SaveKerning) && withKerning.isEnabled());
        // The sample draws with them.
        withKerning.setChecked(true);
        window_->Preview().findChild<QPlainTextEdit*>()->setPlainText(u"AB"_s);
        QCOMPARE(window_->Preview().Strip().Positions().back(), 2 + -2 + 6);
        Pairs().setFocus();
        Pairs().selectRow(1);
        QTest::keyClick(&Pairs(), '-'); // goes into the distance
        QTest::keyClick(QApplication::focusWidget(), '1');
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(window_->Preview().Strip().Positions().back(), 2 + -1 + 6);
        Pairs().selectRow(0);
        Pairs().selectionModel()->select(Pairs().model()->index(2, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTest::keyClick(&Pairs(), Qt::Key_Delete);
        QCOMPARE(Listed(), u"0x0042:-1"_s);
        QCOMPARE(session_->Stack().LogLines().back(),
                 u"[Char 0x0041]: Kerning with 0x0041, 0x0043 removed."_s);
        QCOMPARE(history_->count(), 5);
        SaveKerning(Path("kerning.c"));
        QVERIFY(Test::ReadAll(Path("kerning.c")).contains("0x0041, 0x0042, (U16)-1, "));
        for (const auto* const listed :
             {u"0x0041:300 0x0042:-1 0x0043:3", u"0x0041:300 0x0042:-2 0x0043:3",
              u"0x0042:-2 0x0043:3", u"0x0042:-2", u""}) {
            Trigger(WindowCommand::Undo);
            QCOMPARE(Listed(), QString::fromUtf16(listed));
        }
        QVERIFY(!font.HasKerning() && !withKerning.isEnabled());
        window_->Table().SelectCode('D'); // no character
        QVERIFY(!Pairs().isEnabled() && !Button(u"Remove"_s).isEnabled());
    }

    void OnlyCharactersOfTheFontMakePairs()
    {
        auto& next = *Panel().findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QString& text : {u""_s, u"Z"_s, u"AB"_s, u"0x12345"_s}) {
            next.setText(text);
            QVERIFY2(!Button(u"Add"_s).isEnabled(), qPrintable(text));
        }
        next.setText(u"U+0042"_s);
        QTest::keyClick(&next, Qt::Key_Return);
        QCOMPARE(Listed(), u"0x0042:-1"_s);
        QTest::keyClick(&next, Qt::Key_Z, Qt::ControlModifier); // is the window's
        QVERIFY(next.text().isEmpty() && Listed().isEmpty());
    }

    // Neither a font file nor undo to another state has the pairs.
    void UnsavedKerningIsUnsavedWork()
    {
        Add(u"B"_s, -2);
        Trigger(ActionType::SaveFont);
        QVERIFY(window_->isWindowModified());
        {
            Test::BoxAnswer answer(QMessageBox::Cancel);
            QVERIFY(!window_->CurrentDocument().AskToSave());
            QVERIFY2(answer.text.startsWith(u"Save kerning table?: "_s), qPrintable(answer.text));
        }
        Trigger(WindowCommand::Undo);
        QVERIFY(!session_->HasUnsavedKerning() && window_->isWindowModified());
        Trigger(WindowCommand::Redo);
        SaveKerning(Path("kerning.c"));
        QVERIFY(!window_->isWindowModified());
        Trigger(WindowCommand::Undo);
        Add(u"B"_s, -3); // another one in the place of what was saved
        QVERIFY(session_->HasUnsavedKerning());
        Trigger(ActionType::SaveFont);
        Test::BoxAnswer answer(QMessageBox::No);
        QVERIFY(Open(session_->Path()));
        QVERIFY(answer.wasAsked && !session_->HasUnsavedKerning());
    }
};

GLYPHOR_TEST(TestKerningPanel)

} // namespace Glyphor

#include "tst_kerning_panel.moc"
