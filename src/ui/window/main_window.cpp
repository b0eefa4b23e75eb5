#include "ui/window/main_window.h"

#include "actions/action_open_font.h"
#include "actions/session.h"
#include "app/engine_texts.h"
#include "app/file_name.h"
#include "app/settings.h"
#include "app/version.h"
#include "cli/installed_fonts.h"
#include "ui/dialogs/text_dialog.h"
#include "ui/document/document.h"
#include "ui/document/font_indexer.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/pencil_tool.h"
#include "ui/preview/text_preview.h"
#include "ui/support/dialog_parts.h"
#include "ui/support/undo_stack.h"
#include "ui/table/character_table.h"
#include "ui/window/commands.h"
#include "ui/window/edit_commands.h"
#include "ui/window/help.h"
#include "ui/window/menu_bar.h"
#include "ui/window/start_page.h"
#include "ui/window/tool_bar.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDataStream>
#include <QDropEvent>
#include <QFileInfo>
#include <QIcon>
#include <QMimeData>
#include <QStackedWidget>

// Outside of the namespace, as the macro needs it.
static void InitResources()
{
    Q_INIT_RESOURCE(resources);
}

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int StateDelay = 50; // milliseconds
constexpr quint32 StateVersion = 2;

QString LocalFileOf(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.isEmpty() ? QString() : FileNameOf(urls.constFirst());
}

} // namespace

MainWindow::MainWindow(Session& session, UndoStack& history)
    : session_(session),
      history_(history),
      indexer_(new FontIndexer(this)),
      document_(new Document(session, *indexer_, *this)),
      menus_(new MenuBar(this)),
      panes_(new Panes),
      startPage_(new StartPage),
      edits_(new EditCommands(session, history, panes_->Table(), panes_->Editor(), *this)),
      pencil_(new PencilTool(session, history, panes_->Editor())),
      commands_(new Commands({session, *indexer_, *document_, *menus_, *panes_, *edits_, *pencil_},
                             *this)),
      status_(new StatusLine)
{
    InitResources();
    QApplication::setWindowIcon(QIcon(u":/icons/glyphor.svg"_s)); // of boxes as well
    setAcceptDrops(true);
    setMenuBar(menus_);
    addToolBar(new ToolBar(*menus_, *document_, *pencil_));
    auto* const content = new QStackedWidget;
    content->addWidget(startPage_);
    content->addWidget(panes_);
    setCentralWidget(content);
    setStatusBar(status_);
    setMinimumSize(640, 420);
    ConnectCommands();
    ConnectViews();
    ConnectIndexer();
    RecallState();
    ShowFont();
}

MainWindow::~MainWindow()
{
    // These outlive what the slots use.
    delete commands_;
    for (QObject* const sender : std::initializer_list<QObject*>{&history_, panes_, pencil_})
        disconnect(sender, nullptr, this, nullptr);
}

void MainWindow::ConnectCommands()
{
    connect(menus_, &MenuBar::CommandTriggered, this, &MainWindow::OnActionTriggered);
    history_.AddUndoCommand(menus_->Command(WindowCommand::Undo));
    history_.AddRedoCommand(menus_->Command(WindowCommand::Redo));
    connect(&history_, &QUndoStack::cleanChanged, this, &MainWindow::UpdateTitle);
    connect(qApp, &QApplication::focusChanged, commands_, &Commands::EnablePossible);
    connect(edits_, &EditCommands::Changed, this, &MainWindow::ShowChanges);
    connect(edits_, &EditCommands::Done, this, [this](const QString& text) {
        status_->Tell(text);
        UpdateTitle();
    });
    connect(document_, &Document::OpeningRequested, this, &MainWindow::OpenRecentFile);
    connect(document_, &Document::RecentFilesChanged, startPage_,
            [this] { startPage_->ShowRecentFiles(document_->RecentFiles()); });
    connect(startPage_, &StartPage::FileChosen, this, &MainWindow::OpenRecentFile);
    connect(startPage_, &StartPage::NewRequested, menus_->Command(ActionType::CreateFont),
            &QAction::trigger);
    connect(startPage_, &StartPage::OpeningRequested, menus_->Command(ActionType::OpenFont),
            &QAction::trigger);
    connect(document_, &Document::SampleChosen, &Preview(), &TextPreview::SetSample);
    connect(document_, &Document::Done, status_, &StatusLine::Tell);
    connect(document_, &Document::RecentFilesChanged, this, &MainWindow::KeepState);
    connect(commands_, &Commands::PreferencesChanged, this, [this] {
        panes_->ShowHexadecimal(ShowsHexadecimal());
        ShowChanges();
    });
}

