// The commands of the main window that open and save files.

#include "ui/main_window.h"

#include "actions/action_merge_font.h"
#include "actions/action_read_pattern.h"
#include "actions/action_save_file.h"
#include "actions/font_files.h"
#include "actions/pattern_file.h"
#include "actions/session.h"
#include "app/progress.h"
#include "app/shown_text.h"
#include "render/font_file_scalable.h"
#include "ui/char_table_view.h"
#include "ui/dialog_parts.h"
#include "ui/font_generation_dialog.h"
#include "ui/font_size_box.h"
#include "ui/format_box.h"
#include "ui/merge_mode_dialog.h"

#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MaxRecentFiles = 10;

QString PatternFilter()
{
    return MainWindow::tr("Text files (*.txt)");
}

// The faces of a scalable font, all of them with a name.
QStringList ShownFaceNames(const QString& path)
{
    QStringList names = FaceNames(path);
    for (qsizetype index = 1; index < names.size(); ++index) {
        if (names[index].isEmpty())
            names[index] = MainWindow::tr("Instance %1").arg(index);
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
    const bool isComplete = !type || !IsScalable(*type) || args.size.value > 0;
    RenderAt(args.size, args);
    return isComplete || AskGeneration(args);
}

bool MainWindow::AskGeneration(ActionOpenFontArgs& args)
{
    CheckInputFile(args.path);
    const QStringList faces = ShownFaceNames(args.path);
    if (faces.isEmpty())
        return true; // opening it will tell what is wrong
    FontGenerationDialog dialog(args, faces, this);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    args = dialog.Args();
    return true;
}

bool MainWindow::OpenFile(const QString& path)
{
    bool isOpened = false;
    if (AskToSave())
        Guarded([&] {
            const auto action = std::make_shared<ActionOpenFont>(session_, ActionType::OpenFont);
            action->Args().path = path;
            isOpened = CompleteArgs(action->Args()) && action->Run();
        });
    return isOpened;
}

void MainWindow::Open()
{
    const QString path = AskOpenPath(tr("Open font file"), FontFileFilter(false));
    if (!path.isEmpty())
        OpenFile(path);
}

void MainWindow::Merge()
{
    const QString path = AskOpenPath(tr("Open font file"), FontFileFilter(false));
    if (path.isEmpty())
        return;
    Guarded([&] {
        const auto action = std::make_shared<ActionMergeFont>(session_);
        ActionOpenFontArgs& source = action->Args().source;
        source.path = path;
        if (const auto type = FileTypeOf(path); type && IsScalable(*type)) {
            source.format = session_.CurrentFont()->Metrics().format;
            source.encoding = session_.CurrentFont()->Metrics().encoding;
        }
        if (CompleteArgs(source))
            action->Run();
    });
}

// Files of all kinds are shown first, which the last filter is for.
QString MainWindow::AskOpenPath(const QString& title, const QString& filter)
{
    QString selected = filter.section(u";;"_s, -1);
    QString path = QFileDialog::getOpenFileName(this, title, Folder(), filter, &selected);
    if (!path.isEmpty())
        folder_ = QFileInfo(path).path();
    return path;
}

// A name without a suffix gets the first one of the filter that is chosen.
QString MainWindow::AskSavePath(const QString& title, const QString& proposed,
                                const QString& filter)
{
    QFileDialog dialog(this, title, Folder());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filter.split(u";;"_s));
    const auto takeSuffix = [&dialog](const QString& chosen) {
        static const QRegularExpression suffix(u"\\*\\.(\\w+)"_s);
        dialog.setDefaultSuffix(suffix.match(chosen).captured(1));
    };
    connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    const QString pattern = u"*."_s + QFileInfo(proposed).suffix();
    for (const QString& name : dialog.nameFilters()) {
        if (name.contains(pattern + u' ') || name.contains(pattern + u')')) {
            dialog.selectNameFilter(name);
            break;
        }
    }
    takeSuffix(dialog.selectedNameFilter());
    dialog.selectFile(proposed);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QString path = dialog.selectedFiles().constFirst();
    folder_ = QFileInfo(path).path();
    return path;
}

