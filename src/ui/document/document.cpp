#include "ui/document/document.h"

#include "actions/action_merge_font.h"
#include "actions/action_read_pattern.h"
#include "actions/action_save_file.h"
#include "actions/demand.h"
#include "actions/font_files.h"
#include "actions/pattern_file.h"
#include "actions/session.h"
#include "app/file_name.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "files/c_file_text.h"
#include "proof/proof_file.h"
#include "render/font_file_scalable.h"
#include "ui/dialogs/font_dialog.h"
#include "ui/dialogs/font_generation_dialog.h"
#include "ui/dialogs/font_size_box.h"
#include "ui/document/file_watch.h"
#include "ui/document/font_indexer.h"
#include "ui/support/dialog_parts.h"
#include "ui/support/guarded.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QUrl>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QString PatternFilter()
{
    return Document::tr("Text files (*.txt)");
}

// The faces of a scalable font, all of them with a name.
QStringList ShownFaceNames(const QString& path)
{
    QStringList names = FaceNames(path);
    for (qsizetype index = 1; index < names.size(); ++index) {
        if (names[index].isEmpty())
            names[index] = Document::tr("Instance %1").arg(index);
    }
    return names;
}

// What C files call the font. Dialogs of the desktop have no room for more fields.
QLineEdit* AddNameField(QFileDialog& dialog, const QString& name)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto* const grid = qobject_cast<QGridLayout*>(dialog.layout());
    if (grid == nullptr)
        return nullptr;
    auto* const field = new QLineEdit(name);
    field->setObjectName(u"name"_s);
    static const QRegularExpression letters(u"[A-Za-z0-9_]*"_s);
    field->setValidator(new QRegularExpressionValidator(letters, field));
    field->setToolTip(Document::tr("C files call the font GUI_Font and then this."));
    const int row = grid->rowCount();
    grid->addWidget(LabelFor(*field, Document::tr("&Name in C files:")), row, 0);
    grid->addWidget(field, row, 1);
    return field;
}

} // namespace

Document::Document(Session& session, FontIndexer& indexer, QWidget& window)
    : QObject(&window),
      session_(session),
      indexer_(indexer),
      window_(window),
      watch_(new FileWatch(session, window))
{
    connect(watch_, &FileWatch::ReloadWanted, this, &Document::Reload);
    connect(watch_, &FileWatch::Noticed, this, &Document::Noticed);
}

void Document::Create()
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
bool Document::AskFont(ActionOpenFontArgs& args)
{
    if (!indexer_.HasBegun())
        indexer_.Start();
    FontDialog dialog(&window_);
    dialog.SetIndexing(indexer_.IsIndexing());
    connect(&indexer_, &FontIndexer::Indexed, &dialog, [&dialog] {
        dialog.ShowDatabase();
        dialog.SetIndexing(false);
    });
    connect(&dialog, &FontDialog::IndexRequested, this, [this, &dialog] {
        indexer_.Start();
        dialog.SetIndexing(true);
    });
    connect(&dialog, &FontDialog::StopRequested, &indexer_, &FontIndexer::Stop);
    connect(&dialog, &FontDialog::DirectoriesRequested, this, [this, &dialog] {
        Q_EMIT DirectoriesRequested(&dialog);
        dialog.SetIndexing(indexer_.IsIndexing());
    });
    if (dialog.exec() != QDialog::Accepted)
        return false;
    args.path = dialog.Path();
    args.render.faceIndex = dialog.FaceIndex();
    args.size = dialog.ChosenSize();
    return true;
}

bool Document::CompleteArgs(ActionOpenFontArgs& args)
{
    const bool isComplete = !IsScalable(FileTypeOf(args.path)) || args.size.IsGiven();
    RenderAt(args.size, args);
    return isComplete || AskGeneration(args);
}

bool Document::AskGeneration(ActionOpenFontArgs& args)
{
    CheckInputFile(args.path);
    const QStringList faces = ShownFaceNames(args.path);
    if (faces.isEmpty())
        return true; // opening it will tell what is wrong
    FontGenerationDialog dialog(args, faces, &window_);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    args = dialog.Args();
    if (!dialog.ChosenText().isEmpty())
        Q_EMIT SampleChosen(dialog.ChosenText());
    return true;
}

bool Document::OpenFile(const QString& path)
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

void Document::CheckFile()
{
    watch_->Check();
}

// What the user told of the file when it was opened still holds.
void Document::Reload()
{
    Guarded([&] {
        const auto action = std::make_shared<ActionOpenFont>(session_, ActionType::OpenFont);
        const FontMetrics& metrics = session_.CurrentFont()->Metrics();
        action->Args().path = session_.Path();
        action->Args().encoding = metrics.encoding;
        if (!MakeInputFile(session_.Path(), {})->TellsFormat())
            action->Args().format = metrics.format;
        action->Run();
    });
}

void Document::Open()
{
    const QString path = AskOpenPath(tr("Open font file"), FontFileFilter(false));
    if (!path.isEmpty())
        OpenFile(path);
}

