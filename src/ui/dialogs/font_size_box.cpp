#include "ui/dialogs/font_size_box.h"

#include "app/settings.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QSpinBox>

namespace Glyphor {

FontSizeBox::FontSizeBox(QWidget* parent)
    : QWidget(parent), value_(new QSpinBox), unit_(new QComboBox)
{
    value_->setRange(1, 1000);
    value_->setAccessibleName(tr("Height"));
    unit_->addItems({tr("px"), tr("pt")});
    unit_->setAccessibleName(tr("Unit of the height"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(value_, 1);
    layout->addWidget(unit_);
    setFocusProxy(value_);
    connect(value_, &QSpinBox::valueChanged, this, &FontSizeBox::Changed);
    connect(unit_, &QComboBox::currentIndexChanged, this, &FontSizeBox::Changed);
}

FontSize FontSizeBox::Value() const
{
    FontSize size;
    size.value = value_->value();
    size.inPoints = unit_->currentIndex() == 1;
    return size;
}

void FontSizeBox::SetValue(const FontSize& size)
{
    value_->setValue(size.value);
    unit_->setCurrentIndex(int(size.inPoints));
    value_->selectAll();
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
