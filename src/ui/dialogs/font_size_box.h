#pragma once

#include "actions/action_open_font.h"

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

// Has the arguments render at this height, with points as large as on the screen, and as the
// preferences say.
void RenderAt(const FontSize& size, ActionOpenFontArgs& args);

} // namespace Glyphor
