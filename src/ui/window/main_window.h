#pragma once

#include "ui/dialogs/gui_interface.h"
#include "ui/window/menu_table.h"
#include "ui/window/panes.h"
#include "ui/window/progress_area.h"
#include "ui/window/status_line.h"

#include <QMainWindow>
#include <QTimer>

namespace Glyphor {

class ClipboardCommands;
class Commands;
class Document;
class DrawingTools;
class EditCommands;
class FontIndexer;
class HistoryView;
class KerningPanel;
class MenuBar;
class MetricCommands;
class PixelSelection;
class Recovery;
class Session;
class StartPage;
class UndoStack;

// The window: its menus with their commands, the views of the font, and what is remembered of them.
// It is the interface of the actions, and shows what they did.
class MainWindow final : public QMainWindow, public GuiInterface
{
    Q_OBJECT

public:
    // The session, whose history is the given one, must outlive the window.
    MainWindow(Session& session, UndoStack& history);
    ~MainWindow() override;

    // Of UserInterface.
    bool requestAction(Action& action) override;
    bool actionPerformed(const std::shared_ptr<Action>& action, const QString& logText) override;
    void PartlyDone(const QString& text) override { status_->Tell(text); }
    void ActionChanged(const std::shared_ptr<Action>& action) override;
    bool ProgressChanged(const QString& text, int value, int maximum) override;
    void ProgressFinished() override { OnProgbarClose(); }
    bool handleRequest(ActionType kind) override;

    // Asks what becomes of unsaved fonts of windows that were lost, where there are any.
    void OfferRecovery();

    [[nodiscard]] Document& CurrentDocument() const { return *document_; }
    [[nodiscard]] Recovery& CurrentRecovery() const { return *recovery_; }
    [[nodiscard]] MenuBar& Menus() const { return *menus_; }
    [[nodiscard]] CharacterTable& Table() const { return panes_->Table(); }
    [[nodiscard]] CharBitmapView& Editor() const { return panes_->Editor(); }
    [[nodiscard]] TextPreview& Preview() const { return panes_->Preview(); }
    [[nodiscard]] ProgressArea& Progress() const { return status_->Progress(); }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    Q_SLOT void OnActionTriggered(quint32 id);
    Q_SLOT void OnSplitterMoved(int, int) { resizeTimer_.start(); }
    Q_SLOT void OnSplitterSubMoved(int, int) { resizeTimer_.start(); }
    Q_SLOT void OnTimerResize()
    {
        if (isVisible()) // else its panes are not
            KeepState();
    }
    Q_SLOT void OnProgbarInitCnt(const char* text, int, int maximum)
    {
        Progress().BeginWork(QString::fromUtf8(text), maximum);
    }
    Q_SLOT void OnProgbarUpdateCnt(int value) { Progress().SetWork(value); }
    Q_SLOT void OnProgbarClose();
    Q_SLOT void OnDatabaseFileDone(int done) { Progress().SetBackground(done); }
    Q_SLOT void OnDatabaseThreadFinished() { Progress().EndBackground(); }

    void AddPanes();
    void AddPane(const QString& name, const QString& title, QWidget& content,
                 WindowCommand command);
    Q_SLOT void CheckFile();
    Q_SLOT void OnRecoveryOffered();
    [[nodiscard]] bool IsAtRest() const;
    void ConnectCommands();
    void ConnectViews();
    void ConnectIndexer();
    void RecallState();
    void KeepState();

    void ShowFont();
    void ShowChanges();
    void ShowKerning();
    void UpdateTitle();
    void OpenRecentFile(const QString& path);

    Session& session_;
    UndoStack& history_;
    FontIndexer* indexer_;
    Document* document_;
    MenuBar* menus_;
    Panes* panes_;
    StartPage* startPage_; // instead of the panes where there is no font
    EditCommands* edits_;
    PixelSelection* selection_;
    ClipboardCommands* clipboard_;
    DrawingTools* tools_;
    MetricCommands* metrics_;
    Commands* commands_;
    StatusLine* status_;
    HistoryView* historyView_;
    KerningPanel* kerning_;
    Recovery* recovery_;
    QTimer resizeTimer_;
    const void* shownFont_ = nullptr;
};

} // namespace Glyphor
