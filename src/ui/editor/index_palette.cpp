#include "ui/editor/index_palette.h"

#include "ui/support/char_picture.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGridLayout>
#include <QPainter>
#include <QRadioButton>

#include <algorithm>

namespace Glyphor {

namespace {

constexpr int FieldsPerRow = 8;

// A radio button for the keys and for screen readers, with the grey instead of a text.
class IndexField final : public QRadioButton
{
public:
    explicit IndexField(int alpha) : alpha_(alpha) { setFixedSize(20, 14); }

protected:
    [[nodiscard]] bool hitButton(const QPoint& place) const override
    {
        return rect().contains(place);
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), isChecked() ? palette().highlight() : palette().mid());
        const auto within = [this](int frame) {
            return rect().adjusted(frame, frame, -frame, -frame);
        };
        painter.fillRect(within(isChecked() ? 2 : 1), Qt::white);
        const QRect inside = within(isChecked() ? 3 : 1);
        painter.fillRect(inside, QColor(0, 0, 0, isEnabled() ? alpha_ : alpha_ / 3));
        if (!hasFocus())
            return;
        painter.setPen(QPen(alpha_ < 128 ? Qt::black : Qt::white, 1, Qt::DotLine));
        painter.drawRect(inside.adjusted(1, 1, -2, -2));
    }

private:
    int alpha_;
};

} // namespace

IndexPalette::IndexPalette(QWidget* parent) : QWidget(parent), fields_(new QButtonGroup(this))
{
    setAccessibleName(tr("Index to paint with"));
    auto* const layout = new QGridLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(4, 0, 4, 0);
    SetDepth(0);
}

void IndexPalette::SetDepth(int bitsPerPixel)
{
    setEnabled(bitsPerPixel > 0);
    if (depth_ == bitsPerPixel)
        return;
    depth_ = bitsPerPixel;
    qDeleteAll(fields_->buttons());
    const int bits = std::max(1, bitsPerPixel);
    for (int index = 0; index < 1 << bits; ++index) {
        auto* const field = new IndexField(IndexAlpha(index, bits));
        field->setAccessibleName(tr("Index %1").arg(index));
        field->setToolTip(tr("Paint with index %1").arg(index));
        fields_->addButton(field, index);
        static_cast<QGridLayout*>(layout())->addWidget(field, index / FieldsPerRow,
                                                       index % FieldsPerRow);
    }
    SetIndex((1 << bits) - 1);
}

void IndexPalette::SetIndex(int index)
{
    if (QAbstractButton* const field = fields_->button(index))
        field->setChecked(true);
}

int IndexPalette::Index() const
{
    return fields_->checkedId();
}

} // namespace Glyphor
