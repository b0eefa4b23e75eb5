#pragma once

#include "render/free_type_face.h"

#include <QWidget>

class QComboBox;
class QSpinBox;

namespace Glyphor {

// The choice of a height and its unit.
class FontSizeBox final : public QWidget
{
    Q_OBJECT

public:
    explicit FontSizeBox(QWidget* parent = nullptr);

    [[nodiscard]] FontSize Value() const;
    void SetValue(const FontSize& size);

Q_SIGNALS:
    void Changed();

private:
    QSpinBox* value_;
    QComboBox* unit_;
};

} // namespace Glyphor
