#include "support/test_main.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/preview/text_preview.h"
#include "ui/window/start_page.h"
#include "ui/window/status_line.h"
#include "ui/window_fixture.h"

#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>

namespace Glyphor {

using Test::DialogAnswer;

// Which of the views a key or a command is for, and what they show of the font.
class TestViews : public QObject, private Test::WindowFixture
{
    Q_OBJECT

    void SelectFromA(int further) const
    {
        window_->Table().SelectCode('A');
        window_->Table().setFocus();
        for (int step = 0; step < further; ++step)
            QTest::keyClick(&window_->Table(), Qt::Key_Right, Qt::ShiftModifier);
    }

    [[nodiscard]] int Width(quint16 code) const { return CurrentFont().FindChar(code)->info.width; }

private Q_SLOTS:
    void init() { OpenWindow(); }
    void cleanup() { CloseWindow(); }

    void ShortcutsOfMenusWinInTheTable()
    {
        OpenSample(FontFormat::LegacyAA2);
        CurrentFont().AddChar('R');
        CurrentFont().AddChar('T');
        SelectFromA(1);
        const CodeSet selected = window_->Table().SelectedCodes();
        QTest::keyClick(&window_->Table(), Qt::Key_R, Qt::ShiftModifier);
        QCOMPARE(Width('B'), 4);
        QTest::keyClick(&window_->Table(), Qt::Key_T, Qt::ShiftModifier); // not in this format
        QCOMPARE(window_->Table().SelectedCodes(), selected);
        QTest::keyClick(&window_->Table(), Qt::Key_B, Qt::ShiftModifier);
        QCOMPARE(window_->Table().SelectedCodes(), selected);
        QTest::keyClick(&window_->Table(), Qt::Key_C, Qt::ShiftModifier); // of no command
        QCOMPARE(window_->Table().SelectedCodes(), selected);             // nor in the font
        QTest::keyClicks(&window_->Table(), u"T"_s);
        QCOMPARE(window_->Table().CurrentCode(), int('T'));
    }

    void TheEditorChangesItsCharacterAlone()
    {
        OpenSample();
        SelectFromA(1);
        const QList<int> widths = {Width('A'), Width('B')};
        window_->Editor().setFocus();
        Trigger(ActionType::InsertColumnRight);
        QCOMPARE((QList<int>{Width('A'), Width('B')}), (QList<int>{widths[0], widths[1] + 1}));
        Trigger(ActionType::Toggle);
        QVERIFY(CurrentFont().IsEnabled('A') && !CurrentFont().IsEnabled('B'));
        window_->Table().setFocus();
        Trigger(ActionType::InsertColumnLeft);
        QCOMPARE((QList<int>{Width('A'), Width('B')}), (QList<int>{widths[0] + 1, widths[1] + 2}));
    }

    void TheIndexThatIsToldIsThatOfNow()
    {
        OpenSample(FontFormat::AA4);
        CurrentFont().FindChar('B')->info.yPos = 0;
        window_->Table().SelectCode('B');
        CharBitmapView& editor = window_->Editor();
        CharPixelItem* const cell = editor.CellItem(1, 0);
        editor.SelectItem(cell);
        editor.ShowStatus(*cell);
        const auto told = [this](const QString& text) {
            const auto labels = window_->statusBar()->findChildren<QLabel*>();
            return std::ranges::any_of(labels,
                                       [&](const QLabel* label) { return label->text() == text; });
        };
        Trigger(ActionType::SetPixelIndex9);
        QVERIFY(told(u"Index of pixel [1, 0]: 9"_s));
        Trigger(WindowCommand::Undo);
        QVERIFY(!told(u"Index of pixel [1, 0]: 9"_s));
        Trigger(WindowCommand::Redo);
        QVERIFY(told(u"Index of pixel [1, 0]: 9"_s));
    }

