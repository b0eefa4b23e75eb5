#pragma once

#include "actions/action_open_font.h"
#include "ui/document/recent_files.h"

#include <QObject>
#include <QStringList>

class QMenu;
class QWidget;

namespace Glyphor {

class FileWatch;
class FontIndexer;
class Session;

// The way from files to the font of the window and back: opening, merging and saving, patterns and
// kerning, with all that has to be asked on the way.
class Document final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the window, as its dialogs do. The others must outlive it.
    Document(Session& session, FontIndexer& indexer, QWidget& window);

    // These ask for a file, or for an installed font. Failures are told.
    void Create();
    void Open();
    void Merge();
    void OpenPattern();
    void SavePattern();
    bool SaveKerning();
    void ExportProof();

    // Opens a font, asking for what its kind needs. False where that failed or was given up.
    bool OpenFile(const QString& path);
    bool ReadPattern(const QString& path);

    // Looks whether the file of the font was changed by somebody else.
    void CheckFile();

    // To its own file where it has one that fonts are written to, else to one that is asked for.
    bool Save();
    bool SaveAs();

    // False where there is a font whose file takes no changes, or none.
    [[nodiscard]] bool HasOwnFile() const;

    // Asks about changes that are not saved. False where the user wants to stay.
    bool AskToSave();

    // Asks for what the file's kind needs and the arguments leave open; false where that was given
    // up.
    [[nodiscard]] bool CompleteArgs(ActionOpenFontArgs& args);

    // What a file is for that is dropped: a font to open or a pattern to read, or nothing.
    [[nodiscard]] static ActionType PurposeOf(const QString& path);

    [[nodiscard]] bool TakesDrop(const QString& path) const;
    bool Drop(const QString& path);

    [[nodiscard]] const QStringList& RecentFiles() const { return recentFiles_.List(); }
    void MergeRecentFiles(const QStringList& stored) { recentFiles_.Merge(stored); }
    void AddRecentFile(const QString& path);
    void FillRecentMenu(QMenu& menu);

    // One that is gone can be taken from the list.
    bool OpenRecentFile(const QString& path);

Q_SIGNALS:
    void OpeningRequested(const QString& path); // of a recent file
    void RecentFilesChanged();                  // or are to be shown
    void Noticed(const QString& text);          // of the file on the disk
    void Done(const QString& text);             // by no action
    void SampleChosen(const QString& text);     // that the characters of a generated font are for
    void DirectoriesRequested(QWidget* parent); // a change of those that are indexed

private:
    [[nodiscard]] bool AskFont(ActionOpenFontArgs& args);
    [[nodiscard]] bool AskGeneration(ActionOpenFontArgs& args);
    bool AskTo(const QString& title, const QString& text, const std::function<bool()>& save);
    void Reload();
    bool AskAndSave(const QString& title, const QString& proposed, const QString& filter,
                    ActionType type);
    bool SaveTo(const QString& path, ActionType type, const std::optional<QString>& name = {});
    void TellMissing(const CodeSet& pattern) const;
    [[nodiscard]] QString Folder() const;
    [[nodiscard]] QString ProposedName(const QString& suffix) const;
    [[nodiscard]] QString AskOpenPath(const QString& title, const QString& filter);

    // With a name, its field is in the dialog too, which changes it.
    [[nodiscard]] QString AskSavePath(const QString& title, const QString& proposed,
                                      const QString& filter, QString* name = nullptr);

    Session& session_;
    FontIndexer& indexer_;
    QWidget& window_;
    FileWatch* watch_;
    Glyphor::RecentFiles recentFiles_;
    QString folder_; // that the user chose last
};

} // namespace Glyphor
