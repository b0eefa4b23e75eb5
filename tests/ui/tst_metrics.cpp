#include "support/rows.h"
#include "support/test_main.h"
#include "ui/support/value_fields.h"
#include "ui/window/info_panel.h"
#include "ui/window/progress_area.h"
#include "ui/window_fixture.h"

#include <QAccessible>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QWheelEvent>

namespace Glyphor {

// The fields of the information panel.
class TestMetrics : public QObject, protected Test::WindowFixture
{
    Q_OBJECT

    [[nodiscard]] InfoPanel& Panel() const { return *window_->findChild<InfoPanel*>(); }

    template <typename Metric>
    [[nodiscard]] NumberField& Field(Metric metric) const
    {
        return Panel().FieldOf(metric);
    }

    static void Type(QWidget& field, const QString& text)
    {
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, text);
    }

    static void Enter(QWidget& field, const QString& text)
    {
        Type(field, text);
        QTest::keyClick(&field, Qt::Key_Return);
    }

private Q_SLOTS:
    void init() { OpenWindow(); }
    void cleanup() { CloseWindow(); }

    void CharacterMetrics_data()
    {
        const Test::Rows<ActionType, QString, QList<int>> row; // of "B", which are 5, 2, -5, 3, 6
        using enum ActionType;
        row("wider", SetWidth, u"8"_s, {8, 2, -5, 3, 6});
        row("cuts ink", SetWidth, u"1"_s, {1, 2, -5, 3, 6});
        row("higher", SetHeight, u"255"_s, {5, 255, -5, 3, 6});
        row("left", SetXPos, u"-128"_s, {5, 2, -128, 3, 6});
        row("down", SetYPos, u"7"_s, {5, 2, -5, 7, 6});
        row("advance", SetCursorDistance, u"0"_s, {5, 2, -5, 3, 0});
    }

    void CharacterMetrics()
    {
        const auto [edit, text, numbers] = Test::Row<ActionType, QString, QList<int>>();
        for (const FontFormat format : {FontFormat::AA2, FontFormat::Framed}) {
            OpenSample(format);
            window_->Table().SelectCode('B');
            const QByteArray before = Test::Snapshot(CurrentFont());
            Enter(Field(edit), text);
            QCOMPARE(Test::Numbers(CurrentFont().FindChar('B')->info), numbers);
            QCOMPARE(history_->count(), 1);
            QCOMPARE(session_->Stack().LogLines().size(), 2); // with the opening
            QVERIFY(session_->Stack().LogLines().back().startsWith(u"[Char 0x0042]: "_s));
            QTest::keyClick(&Field(edit), Qt::Key_Return); // the same is no step
            QCOMPARE(history_->count(), 1);
            QTest::keyClick(&Field(edit), Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(Test::Snapshot(CurrentFont()), before);
            QVERIFY(!window_->isWindowModified());
        }
    }

    void FontMetrics_data()
    {
        const Test::Rows<FontFormat, FontMetric, QString, QList<int>>
            row; // height, baseline, small, capital
        using enum FontMetric;
        row("height", FontFormat::AA2, Height, u"9"_s, {9, 2, 1, 2});
        row("legacy grows", FontFormat::LegacyAA4, Height, u"5"_s, {5, 2, 1, 2});
        row("legacy shrinks", FontFormat::LegacyAA4, Height, u"1"_s, {1, 2, 1, 2});
        row("baseline", FontFormat::AA4, Baseline, u"255"_s, {3, 255, 1, 2});
        row("small letters", FontFormat::Framed, LowercaseHeight, u"0"_s, {3, 2, 0, 2});
        row("capitals", FontFormat::Legacy, CapitalHeight, u"3"_s, {3, 2, 1, 3});
    }

    void FontMetrics()
    {
        const auto [format, metric, text, numbers] =
            Test::Row<FontFormat, FontMetric, QString, QList<int>>();
        session_->ReplaceFont(Test::MakeSampleFont(format), u"sample.c"_s);
        window_->ActionChanged(nullptr);
        const QByteArray before = Test::Snapshot(CurrentFont());
        Enter(Field(metric), text);
        const Glyphor::FontMetrics& now = CurrentFont().Metrics();
        QCOMPARE((QList<int>{now.height, now.baseline, now.lowercaseHeight, now.capitalHeight}),
                 numbers);
        QCOMPARE(int(now.verticalSpace), int(now.height));
        if (IsLegacyFormat(format)) {
            const Character& character = *CurrentFont().FindChar(0x81);
            QCOMPARE(int(character.info.height), int(now.height));
            QCOMPARE(character.bitmap->Data().size(), character.info.bytesPerLine * now.height);
        }
        const QByteArray after = Test::Snapshot(CurrentFont());
        Trigger(WindowCommand::Undo);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
        Trigger(WindowCommand::Redo);
        QCOMPARE(Test::Snapshot(CurrentFont()), after);
        QCOMPARE(session_->Stack().LogLines().size(), 1);
    }

    void Name()
    {
        OpenSample();
        auto& field = *Panel().findChild<NameField*>();
        Enter(field, u"  "_s);
        QCOMPARE(field.text(), u"sample"_s);
        Enter(field, u"Small  print"_s);
        QCOMPARE(CurrentFont().Name(), u"Small print"_s);
        QCOMPARE(session_->Stack().LogLines().back(), u"[Font]: Name set to Small print."_s);
        Trigger(WindowCommand::Undo);
        QCOMPARE(field.text(), u"sample"_s);
        QVERIFY(!window_->isWindowModified());
    }

    // What is typed counts for what comes next, unless it is given up.
    void TypingIsTaken()
    {
        OpenSample();
        NumberField& field = Field(ActionType::SetCursorDistance);
        Type(field, u"77"_s);
        QCOMPARE(int(CurrentFont().FindChar('A')->info.cursorDistance), 2);
        QTest::keyClick(&field, Qt::Key_Escape);
        Trigger(ActionType::SaveFont);
        QCOMPARE(history_->count(), 0);
        Type(field, u"78"_s);
        Trigger(ActionType::InsertColumnRight);
        QCOMPARE(int(CurrentFont().FindChar('A')->info.cursorDistance), 78);
        Type(field, u"79"_s);
        window_->Table().setFocus();
        QCOMPARE(int(CurrentFont().FindChar('A')->info.cursorDistance), 79);
        QCOMPARE(history_->count(), 3);
    }

    // Screen readers could set them.
    void LongWorkRefusesValues()
    {
        OpenSample();
        const QByteArray before = Test::Snapshot(CurrentFont());
        window_->Progress().BeginWork(u"Work"_s, 10);
        Field(ActionType::SetWidth).setValue(9);
        Field(FontMetric::Height).setValue(9);
        Panel().findChild<NameField*>()->NameSet(u"Other"_s);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
        QCOMPARE(CurrentFont().Name(), u"sample"_s);
        window_->Progress().EndWork();
        window_->ActionChanged(nullptr);
        QCOMPARE(Field(ActionType::SetWidth).value(), 1);
    }

    void SpinningIsOneStep()
    {
        OpenSample();
        window_->Table().SelectCode('B');
        NumberField& field = Field(ActionType::SetXPos);
        field.setFocus();
        for (int step = 0; step < 4; ++step)
            QTest::keyClick(&field, Qt::Key_Up);
        QCOMPARE(int(CurrentFont().FindChar('B')->info.xPos), -1);
        QCOMPARE(history_->count(), 1);
        QCOMPARE(session_->Stack().LogLines().back(), u"[Char 0x0042]: Left edge set to -1."_s);
        Trigger(ActionType::SaveFont); // which must stay as it is
        QTest::keyClick(&field, Qt::Key_Up);
        QCOMPARE(history_->count(), 2);
        QTest::keyClick(&field, Qt::Key_Down); // and back
        QCOMPARE(history_->count(), 1);
        QVERIFY(!window_->isWindowModified() && !history_->canRedo());
        Trigger(WindowCommand::Undo);
        QCOMPARE(int(CurrentFont().FindChar('B')->info.xPos), -5);
        // The wheel scrolls the panel, unless the field has the focus.
        window_->Table().setFocus();
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&field, &wheel);
        QCOMPARE(history_->index(), 0);
    }

