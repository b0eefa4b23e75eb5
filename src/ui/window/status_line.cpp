#include "ui/window/status_line.h"

#include "ui/support/dialog_parts.h"
#include "ui/window/progress_area.h"

#include <QLabel>

namespace Glyphor {

namespace {

// More than the base class leaves around its widgets, so that texts stand where it paints messages.
constexpr int messageMargin = 4;

} // namespace

StatusLine::StatusLine()
    : work_(PlainLabel(tr("Ready"))), pixel_(PlainLabel()), progress_(new ProgressArea)
{
    addWidget(work_, 1);
    work_->setContentsMargins(messageMargin, 0, 0, 0);
    addPermanentWidget(pixel_);
    addPermanentWidget(progress_);
    connect(progress_, &ProgressArea::TextChanged, this, [this](const QString& text) {
        if (!text.isEmpty())
            clearMessage();
        work_->setText(text.isEmpty() ? tr("Ready") : text);
    });
}

void StatusLine::Tell(const QString& text)
{
    constexpr int delay = 6000; // milliseconds
    showMessage(text, delay);
}

void StatusLine::TellPixel(const QString& text)
{
    pixel_->setText(text);
}

} // namespace Glyphor
