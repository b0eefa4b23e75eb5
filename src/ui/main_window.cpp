#include "ui/main_window.h"

#include "actions/edit_actions.h"
#include "actions/edit_table.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/settings.h"
#include "app/version.h"
#include "render/font_database.h"
#include "ui/char_bitmap_view.h"
#include "ui/char_table_view.h"
#include "ui/dialog_parts.h"
#include "ui/font_indexer.h"
#include "ui/info_panel.h"
#include "ui/menu_bar.h"
#include "ui/progress_area.h"
#include "ui/text_preview.h"
#include "ui/undo_stack.h"

#include <QAction>
#include <QApplication>
#include <QDataStream>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QShortcut>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

// Outside of the namespace, as the macro needs it.
static void InitResources()
{
    Q_INIT_RESOURCE(resources);
}

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int ResizeDelay = 50;    // milliseconds
constexpr int MessageDelay = 6000; // milliseconds
constexpr quint32 StateVersion = 2;

QAction* AddTool(QToolBar& bar, QAction* command, const QString& icon)
{
    command->setIcon(QIcon(u":/icons/%1.svg"_s.arg(icon)));
    bar.addAction(command);
    return command;
}

} // namespace

MainWindow::MainWindow(Session& session, UndoStack& history) : session_(session), history_(history)
{
    InitResources();
    setAcceptDrops(true);
    indexer_ = new FontIndexer(this);
    BuildWidgets();
    menus_ = new MenuBar(this);
    connect(menus_, &MenuBar::CommandTriggered, this, &MainWindow::OnActionTriggered);
    setMenuBar(menus_);
    BuildToolBar();
    BuildStatusBar();
    ConnectViews();
    history_.AddUndoCommand(menus_->Command(WindowCommand::Undo));
    history_.AddRedoCommand(menus_->Command(WindowCommand::Redo));
    resizeTimer_.setSingleShot(true);
    resizeTimer_.setInterval(ResizeDelay);
    connect(&resizeTimer_, &QTimer::timeout, this, &MainWindow::OnTimerResize);
    RestoreState();
    ShowFont();
}

MainWindow::~MainWindow()
{
    // These outlive what the slots use.
    for (QObject* const sender : std::initializer_list<QObject*>{
             &history_, qApp, table_, editor_, splitter_, subSplitter_, upperSplitter_})
        disconnect(sender, nullptr, this, nullptr);
}

void MainWindow::BuildWidgets()
{
    table_ = new CharTableView;
    editor_ = new CharBitmapView;
    info_ = new InfoPanel;
    preview_ = new TextPreview;
    auto* const infoArea = new QScrollArea;
    infoArea->setWidget(info_);
    infoArea->setWidgetResizable(true);
    infoArea->setFrameShape(QFrame::NoFrame);
    infoArea->setMinimumWidth(180);
    infoArea->setFocusPolicy(Qt::NoFocus);

    upperSplitter_ = new QSplitter(Qt::Horizontal);
    upperSplitter_->addWidget(editor_);
    upperSplitter_->addWidget(infoArea);
    upperSplitter_->setStretchFactor(0, 1);
    upperSplitter_->setSizes({360, 260});
    subSplitter_ = new QSplitter(Qt::Vertical);
    subSplitter_->addWidget(upperSplitter_);
    subSplitter_->addWidget(preview_);
    subSplitter_->setStretchFactor(0, 1);
    subSplitter_->setSizes({520, 130});
    splitter_ = new QSplitter(Qt::Horizontal);
    splitter_->addWidget(table_);
    splitter_->addWidget(subSplitter_);
    splitter_->setSizes({620, 620});
    for (QSplitter* const splitter : {splitter_, subSplitter_, upperSplitter_}) {
        splitter->setStyleSheet(u"QSplitterHandle { background: #bbbbbb; }"_s);
        splitter->setChildrenCollapsible(false);
    }
    setCentralWidget(splitter_);
    setMinimumSize(640, 420);
}