void Document::Merge()
{
    const QString path = AskOpenPath(tr("Open font file"), FontFileFilter(false));
    if (path.isEmpty())
        return;
    Guarded([&] {
        const auto action = std::make_shared<ActionMergeFont>(session_);
        ActionOpenFontArgs& source = action->Args().source;
        source.path = path;
        if (IsScalable(FileTypeOf(path))) {
            source.format = session_.CurrentFont()->Metrics().format;
            source.encoding = session_.CurrentFont()->Metrics().encoding;
        }
        if (CompleteArgs(source))
            action->Run();
    });
}

// Files of all kinds are shown first, which the last filter is for.
QString Document::AskOpenPath(const QString& title, const QString& filter)
{
    QString selected = filter.section(u";;"_s, -1);
    QString path = ChosenPath(QFileDialog::getOpenFileUrl(
        &window_, title, QUrl::fromLocalFile(Folder()), filter, &selected, {}, {u"file"_s}));
    if (!path.isEmpty())
        folder_ = QFileInfo(path).path();
    return path;
}

// A name without a suffix gets the first one of the filter that is chosen.
QString Document::AskSavePath(const QString& title, const QString& proposed, const QString& filter,
                              QString* name)
{
    QFileDialog dialog(&window_, title, Folder());
    QLineEdit* const nameField = name != nullptr ? AddNameField(dialog, *name) : nullptr;
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filter.split(u";;"_s));
    const auto takeSuffix = [&dialog](const QString& chosen) {
        static const QRegularExpression suffix(u"\\*\\.(\\w+)"_s);
        dialog.setDefaultSuffix(suffix.match(chosen).captured(1));
    };
    connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    const QString pattern = u"*."_s + QFileInfo(proposed).suffix();
    for (const QString& offered : dialog.nameFilters()) {
        if (offered.contains(pattern + u' ') || offered.contains(pattern + u')')) {
            dialog.selectNameFilter(offered);
            break;
        }
    }
    takeSuffix(dialog.selectedNameFilter());
    dialog.selectFile(proposed);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    if (nameField != nullptr && !nameField->text().isEmpty())
        *name = nameField->text();
    QString path = ChosenPath(dialog.selectedUrls().constFirst());
    folder_ = QFileInfo(path).path();
    return path;
}

// Fonts are not saved over the scalable ones that they come from.
bool Document::HasOwnFile() const
{
    return IsWritten(FileTypeOf(session_.Path()));
}

bool Document::Save()
{
    const auto saving = HasOwnFile() ? watch_->AskWhereToSave() : FileWatch::Saving::Elsewhere;
    switch (saving) {
    case FileWatch::Saving::Here:
        return SaveTo(session_.Path(), ActionType::SaveFont);
    case FileWatch::Saving::Elsewhere:
        return SaveAs();
    default:
        return false;
    }
}

bool Document::SaveAs()
{
    const QString suffix = HasOwnFile() ? u'.' + QFileInfo(session_.Path()).suffix() : u".c"_s;
    return AskAndSave(tr("Save font file"), ProposedName(suffix), FontFileFilter(true),
                      ActionType::SaveFontAs);
}

bool Document::AskAndSave(const QString& title, const QString& proposed, const QString& filter,
                          ActionType type)
{
    const QString before = QString::fromLatin1(CName(session_.CurrentFont()->Name()));
    QString name = before;
    const QString path = AskSavePath(title, proposed, filter, &name);
    return !path.isEmpty() &&
           SaveTo(path, type, name != before ? std::optional(name) : std::nullopt);
}

bool Document::SaveTo(const QString& path, ActionType type, const std::optional<QString>& name)
{
    bool isSaved = false;
    Guarded([&] {
        const auto action = std::make_shared<ActionSaveFile>(session_, type);
        action->Args().path = path;
        action->Args().name = name;
        isSaved = action->Run();
    });
    if (isSaved && type != ActionType::SaveKerning)
        AddRecentFile(path);
    return isSaved;
}

// Where files are looked for and saved: the last folder that the user chose, or that of the font,
// but not one for installed fonts.
QString Document::Folder() const
{
    if (!folder_.isEmpty())
        return folder_;
    const QFileInfo font(session_.Path());
    const bool isOwn = !session_.Path().isEmpty() && QFileInfo(font.path()).isWritable();
    return isOwn ? font.path() : QDir::homePath();
}

// The name that the font was given, or else that of its file, without bytes that a file dialog
// can't pass on.
QString Document::ProposedName(const QString& suffix) const
{
    const QString& name = session_.CurrentFont()->Name();
    if (!HasOwnFile() && name == QString::fromLatin1(CName(name)))
        return name + suffix;
    return WithoutRawBytes(QFileInfo(session_.Path()).completeBaseName(), u'_') + suffix;
}

bool Document::SaveKerning()
{
    return AskAndSave(tr("Save kerning file"), ProposedName(u"_Kerning.c"_s), KerningFileFilter(),
                      ActionType::SaveKerning);
}

