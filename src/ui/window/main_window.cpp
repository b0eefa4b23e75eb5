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
#include "ui/document/recovery.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/drawing_tools.h"
#include "ui/editor/pixel_selection.h"
#include "ui/preview/text_preview.h"
#include "ui/support/dialog_parts.h"
#include "ui/support/undo_stack.h"
#include "ui/table/character_table.h"
#include "ui/window/clipboard_commands.h"
#include "ui/window/commands.h"
#include "ui/window/edit_commands.h"
#include "ui/window/help.h"
#include "ui/window/history_view.h"
#include "ui/window/info_panel.h"
#include "ui/window/kerning_commands.h"
#include "ui/window/kerning_panel.h"
#include "ui/window/menu_bar.h"
#include "ui/window/metric_commands.h"
#include "ui/window/start_page.h"
#include "ui/window/tool_bar.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDataStream>
#include <QDockWidget>
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

// Screen readers set fields without input, so they would do so in the middle of long work too.
template <typename Object, typename... Arguments>
auto UnlessAtWork(const ProgressArea& progress, Object& object, void (Object::*slot)(Arguments...))
{
    return [&progress, &object, slot](Arguments... arguments) {
        if (!progress.IsWorking())
            (object.*slot)(arguments...);
    };
}

// Of a stored state; nothing where it is not one of ours.
std::optional<QStringList> RecentFilesIn(const QByteArray& state)
{
    QDataStream stream(state);
    quint32 version = 0;
    QByteArray part;
    QStringList files;
    stream >> version >> part >> part >> part >> part >> files;
    const bool isOurs = version == StateVersion && stream.status() == QDataStream::Ok;
    return isOurs ? std::optional(files) : std::nullopt;
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
      selection_(new PixelSelection(session, panes_->Editor())), // gets what tools leave
      clipboard_(
          new ClipboardCommands(session, panes_->Table(), panes_->Editor(), *selection_, *edits_)),
      tools_(new DrawingTools(session, panes_->Editor())),
      metrics_(new MetricCommands(session, history, *edits_)),
      commands_(new Commands({session, *indexer_, *document_, *menus_, *panes_, *edits_, *tools_,
                              *selection_, *clipboard_},
                             *this)),
      status_(new StatusLine),
      historyView_(new HistoryView(history)),
      kerning_(new KerningPanel),
      recovery_(new Recovery(
          session, *document_, [this] { return !IsAtRest(); }, *this))
{
    InitResources();
    QApplication::setWindowIcon(QIcon(u":/icons/glyphor.svg"_s)); // of boxes as well
    setAcceptDrops(true);
    setMenuBar(menus_);
    addToolBar(new ToolBar(*menus_, *document_, *tools_));
    auto* const content = new QStackedWidget;
    content->addWidget(startPage_);
    content->addWidget(panes_);
    setCentralWidget(content);
    setStatusBar(status_);
    setMinimumSize(640, 420);
    AddPanes();
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
    for (QObject* const sender : std::initializer_list<QObject*>{&history_, panes_, selection_})
        disconnect(sender, nullptr, this, nullptr);
}

void MainWindow::AddPanes()
{
    AddPane(u"history"_s, tr("History"), *historyView_, WindowCommand::History);
    connect(historyView_, &HistoryView::StateRequested, this, [this](int index) {
        if (Progress().IsWorking())
            return;
        tools_->EndDrawing();
        edits_->MoveTo(index);
    });
    AddPane(u"kerning"_s, tr("Kerning"), *kerning_, WindowCommand::KerningPairs);
    auto* const commands = new KerningCommands(session_, this);
    connect(kerning_, &KerningPanel::PairSet, commands,
            UnlessAtWork(Progress(), *commands, &KerningCommands::SetPair));
    connect(kerning_, &KerningPanel::PairsRemoved, commands,
            UnlessAtWork(Progress(), *commands, &KerningCommands::RemovePairs));
    connect(&Table(), &CharacterTable::CurrentCodeChanged, this, &MainWindow::ShowKerning);
}

// A dock of its own, which a command of the menu shows and hides.
void MainWindow::AddPane(const QString& name, const QString& title, QWidget& content,
                         WindowCommand command)
{
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name); // of its state
    dock->setWidget(&content);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->hide();
    QAction* const shows = menus_->Command(command);
    connect(dock->toggleViewAction(), &QAction::toggled, shows, &QAction::setChecked);
    connect(shows, &QAction::toggled, &resizeTimer_, qOverload<>(&QTimer::start));
    connect(shows, &QAction::triggered, dock, [dock](bool isOn) {
        dock->setVisible(isOn);
        dock->raise();
    });
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
    connect(document_, &Document::Noticed, this, [this](const QString& text) {
        if (!text.isEmpty())
            status_->Tell(text);
        UpdateTitle();
    });
    connect(&history_, &QUndoStack::indexChanged, recovery_, &Recovery::CountStep);
    connect(commands_, &Commands::RecoveryRequested, recovery_, [this] { recovery_->Offer(true); });
    connect(recovery_, &Recovery::Failed, status_, &StatusLine::Tell);
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
    connect(&editor, &CharBitmapView::MenuRequested, commands_, &Commands::ShowPixelMenu);
    connect(selection_, &PixelSelection::Changed, commands_, &Commands::EnablePossible);
    connect(selection_, &PixelSelection::Refused, status_, &StatusLine::Tell);
    connect(clipboard_, &ClipboardCommands::Done, status_, &StatusLine::Tell);
    connect(&editor, &CharBitmapView::InversionRequested, edits_, &EditCommands::InvertPixel);
    const InfoPanel& info = panes_->Info();
    connect(&info, &InfoPanel::CharacterMetricSet, metrics_,
            UnlessAtWork(Progress(), *metrics_, &MetricCommands::SetOfCharacters));
    connect(&info, &InfoPanel::FontMetricSet, metrics_,
            UnlessAtWork(Progress(), *metrics_, &MetricCommands::SetOfFont));
    connect(&info, &InfoPanel::FontNameSet, metrics_,
            UnlessAtWork(Progress(), *metrics_, &MetricCommands::SetName));
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
    qint32 unused = 0; // a font begins fitted
    quint8 tool = 0;
    bool showsAll = true;
    stream >> version >> window >> splitter >> subSplitter >> upperSplitter >> files >> preview >>
        unused >> tool >> showsAll;
    if (version != StateVersion || stream.status() != QDataStream::Ok)
        return;
    restoreState(window);
    panes_->restoreState(splitter);
    panes_->SubSplitters()[0]->restoreState(subSplitter);
    panes_->SubSplitters()[1]->restoreState(upperSplitter);
    document_->MergeRecentFiles(files);
    Preview().RestoreState(preview);
    if (tool < ToolTable().size())
        commands_->ChooseTool(EditorTool(tool));
    menus_->Command(WindowCommand::AllCharacters)->setChecked(showsAll);
    Table().ShowAll(showsAll);
    bool showsNeighbours = false; // older records end before these
    bool showsOutline = false;
    stream >> showsNeighbours >> showsOutline;
    menus_->Command(WindowCommand::ShowOutline)->setChecked(showsOutline);
    panes_->ShowOutline(showsOutline);
    menus_->Command(WindowCommand::ShowNeighbours)->setChecked(showsNeighbours);
    panes_->ShowNeighbours(showsNeighbours);
}

