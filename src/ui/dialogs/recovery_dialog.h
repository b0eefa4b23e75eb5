#pragma once

#include <QDateTime>
#include <QDialog>

#include <vector>

class QPushButton;
class QTreeWidget;

namespace Glyphor {

struct RecoverableFont
{
    QString name;
    QString path;
    QDateTime time; // of the copy
};

// Lists fonts whose changes were not saved: one of them is accepted to be restored, any number
// discarded, and the others are left for later.
class RecoveryDialog final : public QDialog
{
    Q_OBJECT

public:
    RecoveryDialog(const std::vector<RecoverableFont>& fonts, QWidget* parent);

    // The index of the font to restore.
    [[nodiscard]] int Chosen() const;

Q_SIGNALS:
    void DiscardRequested(int index);

private:
    void DiscardChosen();

    QTreeWidget* list_;
};

} // namespace Glyphor
