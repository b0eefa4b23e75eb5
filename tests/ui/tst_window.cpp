#include "actions/action_open_font.h"
#include "actions/edit_table.h"
#include "app/progress.h"
#include "app/settings.h"
#include "support/test_main.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/document/font_indexer.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/preview/text_preview.h"
#include "ui/support/application.h"
#include "ui/window/help.h"
#include "ui/window/progress_area.h"
#include "ui/window_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QThread>

namespace Glyphor {

using Test::BoxAnswer;
using Test::DialogAnswer;

class TestWindow : public QObject, protected Test::WindowFixture
{
    Q_OBJECT

private Q_SLOTS:
    void OptionsStayOurs()
    {
        char program[] = "Glyphor";
        char option[] = "-name";
        char value[] = "-names";
        char* arguments[] = {program, option, value};
        KeepOptions(3, arguments);
        QCOMPARE(QByteArray(option), "-NAME");
        QCOMPARE(QByteArray(value), "-names");
    }

    void init() { OpenWindow(); }
    void cleanup() { CloseWindow(); }

    void EnablingRules()
    {
        for (const auto id :
             {ActionType::SaveFont, ActionType::SaveFontAs, ActionType::SavePattern,
              ActionType::SaveKerning, ActionType::MergeFont, ActionType::InsertColumnRight,
              ActionType::Toggle, ActionType::ReadPattern, ActionType::IncreasePixelIndex,
              ActionType::Enable})
            QVERIFY2(!IsEnabled(id), qPrintable(QString::number(CommandId(id))));
        for (const auto id : {WindowCommand::AllCharacters, WindowCommand::GoToCharacter,
                              WindowCommand::Undo, WindowCommand::Redo})
            QVERIFY2(!IsEnabled(id), qPrintable(QString::number(CommandId(id))));
        QVERIFY(IsEnabled(ActionType::CreateFont) && IsEnabled(ActionType::OpenFont) &&
                IsEnabled(WindowCommand::Preferences));
        OpenSample();
        QVERIFY(!IsEnabled(ActionType::SaveFont)); // nothing has changed
        for (const auto id :
             {ActionType::SaveFontAs, ActionType::SavePattern, ActionType::MergeFont,
              ActionType::InsertColumnRight, ActionType::DeleteRowBottom,
              ActionType::FontInsertRowTop, ActionType::Enable, ActionType::DisableAll,
              ActionType::Toggle, ActionType::ReadPattern})
            QVERIFY2(IsEnabled(id), qPrintable(QString::number(CommandId(id))));
        for (const auto id : {WindowCommand::AllCharacters, WindowCommand::GoToCharacter})
            QVERIFY2(IsEnabled(id), qPrintable(QString::number(CommandId(id))));
        QVERIFY(!IsEnabled(ActionType::SaveKerning)); // there is no kerning
        QVERIFY(!IsEnabled(ActionType::InvertPixelIndex));
        window_->Table().SelectCode('A');
        QVERIFY(window_->Editor().SelectItem(window_->Editor().CellItem(0, 0)));
        constexpr int maximum = 3; // 2 bits per pixel
        for (const Edit& edit : EditTable()) {
            if (edit.target == EditTarget::Pixel)
                QCOMPARE(IsEnabled(edit.type), edit.index <= maximum);
        }
        window_->Table().SelectCode('D'); // there is no character
        QVERIFY(!IsEnabled(ActionType::InsertColumnRight) &&
                !IsEnabled(ActionType::IncreasePixelIndex));
    }

    void CommandsEditAndUndo_data()
    {
        QTest::addColumn<ActionType>("type");
        for (const ActionType type :
             {ActionType::ShiftLeft, ActionType::DeleteRowBottom, ActionType::FontInsertRowTop,
              ActionType::DisableAll, ActionType::Toggle})
            QTest::addRow("command %d", int(type)) << type;
    }

