// The commands of the main window that open and save files.

#include "ui/main_window.h"

#include "actions/action_merge_font.h"
#include "actions/action_read_pattern.h"
#include "actions/action_save_file.h"
#include "actions/font_files.h"
#include "actions/pattern_file.h"
#include "actions/session.h"
#include "app/settings.h"
#include "ui/char_table_view.h"
#include "ui/small_dialogs.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MaxRecentFiles = 10;

QString PatternFilter()
{
    return MainWindow::tr("Pattern files (*.txt)");
}

// The faces of a scalable font by name, in the order of their indices.
QStringList FaceNames(const QString& path)
{
    QStringList names;
    if (FileTypeOf(path) == FileType::TrueTypeCollection) {
        for (const FaceDescription& face : FontFileTTC(path, {}).FaceDescriptions())
            names.append(face.familyName + u' ' + face.styleName);
        return names;
    }
    const FreeTypeFace face(path, 0, FreeTypeLibrary());
    names.append(face.StyleName());
    int index = 0;
    for (const NamedInstance& instance : face.NamedInstances()) {
        ++index;
        names.append(instance.name.isEmpty() ? MainWindow::tr("Instance %1").arg(index)
                                             : instance.name);
    }
    return names;
}

QString LocalFileOf(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.isEmpty() ? QString() : urls.constFirst().toLocalFile();
}

} // namespace

// The options of the command line act on the window's font; what they leave open is asked for.
bool MainWindow::requestAction(Action& action)
{
    auto* const open = dynamic_cast<ActionOpenFont*>(&action);
    return open == nullptr || CompleteArgs(open->Args());
}

bool MainWindow::CompleteArgs(ActionOpenFontArgs& args)
{
    const auto type = FileTypeOf(args.path);
    if (!type || !IsScalable(*type) || args.size.value > 0)
        return true;
    CheckInputFile(args.path);
    GenerationDialog dialog(args, FaceNames(args.path), this);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    args = dialog.Args();
    return true;
}

bool MainWindow::OpenFile(const QString& path)
{
    if (!AskToSave())
        return false;
    bool isOpened = false;
    Guarded([&] {
        const auto action = std::make_shared<ActionOpenFont>(session_, ActionType::OpenFont);
        action->Args().path = path;
        isOpened = CompleteArgs(action->Args()) && action->Run();
    });
    if (isOpened)
        AddRecentFile(path);
    return isOpened;
}

void MainWindow::Open()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open font file"), QFileInfo(session_.Path()).path(), FontFileFilter(false));
    if (!path.isEmpty())
        OpenFile(path);
}

void MainWindow::Merge()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open font file"), QFileInfo(session_.Path()).path(), FontFileFilter(false));
    if (path.isEmpty())
        return;
    Guarded([&] {
        const auto action = std::make_shared<ActionMergeFont>(session_);
        action->Args().source.path = path;
        action->Args().source.format = session_.CurrentFont()->Metrics().format;
        action->Args().source.encoding = session_.CurrentFont()->Metrics().encoding;
        if (CompleteArgs(action->Args().source))
            action->Run();
    });
}

// Fonts are not saved over the scalable ones that they come from.
bool MainWindow::Save()
{
    const auto type = FileTypeOf(session_.Path());
    return type && IsWritten(*type) ? SaveTo(session_.Path(), ActionType::SaveFont) : SaveAs();
}

bool MainWindow::SaveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save font file"),
                                                      ProposedName(u".c"_s), FontFileFilter(true));
    return !path.isEmpty() && SaveTo(path, ActionType::SaveFontAs);
}

bool MainWindow::SaveTo(const QString& path, ActionType type)
{
    bool isSaved = false;
    Guarded([&] {
        const auto action = std::make_shared<ActionSaveFile>(session_, type);
        action->Args().path = path;
        isSaved = action->Run();
    });
    if (isSaved && type != ActionType::SaveKerning)
        AddRecentFile(path);
    return isSaved;
}

QString MainWindow::ProposedName(const QString& suffix) const
{
    const QFileInfo info(session_.Path());
    return info.path() + u'/' + info.completeBaseName() + suffix;
}

