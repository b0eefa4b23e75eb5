#pragma once

#include "app/dialog_data.h"
#include "render/font_file_scalable.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;

namespace Glyphor {

// Chooses how outlines become pixels: hinting, gamma, the room for ink, and the place of a variable
// face on its axes.
class RenderingEntries final : public QWidget
{
    Q_OBJECT

public:
    explicit RenderingEntries(QWidget* parent = nullptr);

    void Load(const RenderOptions& options);

    // Throws a CriticalException where the features are none.
    void ApplyTo(RenderOptions& options) const;

    // As it was chosen, whether or not the format has a use for it.
    [[nodiscard]] double Gamma() const;

    void SetFeatures(const std::vector<FontFeature>& features);

    // As they were typed.
    [[nodiscard]] QString FeatureText() const;

    // Gamma is for formats with more than two colours.
    void SetFormat(FontFormat format);

    // Offers these axes, each at the place of the face.
    void ShowAxes(const std::vector<FaceAxis>& axes);

    // Those that are elsewhere than the face.
    [[nodiscard]] std::vector<AxisPosition> Positions() const;

    // What the face does not have stays out.
    void SetPositions(const std::vector<AxisPosition>& positions);

Q_SIGNALS:
    void Changed();

private:
    void AddAxis(const FaceAxis& axis);

    struct AxisRow
    {
        FaceAxis axis;
        QDoubleSpinBox* box;
    };

    QFormLayout* form_;
    QComboBox* hinting_;
    QDoubleSpinBox* gamma_;
    QCheckBox* fits_;
    QLineEdit* features_;
    std::vector<AxisRow> axes_;
};

} // namespace Glyphor