void MainWindow::KeepState()
{
    Settings& settings = Settings::Instance();
    if (const auto stored = RecentFilesIn(settings.mainWindow.LoadLatest().state))
        document_->MergeRecentFiles(*stored);
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << StateVersion << saveState() << panes_->saveState()
           << panes_->SubSplitters()[0]->saveState() << panes_->SubSplitters()[1]->saveState()
           << document_->RecentFiles() << Preview().State() << qint32(0) << quint8(tools_->Tool())
           << menus_->Command(WindowCommand::AllCharacters)->isChecked()
           << menus_->Command(WindowCommand::ShowNeighbours)->isChecked()
           << menus_->Command(WindowCommand::ShowOutline)->isChecked();
    settings.mainWindow.save({saveGeometry(), state});
    settings.Flush(); // for windows of other processes
}

void MainWindow::OnActionTriggered(quint32 id)
{
    if (!Progress().IsWorking()) // screen readers trigger commands without input
        commands_->Run(id);
}

void MainWindow::OpenRecentFile(const QString& path)
{
    panes_->Info().TakeTyped();
    if (!Progress().IsWorking())
        document_->OpenRecentFile(path);
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
    tools_->ShowFont(font);
    ShowKerning();
    recovery_->BeginFont();
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
    ShowKerning();
    UpdateTitle();
}

void MainWindow::ShowKerning()
{
    kerning_->ShowCode(session_.CurrentFont(), Table().CurrentCode());
}

void MainWindow::UpdateTitle()
{
    const QString name =
        session_.Path().isEmpty() ? tr("No font") : QFileInfo(session_.Path()).fileName();
    setWindowTitle(u"%1[*] – %2"_s.arg(TitlePart(name), QString(Program::Name)));
    setWindowModified(session_.IsModified());
    historyView_->SetHasFile(document_->HasOwnFile());
    recovery_->Update();
    commands_->EnablePossible();
}

// The options of the command line act on the window's font; what they leave open is asked for.
bool MainWindow::requestAction(Action& action)
{
    auto* const open = dynamic_cast<ActionOpenFont*>(&action);
    return open == nullptr || document_->CompleteArgs(open->Args());
}

// Once the options have run; they may have closed the window.
void MainWindow::OfferRecovery()
{
    QMetaObject::invokeMethod(this, "OnRecoveryOffered", Qt::QueuedConnection);
}

void MainWindow::OnRecoveryOffered()
{
    if (isVisible())
        recovery_->Offer(false);
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
    if (const auto* const open = dynamic_cast<const ActionOpenFont*>(action.get()))
        panes_->SetOrigin(open->Args());
    ShowChanges();
    return true;
}

void MainWindow::ActionChanged(const std::shared_ptr<Action>& action)
{
    edits_->NoteChange(action.get());
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

// Not in the middle of what made the window active again.
void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        QMetaObject::invokeMethod(this, "CheckFile", Qt::QueuedConnection);
}

void MainWindow::CheckFile()
{
    const bool isAlone = QApplication::activeModalWidget() == nullptr &&
                         QApplication::activePopupWidget() == nullptr;
    if (isAlone && isVisible() && IsAtRest())
        document_->CheckFile();
}

bool MainWindow::IsAtRest() const
{
    return !Progress().IsWorking() && !tools_->IsDrawing() && !edits_->IsAtWork();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    panes_->Info().TakeTyped();
    if (!document_->AskToSave()) {
        event->ignore();
        return;
    }
    recovery_->End();
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
    panes_->Info().TakeTyped();
    event->setAccepted(document_->Drop(LocalFileOf(*event->mimeData())));
}

} // namespace Glyphor