    void CommandsEditAndUndo()
    {
        QFETCH(const ActionType, type);
        OpenSample(FontFormat::AA4);
        window_->Table().SelectCode('B');
        CurrentFont().FindChar('B')->info.yPos = 0;
        const QByteArray before = Test::Snapshot(CurrentFont());
        Trigger(type);
        QVERIFY(Test::Snapshot(CurrentFont()) != before);
        QVERIFY(window_->isWindowModified() && IsEnabled(WindowCommand::Undo));
        QVERIFY(window_->Menus()
                    .Command(WindowCommand::Undo)
                    ->statusTip()
                    .startsWith(u"Undo last action: "_s));
        const QByteArray after = Test::Snapshot(CurrentFont());
        Trigger(WindowCommand::Undo);
        // Deleted pixels do not come back, which is a change to save.
        const Edit* const edit = EditOf(type);
        const bool losesPixels = edit != nullptr && edit->undo == Undo::LosesPixels;
        QCOMPARE(window_->isWindowModified(), losesPixels);
        if (!losesPixels)
            QCOMPARE(Test::Snapshot(CurrentFont()), before);
        Trigger(WindowCommand::Redo);
        QCOMPARE(Test::Snapshot(CurrentFont()).size(), after.size());
    }

    void SelectionsAreOneStep()
    {
        OpenSample();
        QTest::keyClick(&window_->Table(), Qt::Key_A, Qt::ControlModifier);
        const QByteArray before = Test::Snapshot(CurrentFont());
        Trigger(ActionType::MoveRight);
        QCOMPARE(int(CurrentFont().FindChar('B')->info.xPos), -4);
        QCOMPARE(int(CurrentFont().FindChar(0x80)->info.xPos), -12);
        Trigger(ActionType::Toggle);
        QVERIFY(!CurrentFont().HasEnabledChars());
        QCOMPARE(history_->count(), 2);
        Trigger(WindowCommand::Undo);
        Trigger(WindowCommand::Undo);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
    }

    void PixelCommands()
    {
        OpenSample(FontFormat::AA4);
        CurrentFont().FindChar('B')->info.yPos = 1;
        window_->Table().SelectCode('B');
        CharBitmapView& editor = window_->Editor();
        const int top = editor.Top();
        QVERIFY(editor.SelectItem(editor.CellItem(1, top)));
        const CharBitmap& bitmap = *CurrentFont().FindChar('B')->bitmap;
        Trigger(ActionType::SetPixelIndex9);
        QCOMPARE(bitmap.GetPixelIndex(1, 0), 9);
        Trigger(ActionType::IncreasePixelIndex);
        QCOMPARE(bitmap.GetPixelIndex(1, 0), 10);
        Trigger(ActionType::InvertPixelIndex);
        QCOMPARE(bitmap.GetPixelIndex(1, 0), 5);
        QCOMPARE(editor.CurrentPixel()->PixelPosition(), QPoint(1, 0)); // it stays selected
        QCOMPARE(editor.CellItem(1, top)->Colour().alpha(), 85);
        window_->Table().SelectCode('A');
        Trigger(WindowCommand::Undo); // and back to the character
        QCOMPARE(window_->Table().CurrentCode(), int('B'));
        QCOMPARE(editor.CellItem(1, top)->Colour().alpha(), 170);
    }

    // The marked cell is the one that commands change, whatever happened to the rows.
    void PixelCommandsFollowTheMark()
    {
        OpenSample(FontFormat::AA4);
        CurrentFont().SetHeight(6);
        CurrentFont().FindChar('B')->info.yPos = 2;
        window_->Table().SelectCode('B');
        CharBitmapView& editor = window_->Editor();
        QVERIFY(editor.SelectItem(editor.CellItem(1, 2)));
        Trigger(ActionType::MoveUp); // up by a row
        const QPoint marked = editor.SelectedPixel();
        QCOMPARE(marked, QPoint(1, 1));
        QCOMPARE(editor.CurrentPixel()->Row(), 2);
        Trigger(ActionType::SetPixelIndex9);
        QCOMPARE(CurrentFont().FindChar('B')->bitmap->GetPixelIndex(1, 1), 9);
        Trigger(ActionType::InsertColumnRight); // another column
        QCOMPARE(editor.scene()->selectedItems().size(), 1);
        window_->Table().SelectCode('A');
        QCOMPARE(editor.scene()->selectedItems().size(), 0);
        QVERIFY(editor.scene()->focusItem() == nullptr);
    }

