// Measures what the window does on fonts that are as large as they can be: 65,536 characters, and a
// character of 255 x 255 pixels. Times are those of a user's one step, with the painting.
//
// Usage: bench_window

#include "actions/edit_actions.h"
#include "actions/session.h"
#include "files/font_file.h"
#include "timing.h"
#include "ui/document/font_copy.h"
#include "ui/document/recovery.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/support/undo_stack.h"
#include "ui/support/value_fields.h"
#include "ui/table/character_table.h"
#include "ui/window/history_view.h"
#include "ui/window/info_panel.h"
#include "ui/window/main_window.h"
#include "ui/window/menu_bar.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Glyphor;

namespace {

// Every `step`th code has a character.
std::unique_ptr<Font> MakeFont(int count, int size, int step = 1)
{
    auto font = std::make_unique<Font>(FontFormat::AA4, EncodingType::Unicode);
    font->SetHeight(quint8(size));
    const auto extent = quint8(size);
    const CharMetrics metrics = {extent, extent, 0, 0, extent};
    std::vector<uchar> bytes(static_cast<std::size_t>(BitmapSize(metrics, font->Metrics())));
    for (int code = 0; code < count; code += step) {
        for (std::size_t at = 0; at < bytes.size(); ++at)
            bytes[at] = static_cast<uchar>(std::size_t(code) * 31 + at * 7);
        font->PutChar(static_cast<quint16>(code), metrics, bytes);
    }
    return font;
}

template <typename Step>
void Measure(const char* what, Step step)
{
    std::vector<double> times;
    for (int run = 0; run < 9; ++run)
        times.push_back(Seconds([&] {
            step();
            QCoreApplication::processEvents();
        }));
    std::printf("  %-44s %7.1f ms\n", what, Median(times) * 1e3);
}

void MeasureTable()
{
    UndoStack history;
    Session session(history);
    MainWindow window(session, history);
    SetCurrentInterface(&window);
    window.show();
    const auto show = [&] {
        session.ReplaceFont(MakeFont(0x10000, 16), QStringLiteral("large.c"));
        window.ActionChanged(nullptr);
    };
    CharacterTable& table = window.Table();
    std::printf("A font of 65,536 characters\n");
    Measure("making and showing it", show);
    Measure("making it alone", [] { (void)MakeFont(0x10000, 16); });
    int code = 0;
    Measure("selecting a character far away", [&] { table.SelectCode(code += 7001); });
    Measure("scrolling by a page",
            [&] { table.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd); });
    const auto run = [&](ActionType type) { window.Menus().Command(type)->trigger(); };
    Measure("an edit of one character", [&] { run(ActionType::InsertColumnRight); });
    Measure("an edit of the font", [&] { run(ActionType::FontInsertRowTop); });
    Measure("copying it, to be kept", [&] { const FontCopy copy(*session.CurrentFont()); });
    std::printf("A font of 8,192 characters with gaps, all selected\n");
    session.ReplaceFont(MakeFont(0x4000, 16, 2), QStringLiteral("gaps.c"));
    window.ActionChanged(nullptr);
    QKeyEvent selectAll(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::sendEvent(&table, &selectAll);
    Measure("an edit of them", [&] { run(ActionType::ShiftLeft); });
    NumberField& distance = window.findChild<InfoPanel*>()->FieldOf(ActionType::SetCursorDistance);
    int value = 0;
    Measure("a metric of them", [&] { distance.setValue(++value); });
    window.CurrentRecovery().SetInterval(0);
    Measure("an edit of them, and the copy that follows", [&] { run(ActionType::ShiftLeft); });
    window.CurrentRecovery().SetInterval(1000000);
    Measure("undoing it", [&] { window.Menus().Command(WindowCommand::Undo)->trigger(); });
    std::printf("A font of 2,000 characters\n");
    session.ReplaceFont(MakeFont(1000, 16), QStringLiteral("part.c"));
    window.ActionChanged(nullptr);
    table.setFocus();
    QCoreApplication::sendEvent(&table, &selectAll);
    Measure("copying 1,000 characters",
            [&] { window.Menus().Command(WindowCommand::Copy)->trigger(); });
    session.ReplaceFont(MakeFont(2000, 16), QStringLiteral("whole.c"));
    window.ActionChanged(nullptr);
    int place = 500;
    Measure("pasting 1,000 characters", [&] {
        table.SelectCode(place++);
        window.Menus().Command(WindowCommand::Paste)->trigger();
    });
    SetCurrentInterface(nullptr);
}

// Each event of a stroke with what it paints, down to the slowest.
void MeasureStroke(MainWindow& window)
{
    CharBitmapView& editor = window.Editor();
    editor.SelectItem(editor.CellItem(127, 127)); // the view shows it
    window.Menus().Command(EditorTool::Pencil)->trigger();
    std::vector<double> times;
    const auto send = [&](QEvent::Type type, int column) {
        const QPoint place = editor.mapFromScene(
            (QPointF(column, 100 + column % 3) + QPointF(0.5, 0.5)) * editor.CellSize());
        QMouseEvent event(type, place, editor.viewport()->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        times.push_back(Seconds([&] {
            QCoreApplication::sendEvent(editor.viewport(), &event);
            QCoreApplication::processEvents();
        }));
    };
    send(QEvent::MouseButtonPress, 20);
    for (int column = 21; column < 220; ++column)
        send(QEvent::MouseMove, column);
    send(QEvent::MouseButtonRelease, 219);
    std::printf("  %-44s %7.1f ms\n", "an event of a stroke of 200 pixels", Median(times) * 1e3);
    std::printf("  %-44s %7.1f ms\n", "ending it", times.back() * 1e3);
    times.pop_back();
    std::printf("  %-44s %7.1f ms\n", "the slowest event before",
                *std::ranges::max_element(times) * 1e3);
    window.Menus().Command(EditorTool::Select)->trigger();
}

void MeasureHistory()
{
    UndoStack history;
    Session session(history);
    MainWindow window(session, history);
    SetCurrentInterface(&window);
    window.show();
    session.ReplaceFont(MakeFont(256, 16), QStringLiteral("edited.c"));
    window.ActionChanged(nullptr);
    constexpr int steps = 10000;
    SetCurrentInterface(nullptr);
    for (int step = 0; step < steps; ++step)
        std::make_shared<ActionChar>(session, ActionType::ShiftLeft, quint16(step % 256))->Run();
    SetCurrentInterface(&window);
    std::printf("A history of 10,000 steps\n");
    HistoryView& list = *window.findChild<HistoryView*>();
    QAction* const shows = window.Menus().Command(WindowCommand::History);
    Measure("opening the list", [&] {
        if (shows->isChecked())
            shows->trigger();
        shows->trigger();
    });
    Measure("an edit with the list open",
            [&] { window.Menus().Command(ActionType::ShiftLeft)->trigger(); });
    Measure("moving to the beginning, or back", [&] {
        const int state = history.index() == 0 ? history.count() : 0;
        Q_EMIT list.StateRequested(state);
    });
    SetCurrentInterface(nullptr);
}

void MeasureEditor()
{
    UndoStack history;
    Session session(history);
    MainWindow window(session, history);
    SetCurrentInterface(&window);
    window.show();
    session.ReplaceFont(MakeFont(2, 255), QStringLiteral("tall.c"));
    window.ActionChanged(nullptr);
    CharacterTable& table = window.Table();
    CharBitmapView& editor = window.Editor();
    std::printf("A character of 255 x 255 pixels\n");
    int code = 0;
    Measure("showing it", [&] { table.SelectCode(code = 1 - code); });
    int column = 0;
    Measure("selecting a pixel", [&] { editor.SelectItem(editor.CellItem(++column, 100)); });
    Measure("an edit of a pixel",
            [&] { window.Menus().Command(ActionType::InvertPixelIndex)->trigger(); });
    Measure("an edit of the character",
            [&] { window.Menus().Command(ActionType::ShiftLeft)->trigger(); });
    Measure("a change of the width",
            [&] { window.Menus().Command(ActionType::DeleteColumnLeft)->trigger(); });
    Measure("painting all of it", [&] { (void)editor.grab(); });
    MeasureStroke(window);
    SetCurrentInterface(nullptr);
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir states; // of the recovery
    qputenv("XDG_STATE_HOME", states.path().toLocal8Bit());
    const QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    MeasureTable();
    MeasureHistory();
    MeasureEditor();
    return 0;
}