void MainWindow::BuildToolBar()
{
    auto* const bar = addToolBar(tr("Tools"));
    bar->setObjectName(u"tools"_s);
    bar->setIconSize({20, 20});
    const auto add = [&](auto command, const QString& icon) {
        return AddTool(*bar, menus_->Command(command), icon);
    };
    add(ActionType::CreateFont, u"new"_s);
    add(ActionType::OpenFont, u"open"_s);
    openButton_ =
        qobject_cast<QToolButton*>(bar->widgetForAction(menus_->Command(ActionType::OpenFont)));
    recentMenu_ = new QMenu(this);
    openButton_->setMenu(recentMenu_);
    openButton_->setPopupMode(QToolButton::MenuButtonPopup);
    auto* const showRecent = new QShortcut(Qt::ALT | Qt::Key_Down, openButton_);
    showRecent->setContext(Qt::WidgetShortcut);
    connect(showRecent, &QShortcut::activated, openButton_, &QToolButton::showMenu);
    add(ActionType::SaveFont, u"save"_s);
    bar->addSeparator();
    add(WindowCommand::Undo, u"undo"_s);
    add(WindowCommand::Redo, u"redo"_s);
    bar->addSeparator();
    add(ActionType::Toggle, u"toggle"_s);
    add(WindowCommand::GoToCharacter, u"goto"_s);
    bar->addSeparator();
    pencil_ = new QAction(QIcon(u":/icons/pencil.svg"_s), tr("Pencil"), this);
    pencil_->setCheckable(true);
    pencil_->setStatusTip(tr("Paint pixels by clicking and dragging (Ctrl inverts them)"));
    bar->addAction(pencil_);
    pencilIndex_ = new QSpinBox;
    pencilIndex_->setToolTip(tr("Index that the pencil paints"));
    pencilIndex_->setAccessibleName(pencilIndex_->toolTip());
    bar->addWidget(pencilIndex_);
    for (QToolButton* const button : bar->findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);
}

void MainWindow::BuildStatusBar()
{
    status_ = PlainLabel(tr("Ready"));
    pixelStatus_ = PlainLabel();
    progress_ = new ProgressArea;
    statusBar()->addWidget(status_, 1);
    statusBar()->addPermanentWidget(pixelStatus_);
    statusBar()->addPermanentWidget(progress_);
}

void MainWindow::ConnectViews()
{
    connect(splitter_, &QSplitter::splitterMoved, this, &MainWindow::OnSplitterMoved);
    for (QSplitter* const splitter : {subSplitter_, upperSplitter_})
        connect(splitter, &QSplitter::splitterMoved, this, &MainWindow::OnSplitterSubMoved);
    connect(progress_, &ProgressArea::TextChanged, this, [this](const QString& text) {
        if (!text.isEmpty())
            statusBar()->clearMessage();
        status_->setText(text.isEmpty() ? tr("Ready") : text);
    });
    connect(progress_, &ProgressArea::BackgroundStopped, indexer_, &FontIndexer::Stop);
    connect(indexer_, &FontIndexer::Counted, this, [this](int count) {
        progress_->BeginBackground(Engine::tr("Indexing font files..."), count);
    });
    connect(indexer_, &FontIndexer::FileDone, this, &MainWindow::OnDatabaseFileDone);
    connect(indexer_, &FontIndexer::Ended, this, &MainWindow::OnDatabaseThreadFinished);
    connect(table_, &CharTableView::CurrentChanged, this, &MainWindow::OnCurrentChanged);
    connect(table_, &CharTableView::SelectionChanged, this, &MainWindow::UpdateCommands);
    connect(table_, &CharTableView::Activated, this, [this] {
        editor_->setFocus();
        if (editor_->CurrentPixel() == nullptr)
            editor_->SelectFirstPixel();
    });
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table_, &QWidget::customContextMenuRequested, this,
            [this](QPoint place) { ShowContextMenu(table_->viewport()->mapToGlobal(place)); });
    connect(editor_, &CharBitmapView::PixelSelected, this, &MainWindow::UpdateCommands);
    connect(editor_, &CharBitmapView::StatusChanged, pixelStatus_, &QLabel::setText);
    connect(editor_, &CharBitmapView::MenuRequested, this,
            [this](QPoint place) { menus_->Submenu(SubmenuId::PixelIndex)->exec(place); });
    connect(editor_, &CharBitmapView::PixelInverted, this, &MainWindow::OnPixelInverted);
    connect(editor_, &CharBitmapView::StrokeBegun, this, [this] { isStroking_ = true; });
    connect(editor_, &CharBitmapView::PixelPainted, this, &MainWindow::PaintPixel);
    connect(editor_, &CharBitmapView::StrokeEnded, this, &MainWindow::EndStroke);
    // Elsewhere their keys mean something else.
    for (const Edit& edit : EditTable()) {
        if (edit.target != EditTarget::Pixel)
            continue;
        QAction* const command = menus_->Command(edit.type);
        command->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        editor_->addAction(command);
    }
    connect(pencil_, &QAction::toggled, editor_, &CharBitmapView::SetPencil);
    connect(recentMenu_, &QMenu::aboutToShow, this, &MainWindow::ShowRecentFiles);
    connect(&history_, &QUndoStack::cleanChanged, this, &MainWindow::UpdateTitle);
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::UpdateCommands);
}

