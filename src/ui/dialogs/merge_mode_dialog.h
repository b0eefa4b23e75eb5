#pragma once

#include "actions/action_merge_font.h"

#include <QDialog>

class QButtonGroup;

namespace Glyphor {

// Asks what becomes of characters that both fonts have. The last answer is remembered.
class MergeModeDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit MergeModeDialog(QWidget* parent);
    ~MergeModeDialog() override;

    [[nodiscard]] MergeMode Mode() const;

private:
    QButtonGroup* modes_;
};

} // namespace Glyphor
