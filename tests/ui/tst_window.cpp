#include "actions/action_save_file.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/progress.h"
#include "app/settings.h"
#include "files/font_file_c.h"
#include "files/font_file_sif.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/dialogs/font_generation_dialog.h"
#include "ui/dialogs/format_box.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/document/document.h"
#include "ui/document/font_indexer.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/preview/text_preview.h"
#include "ui/support/undo_stack.h"
#include "ui/table/character_table.h"
#include "ui/window/help.h"
#include "ui/window/main_window.h"
#include "ui/window/menu_bar.h"
#include "ui/window/progress_area.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Answers the next box with a button, and tells its title and text.
class BoxAnswer
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton button)
    {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, [this, button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            timer_.stop();
            text = box->windowTitle() + u": "_s + box->text();
            box->button(button)->click();
        });
        timer_.start();
    }

    QString text;

private:
    QTimer timer_;
};

// Has the next dialog of a kind answered.
template <typename Dialog>
class DialogAnswer
{
public:
    explicit DialogAnswer(const std::function<void(Dialog&)>& answer)
    {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, [this, answer] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            timer_.stop();
            wasAsked = true;
            answer(*dialog);
        });
        timer_.start();
    }

    bool wasAsked = false;

private:
    QTimer timer_;
};

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;
    std::unique_ptr<UndoStack> history_;
    std::unique_ptr<Session> session_;
    std::unique_ptr<MainWindow> window_;

    [[nodiscard]] QString Path(const char* name) const
    {
        return folder_.filePath(QString::fromUtf8(name));
    }

    template <typename Command>
    [[nodiscard]] bool IsEnabled(Command command) const
    {
        return window_->Menus().Command(command)->isEnabled();
    }

    template <typename Command>
    void Trigger(Command command) const
    {
        window_->Menus().Command(command)->trigger();
    }

    [[nodiscard]] Font& CurrentFont() const { return *session_->CurrentFont(); }

    void OpenSample(FontFormat format = FontFormat::AA2)
    {
        const QString path = Path("sample.sif");
        FontFileSample(format, path);
        QVERIFY(window_->CurrentDocument().OpenFile(path));
        window_->Table().SelectCode('A');
    }

    static void FontFileSample(FontFormat format, const QString& path);

    [[nodiscard]] bool Drop(const QString& path) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.setAccepted(false);
        // Straight to the window: the application takes drops only from a drag of its own.
        static_cast<QObject*>(window_.get())->event(&event);
        return event.isAccepted();
    }