void MainWindow::SaveKerning()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save kerning file"), ProposedName(u"_Kerning.c"_s), KerningFileFilter());
    if (!path.isEmpty())
        SaveTo(path, ActionType::SaveKerning);
}

void MainWindow::OpenPattern()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Read pattern file"), QFileInfo(session_.Path()).path(), PatternFilter());
    if (!path.isEmpty())
        ReadPattern(path);
}

void MainWindow::SavePattern()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save pattern file"),
                                                      ProposedName(u".txt"_s), PatternFilter());
    if (path.isEmpty())
        return;
    Guarded([&] {
        CodeSet codes = session_.CurrentFont()->EnabledCodes();
        codes &= session_.CurrentFont()->ExistingCodes();
        PatternFile(path).Write(codes);
    });
}

bool MainWindow::ReadPattern(const QString& path)
{
    return Guarded([&] {
        const auto action = std::make_shared<ActionReadPattern>(session_);
        action->Args().path = path;
        action->Run();
    });
}

quint32 MainWindow::CommandOfFile(const QString& path)
{
    if (FileTypeOf(path))
        return quint32(ActionType::OpenFont);
    const bool isText = path.endsWith(u".txt"_s, Qt::CaseInsensitive);
    return quint32(isText ? ActionType::ReadPattern : ActionType::None);
}

int MainWindow::askFontFormat()
{
    QList<std::pair<QString, int>> choices;
    for (const FormatNameRow& row : FormatNameTable)
        choices.append({row.displayName, int(row.format)});
    return AskChoice(this, tr("Select font format"),
                     tr("Font format could not be read in file. Please select format and encoding "
                        "manually."),
                     choices);
}

int MainWindow::askMergeMode()
{
    const int answer = AskChoice(
        this, tr("Select merge mode"),
        tr("Duplicate characters have been found in both fonts.\nHow should duplicate characters "
           "be handled?"),
        {{tr("Replace duplicates with new characters."), int(MergeMode::Replace)},
         {tr("Do not replace, keep old characters."), int(MergeMode::Keep)}});
    return std::max(answer, 0);
}

void MainWindow::AddRecentFile(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    recentFiles_.removeAll(absolute);
    recentFiles_.prepend(absolute);
    recentFiles_ = recentFiles_.first(std::min(recentFiles_.size(), MaxRecentFiles));
}

void MainWindow::ShowRecentFiles()
{
    recentMenu_->clear();
    for (const QString& path : std::as_const(recentFiles_)) {
        QAction* const entry = recentMenu_->addAction(QFileInfo(path).fileName());
        entry->setStatusTip(path);
        connect(entry, &QAction::triggered, this, [this, path] { OpenFile(path); });
    }
    if (recentFiles_.isEmpty())
        recentMenu_->addAction(tr("No recent files"))->setEnabled(false);
}

// False where the user wants to stay.
bool MainWindow::AskToSave()
{
    if (!session_.IsModified())
        return true;
    const auto answer = QMessageBox::question(
        this, tr("Save file?"), tr("Save current file?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    return answer == QMessageBox::No || (answer == QMessageBox::Yes && Save());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!AskToSave()) {
        event->ignore();
        return;
    }
    SaveState();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const quint32 command = CommandOfFile(LocalFileOf(*event->mimeData()));
    if (command == quint32(ActionType::OpenFont) ||
        (command == quint32(ActionType::ReadPattern) && session_.CurrentFont() != nullptr))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = LocalFileOf(*event->mimeData());
    bool isTaken = false;
    if (CommandOfFile(path) == quint32(ActionType::OpenFont)) {
        isTaken = OpenFile(path);
    } else if (session_.CurrentFont() != nullptr) {
        const auto answer = QMessageBox::question(
            this, tr("Load pattern file?"),
            tr("Apply the pattern file %1 to this font?").arg(QFileInfo(path).fileName()),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        isTaken = answer == QMessageBox::Yes && ReadPattern(path);
    }
    event->setAccepted(isTaken);
}

} // namespace Glyphor
