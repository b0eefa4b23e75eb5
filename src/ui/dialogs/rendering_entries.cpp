#include "ui/dialogs/rendering_entries.h"

#include "app/shown_text.h"
#include "cli/feature_list.h"
#include "ui/support/dialog_parts.h"
#include "ui/support/plain_spin_box.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <cmath>

namespace Glyphor {

namespace {

// No face that is meant to be used has as many.
constexpr std::size_t MostAxes = 64;

// Places have two digits in the dialog.
bool IsSamePlace(double one, double other)
{
    return std::abs(one - other) < 0.005;
}

QString AxisName(const FaceAxis& axis)
{
    const QString tag = Shown(QString::fromLatin1(axis.tag));
    const QString name = axis.name.isEmpty()
                             ? tag
                             : RenderingEntries::tr("%1 (%2)").arg(Shown(axis.name.left(40)), tag);
    return QString(name).replace(u'&', QStringLiteral("&&")) + u':';
}

} // namespace

RenderingEntries::RenderingEntries(QWidget* parent)
    : QWidget(parent),
      form_(new QFormLayout(this)),
      hinting_(new QComboBox),
      gamma_(new PlainSpinBox),
      fits_(new QCheckBox(tr("&Keep all ink within the line"))),
      features_(new QLineEdit)
{
    hinting_->addItem(tr("As the font wants it"), int(Hinting::Default));
    hinting_->addItem(tr("Stems of whole pixels"), int(Hinting::Mono));
    hinting_->addItem(tr("Vertically alone"), int(Hinting::Light));
    hinting_->addItem(tr("Automatic"), int(Hinting::Auto));
    hinting_->addItem(tr("None"), int(Hinting::None));
    hinting_->setToolTip(tr("How outlines are fitted to the pixels."));
    gamma_->setRange(0.1, 10);
    gamma_->setSingleStep(0.1);
    gamma_->setValue(1);
    gamma_->setToolTip(tr("Above 1 the edges of strokes are darker, below 1 lighter. For formats "
                          "with 2 or 4 bits per pixel."));
    fits_->setToolTip(tr("The font gets as high as its highest and lowest characters need."));
    form_->addRow(tr("Hi&nting:"), hinting_);
    form_->addRow(tr("&Gamma:"), gamma_);
    form_->addRow(fits_);
    features_->setPlaceholderText(QStringLiteral("tnum,zero"));
    features_->setToolTip(tr("Tags of OpenType features that show other glyphs, such as tnum for "
                             "figures of equal width."));
    form_->addRow(tr("Glyph &variants:"), features_);
    connect(hinting_, &QComboBox::currentIndexChanged, this, &RenderingEntries::Changed);
    connect(gamma_, &QDoubleSpinBox::valueChanged, this, &RenderingEntries::Changed);
    connect(fits_, &QCheckBox::toggled, this, &RenderingEntries::Changed);
    connect(features_, &QLineEdit::textChanged, this, &RenderingEntries::Changed);
}

void RenderingEntries::Load(const RenderOptions& options)
{
    hinting_->setCurrentIndex(std::max(0, hinting_->findData(int(options.hinting))));
    gamma_->setValue(options.gamma);
    fits_->setChecked(options.fitsInk);
}

void RenderingEntries::ApplyTo(RenderOptions& options) const
{
    options.hinting = Hinting(hinting_->currentData().toInt());
    options.gamma = gamma_->isEnabled() ? gamma_->value() : 1;
    options.fitsInk = fits_->isChecked();
    options.axes = Positions();
    options.features.clear();
    if (!FeatureText().isEmpty())
        options.features = ParseFeatures(FeatureText());
}

void RenderingEntries::SetFeatures(const std::vector<FontFeature>& features)
{
    features_->setText(TextOf(features));
}

QString RenderingEntries::FeatureText() const
{
    return features_->text().trimmed();
}

double RenderingEntries::Gamma() const
{
    return gamma_->value();
}

void RenderingEntries::SetFormat(FontFormat format)
{
    gamma_->setEnabled(BitsPerPixel(format) > 1);
}

void RenderingEntries::ShowAxes(const std::vector<FaceAxis>& axes)
{
    for (const AxisRow& row : axes_)
        form_->removeRow(row.box);
    axes_.clear();
    for (std::size_t index = 0; index < std::min(axes.size(), MostAxes); ++index)
        AddAxis(axes[index]);
}

void RenderingEntries::AddAxis(const FaceAxis& axis)
{
    auto* const box = new PlainSpinBox;
    const double range = axis.maximum - axis.minimum;
    box->setRange(axis.minimum, axis.maximum);
    box->setValue(axis.place);
    box->setSingleStep(range >= 100 ? 10 : range >= 10 ? 1 : 0.1);
    box->setSuffix(
        tr("  (%1 to %2)")
            .arg(box->locale().toString(axis.minimum), box->locale().toString(axis.maximum)));
    QLabel* const label = LabelFor(*box, AxisName(axis));
    label->setTextFormat(Qt::PlainText);
    form_->addRow(label, box);
    axes_.push_back({axis, box});
    connect(box, &QDoubleSpinBox::valueChanged, this, &RenderingEntries::Changed);
}

std::vector<AxisPosition> RenderingEntries::Positions() const
{
    std::vector<AxisPosition> positions;
    for (const AxisRow& row : axes_) {
        if (!IsSamePlace(row.box->value(), row.axis.place))
            positions.push_back({row.axis.tag, row.box->value()});
    }
    return positions;
}

void RenderingEntries::SetPositions(const std::vector<AxisPosition>& positions)
{
    for (const AxisPosition& position : positions) {
        const auto row = std::ranges::find(axes_, position.tag,
                                           [](const AxisRow& other) { return other.axis.tag; });
        if (row != axes_.end())
            row->box->setValue(position.value);
    }
}

} // namespace Glyphor