void MainWindow::ConnectViews()
{
    resizeTimer_.setSingleShot(true);
    resizeTimer_.setInterval(StateDelay);
    connect(&resizeTimer_, &QTimer::timeout, this, &MainWindow::OnTimerResize);
    connect(panes_, &QSplitter::splitterMoved, this, &MainWindow::OnSplitterMoved);
    for (QSplitter* const splitter : panes_->SubSplitters())
        connect(splitter, &QSplitter::splitterMoved, this, &MainWindow::OnSplitterSubMoved);
    connect(&Table(), &CharacterTable::CodesSelected, commands_, &Commands::EnablePossible);
    connect(&Table(), &CharacterTable::MenuRequested, commands_, &Commands::ShowContextMenu);
    const CharBitmapView& editor = Editor();
    connect(&editor, &CharBitmapView::PixelSelected, commands_, &Commands::EnablePossible);
    connect(&editor, &CharBitmapView::StatusChanged, status_, &StatusLine::TellPixel);
    connect(&editor, &CharBitmapView::MenuRequested, this,
            [this](QPoint place) { menus_->Submenu(SubmenuId::PixelIndex)->exec(place); });
    connect(&editor, &CharBitmapView::InversionRequested, edits_, &EditCommands::InvertPixel);
    connect(pencil_, &PencilTool::StrokeEnded, this, &MainWindow::ShowChanges);
}

void MainWindow::ConnectIndexer()
{
    connect(indexer_, &FontIndexer::Counted, this, [this](int count) {
        Progress().BeginBackground(Engine::tr("Indexing font files..."), count);
    });
    connect(indexer_, &FontIndexer::FileDone, this, &MainWindow::OnDatabaseFileDone);
    connect(indexer_, &FontIndexer::Ended, this, &MainWindow::OnDatabaseThreadFinished);
    connect(&Progress(), &ProgressArea::BackgroundStopped, indexer_, &FontIndexer::Stop);
}

// Everything that is remembered of the window but its geometry stands in one record.
void MainWindow::RecallState()
{
    panes_->ShowHexadecimal(ShowsHexadecimal());
    resize(1240, 760);
    const WindowData stored = Settings::Instance().mainWindow.load();
    restoreGeometry(stored.geometry);
    QDataStream stream(stored.state);
    quint32 version = 0;
    QByteArray window;
    QByteArray splitter;
    QByteArray subSplitter;
    QByteArray upperSplitter;
    QStringList files;
    QByteArray preview;
    qint32 zoom = 0;
    bool hasPencil = false;
    bool showsAll = true;
    stream >> version >> window >> splitter >> subSplitter >> upperSplitter >> files >> preview >>
        zoom >> hasPencil >> showsAll;
    if (version != StateVersion || stream.status() != QDataStream::Ok)
        return;
    restoreState(window);
    panes_->restoreState(splitter);
    panes_->SubSplitters()[0]->restoreState(subSplitter);
    panes_->SubSplitters()[1]->restoreState(upperSplitter);
    document_->SetRecentFiles(files);
    Preview().RestoreState(preview);
    Editor().SetZoom(zoom);
    pencil_->Command().setChecked(hasPencil);
    menus_->Command(WindowCommand::AllCharacters)->setChecked(showsAll);
    Table().ShowAll(showsAll);
}

