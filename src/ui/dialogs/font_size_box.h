#pragma once

#include "actions/action_open_font.h"
#include "app/dialog_data.h"

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;

namespace Glyphor {

// The choice of a height, its unit, and what it is the height of.
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
    [[nodiscard]] HeightUnit Unit() const;
    void OfferFractions();

    QDoubleSpinBox* value_;
    QComboBox* unit_;
    QComboBox* subject_;
};

// A height as dialogs remember it.
[[nodiscard]] FontSize SizeOf(const SizeData& data);
[[nodiscard]] SizeData DataOf(const FontSize& size);

// Has the arguments render at this height, with points as large as on the screen, and as the
// preferences say.
void RenderAt(const FontSize& size, ActionOpenFontArgs& args);

} // namespace Glyphor