    void SeveralCharacters()
    {
        OpenSample();
        const QByteArray before = Test::Snapshot(CurrentFont());
        QTest::keyClick(&window_->Table(), Qt::Key_A, Qt::ControlModifier);
        NumberField& field = Field(ActionType::SetCursorDistance);
        QVERIFY(!field.HasValue());
        QCOMPARE(field.text(), u"various"_s);
        Enter(field, u"9"_s);
        for (const quint16 code : CurrentFont().ExistingCodes())
            QCOMPARE(int(CurrentFont().FindChar(code)->info.cursorDistance), 9);
        QVERIFY(field.HasValue());
        QCOMPARE(history_->count(), 1);
        // Spinning goes on from the current character.
        NumberField& width = Field(ActionType::SetWidth);
        const int current =
            CurrentFont().FindChar(quint16(window_->Table().CurrentCode()))->info.width;
        QTest::keyClick(&width, Qt::Key_Up);
        QCOMPARE(width.value(), current + 1);
        Trigger(WindowCommand::Undo);
        Trigger(WindowCommand::Undo);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
    }

    void WhatIsNotThereIsNotEdited()
    {
        for (const ActionType edit : {ActionType::SetWidth, ActionType::SetCursorDistance})
            QVERIFY(!Field(edit).isEnabled());
        OpenSample(FontFormat::LegacyAA2);
        for (const ActionType edit :
             {ActionType::SetXPos, ActionType::SetYPos, ActionType::SetHeight}) {
            QVERIFY(!Field(edit).isEnabled());
            QVERIFY(Field(edit).toolTip().startsWith(u"In legacy formats "_s));
        }
        QVERIFY(Field(ActionType::SetWidth).isEnabled());
        QCOMPARE(Field(FontMetric::Height).minimum(), 1);
        window_->Table().SelectCode('D'); // no character
        QVERIFY(!Field(ActionType::SetWidth).isEnabled());
        QCOMPARE(Field(ActionType::SetWidth).text(), u"–"_s);
    }

    void FieldsHaveLabels()
    {
        OpenSample();
        QHash<QWidget*, QString> captions;
        for (const QLabel* const label : Panel().findChildren<QLabel*>())
            captions.insert(label->buddy(), label->text());
        const QList<QWidget*> fields =
            Panel().findChildren<QWidget*>(QRegularExpression(u".*"_s), Qt::FindDirectChildrenOnly);
        int found = 0;
        for (QWidget* const field : fields) {
            if (field->focusPolicy() != Qt::StrongFocus)
                continue;
            ++found;
            QVERIFY(captions.contains(field));
            const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(field);
            QVERIFY(!spoken->text(QAccessible::Name).isEmpty());
        }
        QCOMPARE(found, 10);
        // It scrolls, and stays as wide as before where there is little room.
        window_->resize(window_->minimumSize());
        QVERIFY(Panel().parentWidget()->height() < Panel().height());
    }
};

GLYPHOR_TEST(TestMetrics)

} // namespace Glyphor

#include "tst_metrics.moc"