    void ArrowsGoOnAfterTheMenus()
    {
        OpenSample();
        CurrentFont().FindChar('B')->info.yPos = 0;
        window_->Table().SelectCode('B');
        CharBitmapView& editor = window_->Editor();
        editor.setFocus();
        editor.SelectFirstPixel();
        QTest::keyClick(&editor, Qt::Key_Right);
        const int column = editor.CurrentPixel()->Column();
        QTest::keyClick(&editor, Qt::Key_E, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(editor.hasFocus());
        QTest::keyClick(&editor, Qt::Key_Right);
        QCOMPARE(editor.CurrentPixel()->Column(), column + 1);
    }

    void AnotherFontIsShownFromItsBeginning()
    {
        OpenSample();
        for (quint16 code = 0x40; code < 0x50; ++code)
            CurrentFont().AddChar(code).info.SetWidth(200);
        window_->Table().Refresh();
        QTRY_VERIFY(window_->Table().horizontalScrollBar()->maximum() > 0);
        window_->Table().horizontalScrollBar()->setValue(200);
        window_->Editor().SetZoom(12);
        QVERIFY(window_->Table().horizontalScrollBar()->value() > 0);
        WriteSample(FontFormat::AA4, Path("other.sif"));
        QVERIFY(Open(Path("other.sif")));
        QCOMPARE(window_->Editor().Zoom(), 0);
        QCOMPARE(window_->Table().horizontalScrollBar()->value(), 0);
    }

    void SubmenusFollowTheirEntries()
    {
        const auto isEnabled = [this](ActionType entry) {
            const QAction* const command = window_->Menus().Command(entry);
            return qobject_cast<QMenu*>(command->associatedObjects().constFirst())
                ->menuAction()
                ->isEnabled();
        };
        QVERIFY(!isEnabled(ActionType::MoveUp) && !isEnabled(ActionType::SetPixelIndex0));
        OpenSample(FontFormat::Legacy);
        QVERIFY(isEnabled(ActionType::InsertColumnLeft) && !isEnabled(ActionType::MoveUp));
        window_->Table().SelectCode('B');
        window_->Editor().SelectFirstPixel();
        QVERIFY(isEnabled(ActionType::SetPixelIndex0));
    }

    void AWindowWithoutAFontTellsWhatToDo()
    {
        WriteSample(FontFormat::AA2, Path("a<b>.sif"));
        window_->CurrentDocument().AddRecentFile(Path("a<b>.sif"));
        window_->close();
        CloseWindow();
        OpenWindow();
        const auto page = [this] { return window_->findChild<StartPage*>(); };
        QVERIFY(page()->isVisible() && !window_->Table().isVisible());
        for (QLabel* const label : page()->findChildren<QLabel*>()) {
            QVERIFY(!label->text().isEmpty());
            if (label->accessibleName() == u"a<b>.sif"_s)
                Q_EMIT label->linkActivated({});
        }
        QCOMPARE(session_->Path(), Path("a<b>.sif"));
        QVERIFY(!page()->isVisible() && window_->Table().hasFocus());
    }

    // What was chosen for a text shows that text; a pattern that is saved is told of.
    void TheDocumentTellsTheWindow()
    {
        OpenSample();
        Document& document = window_->CurrentDocument();
        Q_EMIT document.SampleChosen(u"AB\nA"_s);
        QCOMPARE(window_->Preview().Strip().Positions().size(), 5);
        const DialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
            dialog.setDirectory(folder_.path());
            dialog.selectFile(u"kept.txt"_s);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        document.SavePattern();
        QCOMPARE(window_->statusBar()->currentMessage(),
                 u"Saved pattern file: "_s + Path("kept.txt"));
    }

    void TheDeleteKeyDeletesCharacters()
    {
        OpenSample();
        SelectFromA(1);
        window_->Editor().setFocus();
        QTest::keyClick(&window_->Editor(), Qt::Key_Delete);
        QVERIFY(CurrentFont().FindChar('A') != nullptr);
        window_->Table().setFocus();
        QTest::keyClick(&window_->Table(), Qt::Key_Delete);
        QVERIFY(CurrentFont().FindChar('A') == nullptr && CurrentFont().FindChar('B') == nullptr);
    }

    void TheMenuKeyOpensAtTheCell()
    {
        OpenSample();
        CharacterTable& table = window_->Table();
        const QRect cell = table.CellRect('A').translated(table.viewport()->mapToGlobal(QPoint()));
        QPoint corner;
        QTimer::singleShot(0, &table, [&corner] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            corner = menu->pos();
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(&table, &event);
        QCOMPARE(corner, cell.center());
    }
};

GLYPHOR_TEST(TestViews)

} // namespace Glyphor

#include "tst_views.moc"
