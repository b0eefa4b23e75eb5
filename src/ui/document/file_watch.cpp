#include "ui/document/file_watch.h"

#include "actions/session.h"
#include "app/shown_text.h"
#include "files/file_types.h"
#include "ui/support/dialog_parts.h"

#include <QFileInfo>
#include <QPushButton>

#include <utility>

namespace Glyphor {

FileWatch::FileWatch(Session& session, QWidget& window)
    : QObject(&window), session_(session), window_(window)
{}

// A file that is gone is just written again.
FileWatch::Saving FileWatch::AskWhereToSave() const
{
    const auto now = StampOf(session_.Path());
    if (!now || now == session_.Stamp())
        return Saving::Here;
    QMessageBox box(QMessageBox::Warning, tr("File has changed"),
                    tr("The file %1 was changed on the disk since it was opened. Replace it?")
                        .arg(Shown(QFileInfo(session_.Path()).fileName())),
                    QMessageBox::Cancel, &window_);
    box.setTextFormat(Qt::PlainText);
    const auto* const here = box.addButton(tr("&Replace"), QMessageBox::DestructiveRole);
    auto* const elsewhere = box.addButton(tr("Save &As..."), QMessageBox::AcceptRole);
    box.setDefaultButton(elsewhere);
    box.exec();
    if (box.clickedButton() == here)
        return Saving::Here;
    return box.clickedButton() == elsewhere ? Saving::Elsewhere : Saving::Nowhere;
}

// From then on the font is nowhere but here, unless it is loaded again.
void FileWatch::Check()
{
    if (!session_.Stamp() || !IsWritten(FileTypeOf(session_.Path())))
        return;
    if (known_ != session_.Stamp()) {
        known_ = session_.Stamp();
        told_ = known_;
    }
    const auto now = StampOf(session_.Path());
    if (std::exchange(told_, now) == now || now == known_)
        return;
    const bool isModified = session_.IsModified();
    session_.MarkChanged();
    const QString name = Shown(QFileInfo(session_.Path()).fileName());
    QString text;
    if (!now)
        text = tr("The file %1 is no longer there.").arg(name);
    else if (isModified)
        text = tr("The file %1 was changed on the disk.").arg(name);
    else if (AskToReload())
        Q_EMIT ReloadWanted();
    Q_EMIT Noticed(text);
}

bool FileWatch::AskToReload() const
{
    return ShowPlainBox(&window_, QMessageBox::Question, tr("File has changed"),
                        tr("The file %1 was changed on the disk. Load it again?")
                            .arg(Shown(QFileInfo(session_.Path()).fileName())),
                        QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) == QMessageBox::Yes;
}

} // namespace Glyphor
