#pragma once

#include "actions/action_open_font.h"
#include "ui/gui_interface.h"
#include "ui/menu_table.h"

#include <QMainWindow>
#include <QStringList>
#include <QTimer>

#include <functional>

class QLabel;
class QMenu;
class QSpinBox;
class QSplitter;
class QToolButton;

namespace Glyphor {

class CharBitmapView;
class CharPixelItem;
class CharTableView;
struct Edit;
class FontIndexer;
class InfoPanel;
class MenuBar;
class ProgressArea;
class Session;
class TextPreview;
class UndoStack;

// The window: a table of all characters, the pixel editor, what there is to know about both, and a
// sample text. Every command is an action on the session's font or one of the window's own.
class MainWindow final : public QMainWindow, public GuiInterface
{
    Q_OBJECT

public:
    // The session, whose history is the given one, must outlive the window.
    MainWindow(Session& session, UndoStack& history);
    ~MainWindow() override;

    // Runs the command with this number, as its menu entry does.
    void RunCommand(quint32 id);

    // Opens a font, asking for what its kind needs. False where that failed or was given up.
    bool OpenFile(const QString& path);
    bool ReadPattern(const QString& path);

    // The manual that came with the program, or the maker's page where there is none.
    [[nodiscard]] static QUrl ManualUrl();

    // What a dropped file is for: a font to open or a pattern to read.
    [[nodiscard]] static quint32 CommandOfFile(const QString& path);

    // Of UserInterface.
    bool requestAction(Action& action) override;
    bool actionPerformed(const std::shared_ptr<Action>& action, const QString& logText) override;
    void actionChanged(const std::shared_ptr<Action>& action) override;
    bool progressChanged(const QString& text, int value, int maximum) override;
    void progressFinished() override;
    std::optional<FormatChoice> askFontFormat(EncodingType assumed) override;
    std::optional<MergeMode> askMergeMode() override;
    bool handleRequest(ActionType kind) override;

    [[nodiscard]] MenuBar& Menus() const { return *menus_; }
    [[nodiscard]] CharTableView& Table() const { return *table_; }
    [[nodiscard]] CharBitmapView& Editor() const { return *editor_; }
    [[nodiscard]] InfoPanel& Info() const { return *info_; }
    [[nodiscard]] TextPreview& Preview() const { return *preview_; }
    [[nodiscard]] ProgressArea& Progress() const { return *progress_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    Q_SLOT void OnActionTriggered(quint32 id);
    Q_SLOT void OnSplitterMoved(int position, int index);
    Q_SLOT void OnSplitterSubMoved(int position, int index);
    Q_SLOT void OnTimerResize();
    Q_SLOT void OnProgbarInitCnt(const char* text, int minimum, int maximum);
    Q_SLOT void OnProgbarUpdateCnt(int value);
    Q_SLOT void OnProgbarClose();
    Q_SLOT void OnDatabaseFileDone(int done);
    Q_SLOT void OnDatabaseThreadFinished();
    Q_SLOT void OnCurrentChanged(int code);
    Q_SLOT void OnPixelInverted();

    void BuildWidgets();
    void BuildToolBar();
    void BuildStatusBar();
    void ConnectViews();
    void RestoreState();
    void SaveState();
    void ApplySettings();

    // Runs work that may fail, and shows its failure. False where it failed.
    bool Guarded(const std::function<void()>& work);

    void RunAction(const std::shared_ptr<Action>& action);
    void RunWindowCommand(quint32 id);
    void RunEdit(const Edit& edit);
    void RunSelectionEdit(const Edit& edit);
    void RunStateChange(ActionType type);
    void DeleteSelection();
    void RunPixelCommand(ActionType type);
    void PaintPixel(int x, int y, bool inverts);
    void EndStroke();

    void New();
    [[nodiscard]] bool AskFont(ActionOpenFontArgs& args);
    void Open();
    void Merge();
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& path, ActionType type);
    void SaveKerning();
    void OpenPattern();
    void SavePattern();
    bool AskToSave();
    [[nodiscard]] bool CompleteArgs(ActionOpenFontArgs& args);
    [[nodiscard]] bool AskGeneration(ActionOpenFontArgs& args);
    void AddRecentFile(const QString& path);
    void ShowRecentFiles();
    [[nodiscard]] QString Folder() const;
    [[nodiscard]] QString ProposedName(const QString& suffix) const;
    [[nodiscard]] QString AskOpenPath(const QString& title, const QString& filter);
    [[nodiscard]] QString AskSavePath(const QString& title, const QString& proposed,
                                      const QString& filter);

    void ChangeRange(ActionType type);
    void GoToCharacter();
    void ShowPreferences();
    void EditPreferences(int page, QWidget* parent);
    void ShowAbout();
    void ShowCommandLineOptions();
    void ShowManual();
    void ShowContextMenu(QPoint globalPosition);

    void ShowMessage(const QString& text);
    void RefreshViews();
    void RunTogether(const std::function<void()>& work);
    using MakeAction = std::function<std::shared_ptr<Action>(const CodeRange&)>;
    void RunForEach(const CodeSet& codes, const QString& text, const MakeAction& make);
    void RunMacro(const QString& text, const std::function<void()>& work);
    void MoveInHistory(bool isUndo);
    void ShowFont();
    void UpdateCommands();
    void UpdateTitle();

    Session& session_;
    UndoStack& history_;
    MenuBar* menus_ = nullptr;
    CharTableView* table_ = nullptr;
    CharBitmapView* editor_ = nullptr;
    InfoPanel* info_ = nullptr;
    TextPreview* preview_ = nullptr;
    QSplitter* splitter_ = nullptr;      // the table, and all else
    QSplitter* subSplitter_ = nullptr;   // editor, information and sample
    QSplitter* upperSplitter_ = nullptr; // editor and information
    ProgressArea* progress_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* pixelStatus_ = nullptr;
    QToolButton* openButton_ = nullptr;
    QMenu* recentMenu_ = nullptr;
    QAction* pencil_ = nullptr;
    QSpinBox* pencilIndex_ = nullptr;
    QTimer resizeTimer_;
    QStringList recentFiles_;
    QString folder_;                 // that the user chose last
    bool holdsViews_ = false;        // back while several actions run
    bool isMovingInHistory_ = false; // by undo or redo
    CodeSet movedCodes_;             // that undo or redo changed
    bool isStroking_ = false;
    bool strokeHasSteps_ = false;
    FontIndexer* indexer_ = nullptr;
    const void* shownFont_ = nullptr;
};

} // namespace Glyphor