private Q_SLOTS:
    void init()
    {
        history_ = std::make_unique<UndoStack>();
        session_ = std::make_unique<Session>(*history_);
        window_ = std::make_unique<MainWindow>(*session_, *history_);
        SetCurrentInterface(window_.get());
        window_->show();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void cleanup()
    {
        SetCurrentInterface(nullptr);
        window_.reset();
        session_.reset();
    }

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
        for (const Edit& edit : EditTable()) {
            if (edit.target != EditTarget::Pixel)
                QTest::addRow("command %d", int(edit.type)) << edit.type;
        }
        for (const ActionType type : {ActionType::DisableAll, ActionType::Toggle})
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
        QTest::keyClick(&window_->Table(), Qt::Key_R, Qt::ShiftModifier); // there is no such one
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
        QTest::keyClick(box, Qt::Key_Space);
        QVERIFY(box->isChecked());
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
        for (QAction* const tool : window_->findChildren<QAction*>()) {
            if (tool->text() == u"Pencil"_s)
                tool->trigger();
        }
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

    void SavesAndTells()
    {
        OpenSample();
        QVERIFY(window_->windowTitle().startsWith(u"sample.sif[*]"_s));
        Trigger(ActionType::FontInsertRowTop);
        QVERIFY(window_->isWindowModified());
        Trigger(ActionType::SaveFont);
        QVERIFY(!window_->isWindowModified());
        Session other;
        QVERIFY(session_->Path().endsWith(u"sample.sif"_s));
        QVERIFY(window_->CurrentDocument().OpenFile(session_->Path()));
        QCOMPARE(int(CurrentFont().Metrics().height), 4);
    }

    // Names of files may look like markup, or like the mark of changes.
    void NamesAreShownPlainly()
    {
        const QByteArray name = "<h1>[*]&amp;\n.sif";
        FontFileSample(FontFormat::AA2, Path(name.constData()));
        QVERIFY(window_->CurrentDocument().OpenFile(Path(name.constData())));
        QVERIFY(window_->windowTitle().startsWith(u"<h1>[*][*]&amp;\\n.sif[*] "_s));
        for (const QLabel* const label : window_->statusBar()->findChildren<QLabel*>())
            QCOMPARE(label->textFormat(), Qt::PlainText);
        bool isPlain = false;
        const DialogAnswer<QMessageBox> answer([&isPlain](QMessageBox& box) {
            isPlain = box.textFormat() == Qt::PlainText && box.text().contains(u"<b>x.xbf"_s);
            box.accept();
        });
        Test::WriteAll(Path("<b>x.xbf"), "nothing");
        QVERIFY(!window_->CurrentDocument().OpenFile(Path("<b>x.xbf")));
        QVERIFY(isPlain);
    }

    void AsksBeforeMoreThanAFontIsReplaced()
    {
        FontFileC(Path("code.c"), {}).Write(*Test::MakeSampleFont(FontFormat::AA2));
        const QByteArray text = Test::ReadAll(Path("code.c")) + "int used;\n";
        Test::WriteAll(Path("code.c"), text);
        BoxAnswer told(QMessageBox::Ok);
        QVERIFY(window_->CurrentDocument().OpenFile(Path("code.c")));
        QVERIFY(told.text.endsWith(u"Beside it: used"_s));
        for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
            BoxAnswer answer(button);
            const auto save = std::make_shared<ActionSaveFile>(*session_, ActionType::SaveFontAs);
            save->Args().path = Path("code.c");
            QCOMPARE(save->Run(), button == QMessageBox::Yes);
            QVERIFY(answer.text.contains(u"holds more than a font. Replace all of it?"_s));
            QCOMPARE(Test::ReadAll(Path("code.c")) == text, button == QMessageBox::No);
        }
    }

    void FailuresKeepTheFont()
    {
        OpenSample();
        Test::WriteAll(Path("bad.c"), "nothing");
        const Font* const before = session_->CurrentFont();
        BoxAnswer answer(QMessageBox::Ok);
        QVERIFY(!window_->CurrentDocument().OpenFile(Path("bad.c")));
        QVERIFY(answer.text.startsWith(u"Error reading C file!: GUI_FONT structure"_s));
        QCOMPARE(session_->CurrentFont(), before);
    }

    void ScalableFontsAskHow()
    {
        const QString path = QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf");
        {
            const DialogAnswer<FontGenerationDialog> answer([](auto& dialog) { dialog.reject(); });
            QVERIFY(!window_->CurrentDocument().OpenFile(path));
            QVERIFY(answer.wasAsked && session_->CurrentFont() == nullptr);
        }
        const DialogAnswer<FontGenerationDialog> answer([](auto& dialog) {
            dialog.template findChild<QSpinBox*>()->setValue(20);
            dialog.accept();
        });
        QVERIFY(window_->CurrentDocument().OpenFile(path));
        QVERIFY(answer.wasAsked && session_->CurrentFont()->FindChar('A') != nullptr);
        // A file that is no font is told so without a question.
        Test::WriteAll(Path("text.ttf"), "text");
        BoxAnswer box(QMessageBox::Ok);
        QVERIFY(!window_->CurrentDocument().OpenFile(Path("text.ttf")));
        QVERIFY(box.text.startsWith(u"Font creation failed!"_s));
    }

    // A cut trailer has the format asked for; giving up is no failure.
    void FormatsAreAskedFor()
    {
        FontFileSample(FontFormat::LegacyAA4, Path("old.sif"));
        Test::WriteAll(Path("old.sif"), Test::ReadAll(Path("old.sif")).chopped(4));
        {
            const DialogAnswer<FormatDialog> answer([](auto& dialog) { dialog.reject(); });
            QVERIFY(!window_->CurrentDocument().OpenFile(Path("old.sif")));
        }
        const DialogAnswer<FormatDialog> answer([](auto& dialog) {
            dialog.template findChild<FormatBox*>()->SetFormat(FontFormat::LegacyAA4);
            dialog.template findChild<EncodingBox*>()->SetEncoding(EncodingType::ShiftJis);
            dialog.accept();
        });
        QVERIFY(window_->CurrentDocument().OpenFile(Path("old.sif")));
        QCOMPARE(CurrentFont().Metrics().format, FontFormat::LegacyAA4);
        QCOMPARE(CurrentFont().Metrics().encoding, EncodingType::ShiftJis);
    }

    void PreferencesTakeEffectAtOnce()
    {
        OpenSample();
        QCOMPARE(window_->Table().model()->headerData(0, Qt::Vertical).toString(), u"0x0040"_s);
        for (const auto& [index, label] : {std::pair(0, u"64"_s), std::pair(1, u"0x0040"_s)}) {
            const DialogAnswer<PreferencesDialog> answer([index](auto& dialog) {
                dialog.template findChild<QComboBox*>()->setCurrentIndex(index);
                dialog.accept();
            });
            Trigger(WindowCommand::Preferences);
            QCOMPARE(window_->Table().model()->headerData(0, Qt::Vertical).toString(), label);
        }
    }

    void Closing_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("yes") << int(QMessageBox::Yes) << true << true;
        QTest::newRow("no") << int(QMessageBox::No) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    }

    void Closing()
    {
        QFETCH(const int, button);
        QFETCH(const bool, closes);
        QFETCH(const bool, saves);
        OpenSample();
        const QByteArray old = Test::ReadAll(Path("sample.sif"));
        Trigger(ActionType::FontInsertRowTop);
        BoxAnswer answer{QMessageBox::StandardButton(button)};
        QCOMPARE(window_->close(), closes);
        QCOMPARE(answer.text, u"Save file?: Save current file?"_s);
        QCOMPARE(Test::ReadAll(Path("sample.sif")) != old, saves);
    }

    void Drops()
    {
        FontFileSample(FontFormat::AA4, Path("drop.sif"));
        QVERIFY(Drop(Path("drop.sif")));
        QVERIFY(session_->CurrentFont() != nullptr);
        QCOMPARE(Document::PurposeOf(u"a.TXT"_s), ActionType::ReadPattern);
        QCOMPARE(Document::PurposeOf(u"a.png"_s), ActionType::None);
        Test::WriteAll(Path("pattern.txt"), QByteArray::fromHex("fffe7e00"));
        CurrentFont().SetEnabled(0x42, 0x42, false);
        Test::WriteAll(Path("pattern.txt"), QByteArray::fromHex("fffe4200"));
        {
            BoxAnswer answer(QMessageBox::No);
            QVERIFY(!Drop(Path("pattern.txt")));
            QCOMPARE(answer.text,
                     u"Load pattern file?: Apply the pattern file pattern.txt to this font?"_s);
            QVERIFY(!CurrentFont().IsEnabled(0x42));
        }
        BoxAnswer answer(QMessageBox::Yes);
        QVERIFY(Drop(Path("pattern.txt")));
        QVERIFY(CurrentFont().IsEnabled(0x42));
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
        window_->Editor().SetZoom(12);
        Trigger(WindowCommand::AllCharacters);
        window_->close();
        window_ = std::make_unique<MainWindow>(*session_, *history_);
        SetCurrentInterface(window_.get());
        window_->show();
        QCOMPARE(window_->size(), QSize(900, 500));
        QCOMPARE(window_->Editor().Zoom(), 12);
        QVERIFY(!window_->Menus().Command(WindowCommand::AllCharacters)->isChecked());
    }

    void TheManualIsFound() { QVERIFY(ManualUrl().isLocalFile()); }

    void BrokenStateGivesTheDefaults()
    {
        Settings::Instance().mainWindow.save({"geometry", "state"});
        const MainWindow other(*session_, *history_);
        QCOMPARE(other.size(), QSize(1240, 760));
    }
};

void TestWindow::FontFileSample(FontFormat format, const QString& path)
{
    FontFileSIF(path).Write(*Test::MakeSampleFont(format));
}

GLYPHOR_TEST(TestWindow)

} // namespace Glyphor

#include "tst_window.moc"