// Everything that is remembered of the window but its geometry stands in one record.
void MainWindow::RestoreState()
{
    ApplySettings();
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
    splitter_->restoreState(splitter);
    subSplitter_->restoreState(subSplitter);
    upperSplitter_->restoreState(upperSplitter);
    recentFiles_ = files;
    preview_->RestoreState(preview);
    editor_->SetZoom(zoom);
    pencil_->setChecked(hasPencil);
    menus_->Command(WindowCommand::AllCharacters)->setChecked(showsAll);
    table_->SetShowAll(showsAll);
}

void MainWindow::SaveState()
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << StateVersion << saveState() << splitter_->saveState() << subSplitter_->saveState()
           << upperSplitter_->saveState() << recentFiles_ << preview_->State()
           << qint32(editor_->Zoom()) << pencil_->isChecked()
           << menus_->Command(WindowCommand::AllCharacters)->isChecked();
    Settings::Instance().mainWindow.save({saveGeometry(), state});
}

void MainWindow::ApplySettings()
{
    const bool hexadecimal = Settings::Instance().numeralSystem.value() != 0;
    table_->SetHexadecimal(hexadecimal);
    info_->SetHexadecimal(hexadecimal);
}

void MainWindow::OnSplitterMoved(int, int)
{
    resizeTimer_.start();
}

void MainWindow::OnSplitterSubMoved(int, int)
{
    resizeTimer_.start();
}

void MainWindow::OnTimerResize()
{
    SaveState();
}

bool MainWindow::Guarded(const std::function<void()>& work)
{
    try {
        work();
        return true;
    } catch (const CriticalException& error) {
        critical(error.Title(), error.Text());
    } catch (const WorkStopped&) {
        // The user knows.
    } catch (const std::bad_alloc&) {
        critical(CriticalException::DefaultTitle(), tr("There is not enough memory."));
    }
    return false;
}

void MainWindow::OnCurrentChanged(int code)
{
    Font* const font = session_.CurrentFont();
    Character* const character =
        font != nullptr && code >= 0 ? font->FindChar(quint16(code)) : nullptr;
    editor_->SetCharacter(character);
    info_->Show(font, code);
    UpdateCommands();
}

void MainWindow::ShowMessage(const QString& text)
{
    statusBar()->showMessage(text, MessageDelay);
}

// By no action, so the history does not know of it.
void MainWindow::OnPixelInverted()
{
    session_.MarkChanged();
    RefreshViews();
}

// Another font is shown from its beginning, the same one where it was.
void MainWindow::RefreshViews()
{
    if (holdsViews_)
        return;
    Font* const font = session_.CurrentFont();
    if (font != shownFont_) {
        ShowFont();
        return;
    }
    table_->Refresh();
    OnCurrentChanged(table_->CurrentCode());
    preview_->Refresh();
    UpdateTitle();
}

// Shows what several actions have changed once, at their end.
void MainWindow::RunTogether(const std::function<void()>& work)
{
    {
        const QScopedValueRollback hold(holdsViews_, true);
        Guarded(work);
    }
    RefreshViews();
}

