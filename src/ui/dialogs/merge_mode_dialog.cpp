#include "ui/dialogs/merge_mode_dialog.h"

#include "app/settings.h"
#include "ui/support/dialog_parts.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace Glyphor {

MergeModeDialog::MergeModeDialog(QWidget* parent) : QDialog(parent), modes_(new QButtonGroup(this))
{
    setWindowTitle(tr("Select merge mode"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Duplicate characters have been found in both fonts.\nHow "
                                    "should duplicate characters be handled?")));
    const auto add = [&](const QString& text, MergeMode mode) {
        auto* const button = new QRadioButton(text);
        modes_->addButton(button, int(mode));
        layout->addWidget(button);
    };
    add(tr("Replace duplicates with new characters."), MergeMode::Replace);
    add(tr("Do not replace, keep old characters."), MergeMode::Keep);
    AddButtons(*this, *layout);
    const MergeModeDialogData stored = Settings::Instance().mergeModeDialog.load();
    QAbstractButton* const chosen = modes_->button(stored.mode);
    (chosen != nullptr ? chosen : modes_->button(int(MergeMode::Replace)))->setChecked(true);
    RestoreGeometry(*this, stored.geometry);
}

MergeModeDialog::~MergeModeDialog()
{
    MergeModeDialogData record = Settings::Instance().mergeModeDialog.load();
    record.geometry = saveGeometry();
    if (result() == Accepted)
        record.mode = qint32(Mode());
    Settings::Instance().mergeModeDialog.save(record);
}

MergeMode MergeModeDialog::Mode() const
{
    return MergeMode(modes_->checkedId());
}

} // namespace Glyphor
