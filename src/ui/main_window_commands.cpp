// The commands of the main window that change the font, and those of its own.

#include "ui/main_window.h"

#include "actions/edit_actions.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/settings.h"
#include "app/version.h"
#include "cli/command_line_parser.h"
#include "cli/installed_fonts.h"
#include "ui/char_bitmap_view.h"
#include "ui/char_table_view.h"
#include "ui/code_dialogs.h"
#include "ui/font_dialog.h"
#include "ui/font_indexer.h"
#include "ui/info_panel.h"
#include "ui/menu_bar.h"
#include "ui/preferences_dialog.h"
#include "ui/progress_area.h"
#include "ui/text_dialog.h"
#include "ui/undo_stack.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QUrl>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

void MainWindow::OnActionTriggered(quint32 id)
{
    RunCommand(id);
}

void MainWindow::RunCommand(quint32 id)
{
    editor_->EndStroke();
    const auto type = ActionType(id);
    if (const Edit* const edit = EditOf(type)) {
        RunEdit(*edit);
        return;
    }
    switch (type) {
    case ActionType::CreateFont:
        New();
        break;
    case ActionType::OpenFont:
        Open();
        break;
    case ActionType::MergeFont:
        Merge();
        break;
    case ActionType::SaveFont:
        Save();
        break;
    case ActionType::SaveFontAs:
        SaveAs();
        break;
    case ActionType::SaveKerning:
        SaveKerning();
        break;
    case ActionType::SavePattern:
        SavePattern();
        break;
    case ActionType::ReadPattern:
        OpenPattern();
        break;
    case ActionType::Enable:
    case ActionType::Disable:
        ChangeRange(type);
        break;
    case ActionType::DisableAll:
        RunAction(std::make_shared<ActionCharState>(session_, type));
        break;
    case ActionType::Toggle:
        RunStateChange(type);
        break;
    case ActionType::ExitProgram:
        close();
        break;
    default:
        RunWindowCommand(id);
        break;
    }
}

void MainWindow::RunEdit(const Edit& edit)
{
    switch (edit.target) {
    case EditTarget::Character:
        RunSelectionEdit(edit);
        break;
    case EditTarget::Font:
        RunAction(std::make_shared<ActionFont>(session_, edit.type));
        break;
    case EditTarget::Pixel:
        RunPixelCommand(edit.type);
        break;
    }
}

void MainWindow::RunWindowCommand(quint32 id)
{
    switch (WindowCommand(id)) {
    case WindowCommand::Undo:
    case WindowCommand::Redo:
        MoveInHistory(WindowCommand(id) == WindowCommand::Undo);
        break;
    case WindowCommand::AllCharacters:
        table_->SetShowAll(menus_->Command(id)->isChecked());
        break;
    case WindowCommand::GoToCharacter:
        GoToCharacter();
        break;
    case WindowCommand::IndexFonts:
        indexer_->Start();
        break;
    case WindowCommand::Preferences:
        ShowPreferences();
        break;
    case WindowCommand::About:
        ShowAbout();
        break;
    case WindowCommand::CommandLineOptions:
        ShowCommandLineOptions();
        break;
    case WindowCommand::UserManual:
        ShowManual();
        break;
    }
}

bool MainWindow::handleRequest(ActionType kind)
{
    switch (kind) {
    case ActionType::PrintUsage:
        ShowCommandLineOptions();
        return true;
    case ActionType::ListFonts:
        TextDialog(tr("Installed fonts"), InstalledFontTable(), this).exec();
        return true;
    case ActionType::ExitProgram:
        // Once the options have run.
        QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
        return true;
    default:
        return false;
    }
}

void MainWindow::RunAction(const std::shared_ptr<Action>& action)
{
    Guarded([&action] { action->Run(); });
}

// Several actions that are undone as one.
void MainWindow::RunMacro(const QString& text, const std::function<void()>& work)
{
    history_.beginMacro(text);
    RunTogether(work);
    history_.endMacro();
    ShowMessage(text);
    UpdateTitle();
}

void MainWindow::MoveInHistory(bool isUndo)
{
    const QString text = isUndo ? history_.ShownUndoText() : history_.ShownRedoText();
    movedCodes_ = {};
    {
        const QScopedValueRollback move(isMovingInHistory_, true);
        RunTogether([&] { isUndo ? history_.undo() : history_.redo(); });
    }
    ShowMessage((isUndo ? tr("Undone: %1") : tr("Redone: %1")).arg(text));
    const int current = table_->CurrentCode();
    const int first = movedCodes_.Next(0);
    if (first < CodeSet::Limit && (current < 0 || !movedCodes_.Test(quint16(current))))
        table_->SetCurrentCode(first);
}