void MainWindow::ShowFont()
{
    Font* const font = session_.CurrentFont();
    shownFont_ = font;
    editor_->SetCharacter(nullptr);
    table_->SetFont(font);
    info_->Show(font, table_->CurrentCode());
    preview_->SetFont(font);
    const int maximum = font != nullptr ? (1 << font->Metrics().bitsPerPixel) - 1 : 1;
    pencilIndex_->setRange(0, maximum);
    pencilIndex_->setValue(maximum);
    UpdateTitle();
    UpdateCommands();
}

void MainWindow::UpdateTitle()
{
    const QString name =
        session_.Path().isEmpty() ? tr("No font") : QFileInfo(session_.Path()).fileName();
    setWindowTitle(u"%1[*] – %2"_s.arg(TitlePart(name), QString(Program::Name)));
    setWindowModified(session_.IsModified());
    UpdateCommands();
}

// What can be done now.
void MainWindow::UpdateCommands()
{
    const Font* const font = session_.CurrentFont();
    const bool hasFont = font != nullptr;
    CodeSet selected = table_->SelectedCodes();
    if (hasFont)
        selected &= font->ExistingCodes();
    const bool hasCharacter = hasFont && !selected.IsEmpty();
    const bool hasPixel = hasFont && editor_->SelectedPixel().x() >= 0;
    const auto enable = [this](auto command, bool state) {
        menus_->Command(command)->setEnabled(state);
    };
    for (const ActionType action :
         {ActionType::MergeFont, ActionType::SaveFontAs, ActionType::SavePattern,
          ActionType::ReadPattern, ActionType::Enable, ActionType::Disable, ActionType::DisableAll})
        enable(action, hasFont);
    // A font that was rendered has no file of its own yet.
    const auto type = FileTypeOf(session_.Path());
    const bool hasFile = type && IsWritten(*type);
    enable(ActionType::SaveFont, hasFont && (session_.IsModified() || !hasFile));
    enable(ActionType::SaveKerning, hasFont && font->HasKerning());
    enable(WindowCommand::AllCharacters, hasFont);
    enable(WindowCommand::GoToCharacter, hasFont);
    enable(ActionType::Toggle, hasCharacter);
    const bool isLegacy = hasFont && IsLegacyFormat(font->Metrics().format);
    const int maximum = hasFont ? (1 << font->Metrics().bitsPerPixel) - 1 : -1;
    for (const Edit& edit : EditTable()) {
        const bool hasTarget = edit.target == EditTarget::Character ? hasCharacter
                               : edit.target == EditTarget::Pixel   ? hasPixel
                                                                    : hasFont;
        enable(edit.type, hasTarget && !(isLegacy && edit.notForLegacy) && edit.index <= maximum);
    }
    pencil_->setEnabled(hasFont);
    pencilIndex_->setEnabled(hasFont);
}

bool MainWindow::actionPerformed(const std::shared_ptr<Action>& action, const QString&)
{
    if (action == nullptr)
        return false;
    ShowMessage(action->Log().Translated());
    if (action->Type() == ActionType::OpenFont)
        AddRecentFile(session_.Path());
    RefreshViews();
    return true;
}

// Undo and redo bring the view back to what they changed.
void MainWindow::actionChanged(const std::shared_ptr<Action>& action)
{
    if (isMovingInHistory_ && action != nullptr)
        movedCodes_ |= action->AffectedCodes();
    if (!isStroking_)
        RefreshViews();
}

bool MainWindow::progressChanged(const QString& text, int value, int maximum)
{
    if (!progress_->IsWorking())
        OnProgbarInitCnt(text.toUtf8().constData(), 0, maximum);
    OnProgbarUpdateCnt(value);
    return !progress_->IsStopped();
}

void MainWindow::progressFinished()
{
    OnProgbarClose();
}

void MainWindow::OnProgbarInitCnt(const char* text, int, int maximum)
{
    progress_->BeginWork(QString::fromUtf8(text), maximum);
}

void MainWindow::OnProgbarUpdateCnt(int value)
{
    progress_->SetWork(value);
}

void MainWindow::OnProgbarClose()
{
    progress_->EndWork();
    if (progress_->IsStopped())
        ShowMessage(tr("Stopped."));
}

} // namespace Glyphor
