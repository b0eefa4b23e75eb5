#pragma once

#include <QDoubleSpinBox>

namespace Glyphor {

// A number that shows a fraction only where it has one.
class PlainSpinBox final : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

    [[nodiscard]] QString textFromValue(double value) const override
    {
        return locale().toString(value, 'f', QLocale::FloatingPointShortest);
    }
};

} // namespace Glyphor