// Fonts are not saved over the scalable ones that they come from.
bool MainWindow::Save()
{
    const auto type = FileTypeOf(session_.Path());
    return type && IsWritten(*type) ? SaveTo(session_.Path(), ActionType::SaveFont) : SaveAs();
}

bool MainWindow::SaveAs()
{
    const auto type = FileTypeOf(session_.Path());
    const bool isKept = type && IsWritten(*type);
    const QString suffix = isKept ? u'.' + QFileInfo(session_.Path()).suffix() : u".c"_s;
    const QString path =
        AskSavePath(tr("Save font file"), ProposedName(suffix), FontFileFilter(true));
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

// Where files are looked for and saved: the last folder that the user chose, or that of the font,
// but not one for installed fonts.
QString MainWindow::Folder() const
{
    if (!folder_.isEmpty())
        return folder_;
    const QFileInfo font(session_.Path());
    const bool isOwn = !session_.Path().isEmpty() && QFileInfo(font.path()).isWritable();
    return isOwn ? font.path() : QDir::homePath();
}

QString MainWindow::ProposedName(const QString& suffix) const
{
    return QFileInfo(session_.Path()).completeBaseName() + suffix;
}

void MainWindow::SaveKerning()
{
    const QString path =
        AskSavePath(tr("Save kerning file"), ProposedName(u"_Kerning.c"_s), KerningFileFilter());
    if (!path.isEmpty())
        SaveTo(path, ActionType::SaveKerning);
}

void MainWindow::OpenPattern()
{
    const QString path = AskOpenPath(tr("Read pattern file"), PatternFilter());
    if (!path.isEmpty())
        ReadPattern(path);
}

void MainWindow::SavePattern()
{
    const QString path =
        AskSavePath(tr("Save pattern file"), ProposedName(u".txt"_s), PatternFilter());
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
    bool isRead = false;
    Guarded([&] {
        const auto action = std::make_shared<ActionReadPattern>(session_);
        action->Args().path = path;
        isRead = action->Run();
        if (!isRead)
            warning(tr("Read pattern file"), tr("The file %1 does not exist.").arg(Shown(path)));
    });
    return isRead;
}

quint32 MainWindow::CommandOfFile(const QString& path)
{
    if (FileTypeOf(path))
        return quint32(ActionType::OpenFont);
    const bool isText = path.endsWith(u".txt"_s, Qt::CaseInsensitive);
    return quint32(isText ? ActionType::ReadPattern : ActionType::None);
}

std::optional<FormatChoice> MainWindow::askFontFormat(EncodingType)
{
    FormatDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return FormatChoice{dialog.Format(), dialog.Encoding()};
}

std::optional<MergeMode> MainWindow::askMergeMode()
{
    MergeModeDialog dialog(this);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Mode()) : std::nullopt;
}

void MainWindow::AddRecentFile(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    recentFiles_.removeAll(absolute);
    recentFiles_.prepend(absolute);
    recentFiles_ = recentFiles_.first(std::min(recentFiles_.size(), MaxRecentFiles));
    SaveState();
}

void MainWindow::ShowRecentFiles()
{
    recentMenu_->clear();
    for (const QString& path : std::as_const(recentFiles_)) {
        QAction* const entry =
            recentMenu_->addAction(Shown(QFileInfo(path).fileName()).replace(u'&', u"&&"_s));
        entry->setStatusTip(Shown(path));
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
    const auto answer =
        ShowPlainBox(this, QMessageBox::Question, tr("Save file?"), tr("Save current file?"),
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
        const auto answer = ShowPlainBox(
            this, QMessageBox::Question, tr("Load pattern file?"),
            tr("Apply the pattern file %1 to this font?").arg(Shown(QFileInfo(path).fileName())),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        isTaken = answer == QMessageBox::Yes && ReadPattern(path);
    }
    event->setAccepted(isTaken);
}

} // namespace Glyphor