    void SpaceIsAChangeToSave()
    {
        OpenSample(FontFormat::Standard);
        CurrentFont().FindChar('B')->info.yPos = 0;
        window_->Table().SelectCode('B');
        CharBitmapView& editor = window_->Editor();
        editor.setFocus();
        editor.SelectFirstPixel();
        QTest::keyClick(editor.viewport(), Qt::Key_Space);
        QVERIFY(window_->isWindowModified() && IsEnabled(ActionType::SaveFont));
        QVERIFY(!history_->canUndo());
        Trigger(ActionType::SaveFont);
        QVERIFY(!window_->isWindowModified());
    }

    // Letters are commands in the editor, and characters in the table.
    void KeysMeanWhatTheFocusIsOn()
    {
        OpenSample(FontFormat::AA4);
        CurrentFont().FindChar('B')->info.yPos = 0;
        window_->Table().SelectCode('B');
        const QByteArray before = Test::Snapshot(CurrentFont());
        window_->Table().setFocus();
        QTest::keyClick(&window_->Table(), Qt::Key_R); // there is no such one
        QTest::keyClick(&window_->Table(), Qt::Key_7);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
        QTest::keyClick(&window_->Table(), Qt::Key_Return);
        QVERIFY(window_->Editor().hasFocus());
        const QPoint pixel = window_->Editor().SelectedPixel();
        QVERIFY(pixel.x() >= 0);
        QTest::keyClick(window_->Editor().viewport(), Qt::Key_7);
        QCOMPARE(CurrentFont().FindChar('B')->bitmap->GetPixelIndex(pixel.x(), pixel.y()), 7);
        auto* const box = window_->Preview().findChild<QCheckBox*>();
        box->setEnabled(true);
        box->setFocus();
        const QByteArray edited = Test::Snapshot(CurrentFont());
        const bool wasChecked = box->isChecked();
        QTest::keyClick(box, Qt::Key_Space);
        QVERIFY(box->isChecked() != wasChecked);
        QCOMPARE(Test::Snapshot(CurrentFont()), edited);
    }

    void HiddenCharactersAreNotEdited()
    {
        OpenSample(FontFormat::AA4);
        window_->Table().SelectCode('B');
        Trigger(ActionType::Toggle);
        QTest::keyClick(&window_->Table(), Qt::Key_A, Qt::ControlModifier);
        Trigger(WindowCommand::AllCharacters); // enabled ones only
        Trigger(ActionType::MoveRight);
        QCOMPARE(int(CurrentFont().FindChar('B')->info.xPos), -5);
        QTest::keyClick(&window_->Table(), Qt::Key_A, Qt::ControlModifier);
        Trigger(ActionType::MoveRight);
        QCOMPARE(int(CurrentFont().FindChar('B')->info.xPos), -5);
        Trigger(WindowCommand::AllCharacters);
    }

    void UndoShowsWhatItChanged()
    {
        OpenSample(FontFormat::AA4);
        window_->Table().SelectCode('B');
        Trigger(ActionType::Toggle);
        window_->Table().SelectCode('A');
        Trigger(WindowCommand::Undo);
        QCOMPARE(window_->Table().CurrentCode(), int('B'));
        QTest::keyClick(&window_->Table(), Qt::Key_A, Qt::ControlModifier);
        const CodeSet selected = window_->Table().SelectedCodes();
        Trigger(ActionType::MoveRight);
        Trigger(WindowCommand::Undo);
        QCOMPARE(window_->Table().SelectedCodes(), selected);
    }

    void LegacyCharactersHaveTheRowsOfTheFont()
    {
        OpenSample(FontFormat::LegacyAA4);
        window_->Table().SelectCode('B');
        for (const auto id :
             {ActionType::InsertRowTop, ActionType::InsertRowBottom, ActionType::MoveRight,
              ActionType::MoveLeft, ActionType::MoveUp, ActionType::MoveDown,
              ActionType::DeleteRowTop, ActionType::DeleteRowBottom})
            QVERIFY2(!IsEnabled(id), qPrintable(QString::number(CommandId(id))));
        for (const auto id :
             {ActionType::InsertColumnRight, ActionType::InsertColumnLeft, ActionType::ShiftRight,
              ActionType::ShiftDown, ActionType::IncreaseCursorDistance,
              ActionType::DecreaseCursorDistance, ActionType::DeleteColumnRight,
              ActionType::DeleteColumnLeft, ActionType::FontInsertRowTop,
              ActionType::FontDeleteRowBottom})
            QVERIFY2(IsEnabled(id), qPrintable(QString::number(CommandId(id))));
    }