// One action for each run of codes, undone as one.
void MainWindow::RunForEach(const CodeSet& codes, const QString& text, const MakeAction& make)
{
    const std::vector<CodeRange> runs = RunsOf(codes);
    if (runs.size() == 1)
        RunAction(make(runs.front()));
    else if (!runs.empty())
        RunMacro(tr("Selection: %1").arg(text), [&] {
            for (const CodeRange& run : runs)
                make(run)->Run();
        });
}

void MainWindow::RunSelectionEdit(const Edit& edit)
{
    CodeSet codes = table_->SelectedCodes();
    codes &= session_.CurrentFont()->ExistingCodes();
    RunForEach(codes, LogEntry(edit.log).Translated(), [&](const CodeRange& run) {
        auto action = std::make_shared<ActionChar>(session_, edit.type);
        action->Args() = {run.first, run.last};
        return action;
    });
}

void MainWindow::RunStateChange(ActionType type)
{
    const Font& font = *session_.CurrentFont();
    CodeSet codes = table_->SelectedCodes();
    codes &= font.ExistingCodes();
    if (codes.IsEmpty())
        return;
    // All of the selection becomes the opposite of its first character.
    const bool enables = type == ActionType::Enable ||
                         (type == ActionType::Toggle && !font.IsEnabled(*codes.begin()));
    if (enables)
        codes -= font.EnabledCodes();
    else
        codes &= font.EnabledCodes();
    const bool isOne = codes.Count() == 1;
    const ActionType state = enables ? ActionType::Enable : ActionType::Disable;
    const ActionType change = isOne ? type : state;
    RunForEach(codes, LogEntry(LogMessage(state)).Translated(), [&](const CodeRange& run) {
        auto action = std::make_shared<ActionCharState>(session_, change);
        action->Args().first = run.first;
        action->Args().last = run.last;
        return action;
    });
}

void MainWindow::DeleteSelection()
{
    RunAction(std::make_shared<ActionCharDelete>(session_, table_->SelectedCodes()));
}

void MainWindow::RunPixelCommand(ActionType type)
{
    const QPoint pixel = editor_->SelectedPixel();
    if (pixel.x() < 0)
        return;
    const auto action = std::make_shared<ActionPixelIndex>(session_, type);
    action->Args().code = quint16(table_->CurrentCode());
    action->Args().x = pixel.x();
    action->Args().y = pixel.y();
    RunAction(action);
}

// The pixels of a stroke are undone as one. A stroke that changes nothing is no step.
void MainWindow::PaintPixel(int x, int y, bool inverts)
{
    const ActionType type =
        inverts ? ActionType::InvertPixelIndex : EditThatSets(pencilIndex_->value()).type;
    const auto action = std::make_shared<ActionPixelIndex>(session_, type);
    action->Args().code = quint16(table_->CurrentCode());
    action->Args().x = x;
    action->Args().y = y;
    const Character* const character = editor_->CurrentCharacter();
    if (!inverts && character->bitmap->GetPixelIndex(x, y) == pencilIndex_->value())
        return;
    if (isStroking_ && !strokeHasSteps_) {
        strokeHasSteps_ = true;
        history_.beginMacro(tr("Stroke"));
    }
    RunAction(action);
}

void MainWindow::EndStroke()
{
    isStroking_ = false;
    if (strokeHasSteps_)
        history_.endMacro();
    strokeHasSteps_ = false;
    RefreshViews();
}