void MainWindow::KeepState()
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << StateVersion << saveState() << panes_->saveState()
           << panes_->SubSplitters()[0]->saveState() << panes_->SubSplitters()[1]->saveState()
           << document_->RecentFiles() << Preview().State() << qint32(Editor().Zoom())
           << pencil_->Command().isChecked()
           << menus_->Command(WindowCommand::AllCharacters)->isChecked();
    Settings::Instance().mainWindow.save({saveGeometry(), state});
}

void MainWindow::OnActionTriggered(quint32 id)
{
    if (!Progress().IsWorking()) // screen readers trigger commands without input
        commands_->Run(id);
}

void MainWindow::OpenRecentFile(const QString& path)
{
    if (!Progress().IsWorking())
        document_->OpenFile(path);
}

void MainWindow::ShowFont()
{
    Font* const font = session_.CurrentFont();
    auto* const content = qobject_cast<QStackedWidget*>(centralWidget());
    const bool isFirst = font != nullptr && content->currentWidget() != panes_;
    if (font == nullptr)
        startPage_->ShowRecentFiles(document_->RecentFiles());
    content->setCurrentIndex(font != nullptr ? 1 : 0);
    if (isFirst)
        Table().setFocus();
    shownFont_ = font;
    panes_->ShowFont(font);
    pencil_->ShowFont(font);
    UpdateTitle();
}

// Another font is shown from its beginning, the same one where it was.
void MainWindow::ShowChanges()
{
    if (edits_->IsAtWork())
        return;
    if (session_.CurrentFont() != shownFont_) {
        Editor().SetZoom(0);
        return ShowFont();
    }
    panes_->ShowChanges();
    UpdateTitle();
}

void MainWindow::UpdateTitle()
{
    const QString name =
        session_.Path().isEmpty() ? tr("No font") : QFileInfo(session_.Path()).fileName();
    setWindowTitle(u"%1[*] – %2"_s.arg(TitlePart(name), QString(Program::Name)));
    setWindowModified(session_.IsModified());
    commands_->EnablePossible();
}

// The options of the command line act on the window's font; what they leave open is asked for.
bool MainWindow::requestAction(Action& action)
{
    auto* const open = dynamic_cast<ActionOpenFont*>(&action);
    return open == nullptr || document_->CompleteArgs(open->Args());
}

bool MainWindow::handleRequest(ActionType kind)
{
    switch (kind) {
    case ActionType::PrintUsage:
        ShowCommandLineOptions(this);
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

bool MainWindow::actionPerformed(const std::shared_ptr<Action>& action, const QString&)
{
    if (action == nullptr)
        return false;
    status_->Tell(action->Log().Translated());
    if (action->Type() == ActionType::OpenFont)
        document_->AddRecentFile(session_.Path());
    ShowChanges();
    return true;
}

void MainWindow::ActionChanged(const std::shared_ptr<Action>& action)
{
    edits_->NoteChange(action.get());
    if (!pencil_->IsStroking())
        ShowChanges();
}

bool MainWindow::ProgressChanged(const QString& text, int value, int maximum)
{
    if (!Progress().IsWorking())
        OnProgbarInitCnt(text.toUtf8().constData(), 0, maximum);
    OnProgbarUpdateCnt(value);
    return !Progress().IsStopped();
}

void MainWindow::OnProgbarClose()
{
    Progress().EndWork();
    if (Progress().IsStopped())
        status_->Tell(tr("Stopped."));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!document_->AskToSave()) {
        event->ignore();
        return;
    }
    KeepState();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (document_->TakesDrop(LocalFileOf(*event->mimeData())))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->setAccepted(document_->Drop(LocalFileOf(*event->mimeData())));
}

} // namespace Glyphor
