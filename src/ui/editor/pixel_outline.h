#pragma once

#include "model/pixel_block.h"

#include <QGraphicsItem>
#include <QImage>

namespace Glyphor {

// The mark of selected pixels: an outline in two colours, which shows on any grey, and the pixels
// themselves while they are dragged. Nothing can be pointed at in it.
class PixelOutline final : public QGraphicsItem
{
public:
    PixelOutline();

    // In the scene.
    void ShowAt(const QRectF& area);

    // An empty block shows what is below.
    void SetPixels(const PixelBlock& block, int bitsPerPixel);

    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override { return {}; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QRectF area_;
    QImage pixels_;
};

} // namespace Glyphor
