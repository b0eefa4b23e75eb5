#include "ui/editor/pixel_outline.h"

#include "ui/support/char_picture.h"

#include <QGraphicsScene>
#include <QPainter>

namespace Glyphor {

namespace {

constexpr qreal PenWidth = 3; // screen pixels

} // namespace

PixelOutline::PixelOutline()
{
    setZValue(1);
    setAcceptedMouseButtons(Qt::NoButton);
    hide();
}

void PixelOutline::ShowAt(const QRectF& area)
{
    if (area != area_) {
        prepareGeometryChange();
        area_ = area;
    }
    show();
}

void PixelOutline::SetPixels(const PixelBlock& block, int bitsPerPixel)
{
    pixels_ = BlockPicture(block, bitsPerPixel);
    update();
}

QRectF PixelOutline::boundingRect() const
{
    return area_.adjusted(-PenWidth, -PenWidth, PenWidth, PenWidth);
}

void PixelOutline::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    painter->setClipRect(scene()->sceneRect().adjusted(-PenWidth, -PenWidth, PenWidth, PenWidth));
    if (!pixels_.isNull())
        painter->drawImage(area_, pixels_);
    QPen pen(Qt::white, PenWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(area_);
    pen.setColor(Qt::black);
    pen.setDashPattern({2, 2});
    painter->setPen(pen);
    painter->drawRect(area_);
}

} // namespace Glyphor
