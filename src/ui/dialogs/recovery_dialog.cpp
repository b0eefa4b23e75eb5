#include "ui/dialogs/recovery_dialog.h"

#include "app/shown_text.h"
#include "ui/support/dialog_parts.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Glyphor {

namespace {

enum RecoveryColumn { FileColumn, FontColumn, TimeColumn, FolderColumn };

} // namespace

RecoveryDialog::RecoveryDialog(const std::vector<RecoverableFont>& fonts, QWidget* parent)
    : QDialog(parent), list_(new QTreeWidget)
{
    setWindowTitle(tr("Recover unsaved fonts"));
    auto* const layout = new QVBoxLayout(this);
    auto* const caption =
        LabelFor(*list_, tr("These fonts had unsaved changes when their windows were lost:"));
    layout->addWidget(caption);
    list_->setAccessibleName(caption->text());
    list_->setRootIsDecorated(false);
    list_->setHeaderLabels({tr("File"), tr("Font"), tr("Kept on"), tr("Folder")});
    int index = 0;
    for (const RecoverableFont& font : fonts) {
        const QFileInfo file(font.path);
        auto* const item = new QTreeWidgetItem(
            {Shown(file.fileName()), Shown(font.name),
             locale().toString(font.time.toLocalTime(), QLocale::ShortFormat), Shown(file.path())});
        item->setData(FileColumn, Qt::UserRole, index++);
        item->setToolTip(FolderColumn, Shown(font.path));
        list_->addTopLevelItem(item);
    }
    list_->setCurrentItem(list_->topLevelItem(0));
    for (const RecoveryColumn column : {FileColumn, FontColumn, TimeColumn})
        list_->resizeColumnToContents(column);
    layout->addWidget(list_);
    auto* const buttons = new QDialogButtonBox(this);
    auto* const restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    auto* const discard = buttons->addButton(tr("&Discard"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    restore->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(discard, &QPushButton::clicked, this, &RecoveryDialog::DiscardChosen);
    connect(list_, &QTreeWidget::itemActivated, this, &QDialog::accept);
    layout->addWidget(buttons);
    resize(640, 260);
}

int RecoveryDialog::Chosen() const
{
    return list_->currentItem()->data(FileColumn, Qt::UserRole).toInt();
}

// With the last one there is nothing left to ask.
void RecoveryDialog::DiscardChosen()
{
    Q_EMIT DiscardRequested(Chosen());
    delete list_->currentItem();
    if (list_->topLevelItemCount() == 0)
        reject();
}

} // namespace Glyphor