void MainWindow::ChangeRange(ActionType type)
{
    const Font& font = *session_.CurrentFont();
    EnableRangeDialog dialog(type == ActionType::Enable, font.ExistingCodes(),
                             font.Metrics().encoding, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const auto action = std::make_shared<ActionCharState>(session_, type);
    action->Args().first = dialog.First();
    action->Args().last = dialog.Last();
    RunAction(action);
}

void MainWindow::GoToCharacter()
{
    const Font& font = *session_.CurrentFont();
    CodeSet shown = font.ExistingCodes();
    if (!menus_->Command(WindowCommand::AllCharacters)->isChecked())
        shown &= font.EnabledCodes();
    GoToDialog dialog(shown, font.Metrics().encoding, this);
    if (dialog.exec() == QDialog::Accepted && table_->SetCurrentCode(dialog.Code()))
        table_->setFocus();
}

void MainWindow::OnDatabaseFileDone(int done)
{
    progress_->SetBackground(done);
}

void MainWindow::OnDatabaseThreadFinished()
{
    progress_->EndBackground();
}

void MainWindow::New()
{
    ActionOpenFontArgs args;
    if (!AskFont(args))
        return;
    Guarded([&] {
        const auto action = std::make_shared<ActionOpenFont>(session_, ActionType::CreateFont);
        action->Args() = args;
        if (AskGeneration(action->Args()) && AskToSave())
            action->Run();
    });
}

// The installed fonts are indexed when they are first asked for; the dialog fills then.
bool MainWindow::AskFont(ActionOpenFontArgs& args)
{
    if (!indexer_->HasBegun())
        indexer_->Start();
    FontDialog dialog(this);
    dialog.SetIndexing(indexer_->IsIndexing());
    connect(indexer_, &FontIndexer::Indexed, &dialog, [&dialog] {
        dialog.Fill();
        dialog.SetIndexing(false);
    });
    connect(&dialog, &FontDialog::IndexRequested, this, [this, &dialog] {
        indexer_->Start();
        dialog.SetIndexing(true);
    });
    connect(&dialog, &FontDialog::StopRequested, indexer_, &FontIndexer::Stop);
    connect(&dialog, &FontDialog::DirectoriesRequested, this, [this, &dialog] {
        EditPreferences(PreferencesDialog::Fonts, &dialog);
        dialog.SetIndexing(indexer_->IsIndexing());
    });
    if (dialog.exec() != QDialog::Accepted)
        return false;
    args.path = dialog.Path();
    args.render.faceIndex = dialog.FaceIndex();
    args.size = dialog.Size();
    return true;
}

void MainWindow::ShowPreferences()
{
    EditPreferences(-1, this);
}

// Other directories are indexed at once if any were, or are to be chosen from.
void MainWindow::EditPreferences(int page, QWidget* parent)
{
    const Settings& settings = Settings::Instance();
    const auto directories = [&settings] {
        return std::pair(settings.additionalFontDirs.value(),
                         settings.searchDirsRecursively.value());
    };
    const auto previous = directories();
    PreferencesDialog dialog(parent);
    if (page >= 0)
        dialog.ShowPage(PreferencesDialog::Page(page));
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (directories() != previous && (indexer_->HasBegun() || parent != this))
        indexer_->Start();
    ApplySettings();
    RefreshViews();
}

void MainWindow::ShowAbout()
{
    FT_Int major = 0;
    FT_Int minor = 0;
    FT_Int patch = 0;
    FT_Library_Version(FreeTypeLibrary().Get(), &major, &minor, &patch);
    QMessageBox::about(
        this, tr("About %1").arg(QString(Program::Name)),
        tr("<h3>%1 %2</h3><p>Bitmap fonts for embedded displays.</p><p>Qt %3, FreeType "
           "%4</p><p>© Morvek</p>")
            .arg(QString(Program::Name), QString(Program::Version), QString::fromLatin1(qVersion()),
                 u"%1.%2.%3"_s.arg(major).arg(minor).arg(patch)));
}

void MainWindow::ShowCommandLineOptions()
{
    CommandDialog(CommandLineParser().usage(), this).exec();
}

// Installed, or beside the folder that it was built in.
QUrl MainWindow::ManualUrl()
{
    for (const QString& folder : {u"/../share/doc/glyphor"_s, u"/../../docs"_s}) {
        const QFileInfo manual(QCoreApplication::applicationDirPath() + folder +
                               u"/manual/index.html"_s);
        if (manual.isFile())
            return QUrl::fromLocalFile(manual.canonicalFilePath());
    }
    return QUrl(u"https://morvek.example.com/glyphor"_s);
}

void MainWindow::ShowManual()
{
    const QUrl manual = ManualUrl();
    if (!QDesktopServices::openUrl(manual))
        information(tr("User manual"),
                    tr("No web browser could be started. The manual is here:\n%1")
                        .arg(manual.toDisplayString(QUrl::PreferLocalFile)));
}

void MainWindow::ShowContextMenu(QPoint globalPosition)
{
    if (session_.CurrentFont() == nullptr || table_->CurrentCode() < 0)
        return;
    QMenu menu;
    connect(menu.addAction(tr("&Enable")), &QAction::triggered, this,
            [this] { RunStateChange(ActionType::Enable); });
    connect(menu.addAction(tr("&Disable")), &QAction::triggered, this,
            [this] { RunStateChange(ActionType::Disable); });
    QAction* const toggle = menus_->Command(ActionType::Toggle);
    menu.addAction(toggle);
    connect(menu.addAction(tr("De&lete")), &QAction::triggered, this, &MainWindow::DeleteSelection);
    for (QAction* const action : menu.actions())
        action->setEnabled(toggle->isEnabled()); // they all need a character
    menu.addSeparator();
    for (QAction* const action : menus_->Submenu(SubmenuId::Edit)->actions()) {
        if (action->menu() != nullptr && action->menu() != menus_->Submenu(SubmenuId::PixelIndex))
            menu.addMenu(action->menu());
    }
    menu.exec(globalPosition);
}

} // namespace Glyphor
