#include "ui/support/screen_fit.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>

namespace Glyphor {

namespace {

constexpr QSize FrameSize(8, 36); // what window managers add, before a window has it

bool IsWindow(const QWidget& widget)
{
    const Qt::WindowType type = widget.windowType();
    return widget.isWindow() && (type == Qt::Window || type == Qt::Dialog);
}

} // namespace

bool ScreenFit::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show || event->spontaneous() || !watched->isWidgetType())
        return false;
    auto& widget = *static_cast<QWidget*>(watched);
    if (!IsWindow(widget) || widget.isMaximized() || widget.isFullScreen())
        return false;
    const QSize room = widget.screen()->availableGeometry().size() - FrameSize;
    if (widget.width() > room.width() || widget.height() > room.height())
        widget.resize(widget.size().boundedTo(room));
    return false;
}

} // namespace Glyphor
