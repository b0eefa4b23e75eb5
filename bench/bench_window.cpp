// Measures what the window does on fonts that are as large as they can be: 65,536 characters, and a
// character of 255 x 255 pixels. Times are those of a user's one step, with the painting.
//
// Usage: bench_window

#include "actions/session.h"
#include "files/font_file.h"
#include "timing.h"
#include "ui/document/font_copy.h"
#include "ui/document/recovery.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/support/undo_stack.h"
#include "ui/table/character_table.h"
#include "ui/window/main_window.h"
#include "ui/window/menu_bar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>

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
    window.CurrentRecovery().SetInterval(0);
    Measure("an edit of them, and the copy that follows", [&] { run(ActionType::ShiftLeft); });
    window.CurrentRecovery().SetInterval(1000000);
    Measure("undoing it", [&] { window.Menus().Command(WindowCommand::Undo)->trigger(); });
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
    MeasureEditor();
    return 0;
}
