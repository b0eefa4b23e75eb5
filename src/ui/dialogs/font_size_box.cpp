#include "ui/dialogs/font_size_box.h"

#include "app/settings.h"
#include "ui/support/plain_spin_box.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace Glyphor {

FontSizeBox::FontSizeBox(QWidget* parent)
    : QWidget(parent), value_(new PlainSpinBox), unit_(new QComboBox), subject_(new QComboBox)
{
    value_->setRange(1, 1000);
    value_->setAccessibleName(tr("Height"));
    unit_->addItems({tr("px"), tr("pt")});
    unit_->setAccessibleName(tr("Unit of the height"));
    subject_->addItem(tr("of the box"), int(HeightUnit::Box));
    subject_->addItem(tr("of capitals"), int(HeightUnit::Capital));
    subject_->addItem(tr("of small letters"), int(HeightUnit::LowercaseX));
    subject_->addItem(tr("of the line"), int(HeightUnit::Line));
    subject_->addItem(tr("of the em"), int(HeightUnit::Em));
    subject_->setToolTip(tr("What has this height: the box around all characters, the letter H, "
                            "the letter x, the line of the font, or the em of the face."));
    subject_->setAccessibleName(tr("What the height is the height of"));
    OfferFractions();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(value_, 1);
    layout->addWidget(unit_);
    layout->addWidget(subject_);
    setFocusProxy(value_);
    setFocusPolicy(value_->focusPolicy()); // or labels would not bring the focus here
    connect(value_, &QDoubleSpinBox::valueChanged, this, &FontSizeBox::Changed);
    connect(unit_, &QComboBox::currentIndexChanged, this, &FontSizeBox::Changed);
    connect(subject_, &QComboBox::currentIndexChanged, this, [this] {
        const QSignalBlocker once(value_);
        OfferFractions();
        Q_EMIT Changed();
    });
}

HeightUnit FontSizeBox::Unit() const
{
    return HeightUnit(subject_->currentData().toInt());
}

// Two digits tell one 64th from the next.
void FontSizeBox::OfferFractions()
{
    const bool isEm = Unit() == HeightUnit::Em;
    value_->setDecimals(isEm ? 2 : 0);
    value_->setSingleStep(isEm ? 0.5 : 1);
}

FontSize FontSizeBox::Value() const
{
    const auto fine = std::lround(value_->value() * 64);
    FontSize size;
    size.value = int(fine / 64);
    size.sixtyFourths = int(fine % 64);
    size.inPoints = unit_->currentIndex() == 1;
    size.unit = Unit();
    return size;
}

void FontSizeBox::SetValue(const FontSize& size)
{
    subject_->setCurrentIndex(std::max(0, subject_->findData(int(size.unit))));
    value_->setValue(size.value + size.sixtyFourths / 64.0);
    unit_->setCurrentIndex(int(size.inPoints));
    value_->selectAll();
}

FontSize SizeOf(const SizeData& data)
{
    return {data.value, data.inPoints, HeightUnit(data.unit), data.sixtyFourths};
}

SizeData DataOf(const FontSize& size)
{
    return {size.value, size.inPoints, qint32(size.unit), size.sixtyFourths};
}

void RenderAt(const FontSize& size, ActionOpenFontArgs& args)
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    args.size = size;
    args.dotsPerInch = screen != nullptr ? int(screen->logicalDotsPerInchX()) : 0;
    args.render.SetHeight(size, args.dotsPerInch);
    args.render.useStrikes = Settings::Instance().useIncludedBitmaps.value();
}

} // namespace Glyphor