    void StrokesAreOneStep()
    {
        OpenSample(FontFormat::AA4);
        CurrentFont().FindChar('B')->info.yPos = 0;
        window_->Table().SelectCode('B');
        CurrentFont().FindChar('B')->bitmap->SetPixelIndex(0, 1, 15); // as the pencil paints
        const QByteArray before = Test::Snapshot(CurrentFont());
        const auto stroke = [this](int first, int last, Qt::KeyboardModifiers modifiers = {}) {
            CharBitmapView& editor = window_->Editor();
            const auto place = [&](int column) {
                return editor.mapFromScene(
                    editor.CellItem(column, 1 + editor.Top())->rect().center());
            };
            QTest::mousePress(editor.viewport(), Qt::LeftButton, modifiers, place(first));
            QMouseEvent move(QEvent::MouseMove, place(last),
                             editor.viewport()->mapToGlobal(place(last)), Qt::NoButton,
                             Qt::LeftButton, modifiers);
            QApplication::sendEvent(editor.viewport(), &move);
            QTest::mouseRelease(editor.viewport(), Qt::LeftButton, modifiers, place(last));
        };
        stroke(0, 3);
        QCOMPARE(history_->count(), 0); // it selects
        Trigger(EditorTool::Pencil);
        stroke(0, 3);
        QCOMPARE(history_->count(), 1);
        for (int x = 0; x < 4; ++x)
            QCOMPARE(CurrentFont().FindChar('B')->bitmap->GetPixelIndex(x, 1), 15);
        stroke(3, 0, Qt::ControlModifier);
        QCOMPARE(history_->count(), 2);
        for (int x = 0; x < 4; ++x)
            QCOMPARE(CurrentFont().FindChar('B')->bitmap->GetPixelIndex(x, 1), 0);
        Trigger(WindowCommand::Undo);
        stroke(0, 3); // changes nothing
        QVERIFY(history_->canRedo());
        Trigger(WindowCommand::Undo);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
    }