void Document::ExportProof()
{
    const QString path =
        AskSavePath(tr("Export proof"), ProposedName(u".png"_s), ProofFileFilter());
    if (path.isEmpty())
        return;
    Guarded([&] { WriteProof(ProofOf(*session_.CurrentFont(), session_.Path()), path); });
}

void Document::OpenPattern()
{
    const QString path = AskOpenPath(tr("Read pattern file"), PatternFilter());
    if (!path.isEmpty())
        ReadPattern(path);
}

void Document::SavePattern()
{
    const QString path =
        AskSavePath(tr("Save pattern file"), ProposedName(u".txt"_s), PatternFilter());
    if (path.isEmpty())
        return;
    Guarded([&] {
        CodeSet codes = session_.CurrentFont()->EnabledCodes();
        codes &= session_.CurrentFont()->ExistingCodes();
        PatternFile(path).Write(codes);
        Q_EMIT Done(tr("Saved pattern file: %1").arg(Shown(path)));
    });
}

bool Document::ReadPattern(const QString& path)
{
    bool isRead = false;
    Guarded([&] {
        const auto action = std::make_shared<ActionReadPattern>(session_);
        action->Args().path = path;
        isRead = action->Run();
        if (isRead)
            TellMissing(PatternFile(path).Read());
        else
            CurrentInterface().warning(tr("Read pattern file"),
                                       tr("The file %1 does not exist.").arg(Shown(path)));
    });
    return isRead;
}

void Document::TellMissing(const CodeSet& pattern) const
{
    constexpr std::size_t shown = 20;
    const Font& font = *session_.CurrentFont();
    Demand demand;
    demand.SetEncoding(font.Metrics().encoding);
    demand.Ask(pattern, {});
    const std::vector<DemandGap> gaps = demand.MissingIn(font, pattern);
    if (gaps.empty())
        return;
    QStringList lines = {tr("Characters that the font does not have: %1").arg(gaps.size())};
    for (std::size_t index = 0; index < std::min(shown, gaps.size()); ++index)
        lines.append(gaps[index].text);
    if (gaps.size() > shown)
        lines.append(u"..."_s);
    CurrentInterface().information(tr("Read pattern file"), lines.join(u'\n'));
}

void Document::AddRecentFile(const QString& path)
{
    recentFiles_.Add(AbsolutePathOf(path));
    Q_EMIT RecentFilesChanged();
}

bool Document::OpenRecentFile(const QString& path)
{
    if (KindOf(path) != FileKind::None)
        return OpenFile(path);
    const auto answer = ShowPlainBox(
        &window_, QMessageBox::Question, tr("File is missing"),
        tr("The file %1 does not exist. Remove it from the recent files?").arg(Shown(path)),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (answer == QMessageBox::Yes) {
        recentFiles_.Remove(path);
        Q_EMIT RecentFilesChanged();
    }
    return false;
}

void Document::FillRecentMenu(QMenu& menu)
{
    Q_EMIT RecentFilesChanged(); // perhaps in another window
    menu.clear();
    for (const QString& path : RecentFiles()) {
        QAction* const entry =
            menu.addAction(Shown(QFileInfo(path).fileName()).replace(u'&', u"&&"_s));
        entry->setStatusTip(Shown(path));
        connect(entry, &QAction::triggered, this, [this, path] { Q_EMIT OpeningRequested(path); });
    }
    if (RecentFiles().isEmpty())
        menu.addAction(tr("No recent files"))->setEnabled(false);
}

bool Document::AskToSave()
{
    if (!session_.IsFontSaved() &&
        !AskTo(tr("Save file?"), tr("Save current file?"), [this] { return Save(); }))
        return false;
    return !session_.HasUnsavedKerning() ||
           AskTo(tr("Save kerning table?"),
                 tr("Save the kerning table? Its changes are in no font file."),
                 [this] { return SaveKerning(); });
}

// False where the user gives up, or saving fails.
bool Document::AskTo(const QString& title, const QString& text, const std::function<bool()>& save)
{
    const auto answer =
        ShowPlainBox(&window_, QMessageBox::Question, title, text,
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    return answer == QMessageBox::No || (answer == QMessageBox::Yes && save());
}

ActionType Document::PurposeOf(const QString& path)
{
    if (FileTypeOf(path))
        return ActionType::OpenFont;
    return path.endsWith(u".txt"_s, Qt::CaseInsensitive) ? ActionType::ReadPattern
                                                         : ActionType::None;
}

bool Document::TakesDrop(const QString& path) const
{
    const ActionType purpose = PurposeOf(path);
    return purpose == ActionType::OpenFont ||
           (purpose == ActionType::ReadPattern && session_.CurrentFont() != nullptr);
}

bool Document::Drop(const QString& path)
{
    if (!TakesDrop(path))
        return false;
    if (PurposeOf(path) == ActionType::OpenFont)
        return OpenFile(path);
    const auto answer = ShowPlainBox(
        &window_, QMessageBox::Question, tr("Load pattern file?"),
        tr("Apply the pattern file %1 to this font?").arg(Shown(QFileInfo(path).fileName())),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    return answer == QMessageBox::Yes && ReadPattern(path);
}

} // namespace Glyphor