    // Each character and each change keeps it, another font does not.
    void ZoomOfTheEditor()
    {
        OpenSample(FontFormat::AA4);
        window_->Table().SelectCode('B');
        const CharBitmapView& editor = window_->Editor();
        const qreal fitting = editor.CellSize();
        for (const auto& [command, size] :
             {std::pair(WindowCommand::ActualSize, 1), std::pair(WindowCommand::ZoomOut, 1),
              std::pair(WindowCommand::ZoomIn, 2), std::pair(WindowCommand::ZoomIn, 3),
              std::pair(WindowCommand::ZoomOut, 2)}) {
            Trigger(command);
            QCOMPARE(editor.CellSize(), size);
        }
        QTest::keyClick(window_.get(), Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(editor.CellSize(), 3);
        window_->Table().SelectCode('C');
        Trigger(ActionType::InsertColumnRight);
        QCOMPARE(editor.CellSize(), 3);
        QTest::keyClick(window_.get(), Qt::Key_0, Qt::ControlModifier);
        window_->Table().SelectCode('B');
        QCOMPARE(editor.CellSize(), fitting);
        for (int step = 0; step < 30; ++step)
            Trigger(WindowCommand::ZoomIn);
        QVERIFY(editor.CellSize() >= fitting);
        Trigger(WindowCommand::Undo); // opening would ask
        OpenSample(FontFormat::AA4);
        QCOMPARE(editor.Zoom(), 0);
    }

    // Not for the commands that have these as keys in the editor.
    void MenusTakePlainKeys()
    {
        OpenSample(FontFormat::AA4);
        CurrentFont().FindChar('B')->info.yPos = 0;
        window_->Table().SelectCode('B');
        CharBitmapView& editor = window_->Editor();
        QVERIFY(editor.SelectItem(editor.CellItem(1, editor.Top())));
        QAction* const view = window_->Menus().actions()[2];
        window_->Menus().setFocus(Qt::MenuBarFocusReason); // as Alt and a letter do
        view->menu()->popup(window_->pos());
        QTest::keyClick(view->menu(), Qt::Key_U);
        QVERIFY(window_->Menus().Command(EditorTool::Select)->isChecked());
        QVERIFY(window_->Menus().Command(WindowCommand::ShowOutline)->isChecked());
        Trigger(WindowCommand::ShowOutline);
    }

    // Of the font that was rendered here, even after edits; a font of pixels has none.
    void OutlineBehindThePixels()
    {
        const QColor colour(225, 0, 140);
        const auto markedCells = [&] {
            const CharBitmapView& editor = window_->Editor();
            const QImage picture = window_->Editor().viewport()->grab().toImage();
            QRect cells;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    if (picture.pixelColor(x, y) == colour)
                        cells |= QRect(editor.CellAt({x, y}), QSize(1, 1));
            return cells;
        };
        const auto action = std::make_shared<ActionOpenFont>(*session_, ActionType::OpenFont);
        action->Args().path = QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf");
        action->Args().selection.emplace().SetRange(' ', 'B', true);
        action->Args().format = FontFormat::AA4;
        action->Args().render.height = 24;
        QVERIFY(action->Run());
        window_->Table().SelectCode('A');
        QVERIFY(markedCells().isEmpty());
        Trigger(WindowCommand::ShowOutline);
        const CharInfo& info = CurrentFont().FindChar('A')->info;
        const QRect whole(0, info.yPos, info.width, info.height);
        const auto isNear = [](const QRect& marked, const QRect& expected) {
            return expected.adjusted(-1, -1, 1, 1).contains(marked) &&
                   marked.contains(expected.adjusted(1, 1, -1, -1));
        };
        QVERIFY(isNear(markedCells(), whole));
        Trigger(ActionType::InsertColumnLeft);
        Trigger(ActionType::MoveLeft);
        Trigger(ActionType::FontInsertRowTop);
        QVERIFY(isNear(markedCells(), whole.translated(1, 1)));
        window_->Table().SelectCode(' ');
        QVERIFY(markedCells().isEmpty());
        session_->SetSaved({}); // opening would ask
        OpenSample();
        QVERIFY(markedCells().isEmpty());
        Trigger(WindowCommand::ShowOutline);
    }

    void PreferencesTakeEffectAtOnce()
    {
        OpenSample();
        QCOMPARE(window_->Table().model()->headerData(0, Qt::Vertical).toString(), u"0x0040"_s);
        for (const auto& [index, label] : {std::pair(0, u"64"_s), std::pair(1, u"0x0040"_s)}) {
            const DialogAnswer<PreferencesDialog> answer([index](auto& dialog) {
                for (QComboBox* const box : dialog.template findChildren<QComboBox*>()) {
                    if (box->itemText(0) == u"Decimal"_s)
                        box->setCurrentIndex(index);
                }
                dialog.accept();
            });
            Trigger(WindowCommand::Preferences);
            QCOMPARE(window_->Table().model()->headerData(0, Qt::Vertical).toString(), label);
        }
    }

    void DeletingFromTheContextMenu()
    {
        OpenSample();
        const QByteArray before = Test::Snapshot(CurrentFont());
        CharacterTable& table = window_->Table();
        QTest::keyClick(&table, Qt::Key_Right, Qt::ShiftModifier); // from A to B
        QStringList entries;
        QTimer::singleShot(0, &table, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr && menu->parent() == &table);
            for (QAction* const entry : menu->actions())
                entries.append(entry->text());
            menu->actions()[3]->trigger();
            menu->close();
        });
        const QPoint place = table.CellRect('B').center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                table.viewport()->mapToGlobal(place));
        QApplication::sendEvent(table.viewport(), &event);
        QCOMPARE(entries.first(4), (QStringList{u"&Enable"_s, u"&Disable"_s, u"&Toggle character"_s,
                                                u"Delete c&haracters"_s}));
        QVERIFY(entries.contains(u"&Move"_s) && !entries.contains(u"Pi&xel index"_s));
        QVERIFY(CurrentFont().FindChar('A') == nullptr && CurrentFont().FindChar('B') == nullptr);
        QVERIFY(CurrentFont().FindChar('C') != nullptr);
        Trigger(WindowCommand::Undo);
        QCOMPARE(Test::Snapshot(CurrentFont()), before);
    }

    void CommandsOpenTheirDialogs_data()
    {
        QTest::addColumn<quint32>("id");
        QTest::addColumn<QString>("title");
        const auto row = [](auto command, const QString& title) {
            QTest::addRow("%s", qPrintable(title)) << CommandId(command) << title;
        };
        row(ActionType::CreateFont, u"New font"_s);
        row(ActionType::OpenFont, u"Open font file"_s);
        row(ActionType::SaveFontAs, u"Save font file"_s);
        row(ActionType::ReadPattern, u"Read pattern file"_s);
        row(ActionType::SavePattern, u"Save pattern file"_s);
        row(ActionType::SaveKerning, u"Save kerning file"_s);
        row(ActionType::Enable, u"Enable range of characters"_s);
        row(ActionType::Disable, u"Disable range of characters"_s);
        row(WindowCommand::GoToCharacter, u"Go to character"_s);
        row(WindowCommand::Preferences, u"Preferences"_s);
        row(WindowCommand::About, u"About Glyphor"_s);
        row(WindowCommand::CommandLineOptions, u"Command line options"_s);
    }

    void CommandsOpenTheirDialogs()
    {
        QFETCH(const quint32, id);
        QFETCH(const QString, title);
        OpenSample();
        CurrentFont().SetHasKerning(true);
        Q_EMIT window_->Table().CodesSelected(); // enables anew
        QString shown;
        const DialogAnswer<QDialog> answer([&shown](QDialog& dialog) {
            shown = dialog.windowTitle();
            dialog.reject();
        });
        Trigger(id);
        QCOMPARE(shown, title);
    }

    void WorkCanBeStopped_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("button") << 0;
        QTest::newRow("escape") << 1;
        QTest::newRow("closing") << 2;
    }

    // Whatever else is done in the meantime is dropped.
    void WorkCanBeStopped()
    {
        QFETCH(const int, way);
        OpenSample();
        const int current = window_->Table().CurrentCode();
        QTimer::singleShot(0, window_.get(), [&] {
            QVERIFY(window_->Progress().isVisible());
            QTest::keyClick(&window_->Table(), Qt::Key_Right);
            Trigger(ActionType::FontInsertRowTop); // as screen readers do, without a key
            if (way == 0)
                QTest::mouseClick(window_->Progress().findChild<QAbstractButton*>(),
                                  Qt::LeftButton);
            else if (way == 1)
                QTest::keyClick(&window_->Table(), Qt::Key_Escape);
            else
                QVERIFY(!window_->close());
        });
        const auto work = [] {
            Progress progress(u"Work"_s, 5000);
            for (int step = 0; step < 5000; ++step) {
                QThread::msleep(1);
                progress.Advance();
            }
        };
        QVERIFY_THROWS_EXCEPTION(WorkStopped, work());
        QVERIFY(!window_->Progress().isVisible() && window_->isVisible());
        QVERIFY(!session_->IsModified());
        QCOMPARE(window_->Table().CurrentCode(), current);
        QTest::keyClick(&window_->Table(), Qt::Key_Right);
        QCOMPARE(window_->Table().CurrentCode(), current + 1);
    }

    void IndexingCanBeStopped()
    {
        QSignalSpy ends(window_->findChild<FontIndexer*>(), &FontIndexer::Indexed);
        Trigger(WindowCommand::IndexFonts);
        window_->Progress().Stop();
        QVERIFY(ends.wait(20000));
        QVERIFY(!window_->Progress().isVisible());
    }

    void StateIsRemembered()
    {
        OpenSample();
        window_->resize(900, 500);
        Trigger(EditorTool::Line);
        Trigger(WindowCommand::AllCharacters);
        window_->close();
        window_ = std::make_unique<MainWindow>(*session_, *history_);
        SetCurrentInterface(window_.get());
        window_->show();
        QCOMPARE(window_->size(), QSize(900, 500));
        QVERIFY(window_->Menus().Command(EditorTool::Line)->isChecked());
        QVERIFY(!window_->Menus().Command(EditorTool::Select)->isChecked());
        QVERIFY(!window_->Menus().Command(WindowCommand::AllCharacters)->isChecked());
    }

    void HasItsIcon() { QVERIFY(!window_->windowIcon().pixmap(32).isNull()); }

    void TheManualIsFound() { QVERIFY(ManualUrl().isLocalFile()); }

    void BrokenStateGivesTheDefaults()
    {
        Settings::Instance().mainWindow.save({"geometry", "state"});
        const MainWindow other(*session_, *history_);
        QCOMPARE(other.size(), QSize(1240, 760));
    }
};

GLYPHOR_TEST(TestWindow)

} // namespace Glyphor

#include "tst_window.moc"
