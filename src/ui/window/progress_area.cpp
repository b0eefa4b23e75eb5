#include "ui/window/progress_area.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QProgressBar>
#include <QScopeGuard>
#include <QToolButton>

namespace Glyphor {

namespace {

constexpr qint64 BarDelay = 80;        // milliseconds
constexpr qint64 WindowTurnDelay = 20; // between two turns of the window

bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

ProgressArea::ProgressArea(QWidget* parent)
    : QWidget(parent), bar_(new QProgressBar), button_(new QToolButton)
{
    bar_->setMaximumWidth(220);
    bar_->setAccessibleName(tr("Progress"));
    button_->setText(tr("Stop"));
    button_->setToolTip(tr("Stop the work (Esc)"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(bar_);
    layout->addWidget(button_);
    connect(button_, &QToolButton::clicked, this, &ProgressArea::Stop);
    hide();
}

void ProgressArea::ShowWork(const QString& text, int value, int maximum)
{
    if (bar_->maximum() != maximum)
        bar_->setRange(0, maximum);
    bar_->setValue(value);
    show();
    Q_EMIT TextChanged(text);
}

void ProgressArea::BeginWork(const QString& text, int maximum)
{
    isWorking_ = true;
    isStopped_ = false;
    text_ = text;
    maximum_ = maximum;
    sinceBegin_.start();
    sinceTurn_.start();
}

void ProgressArea::SetWork(int value)
{
    if (sinceBegin_.elapsed() < BarDelay || sinceTurn_.elapsed() < WindowTurnDelay)
        return;
    ShowWork(text_, value, maximum_);
    QApplication::instance()->installEventFilter(this);
    const auto remove = qScopeGuard([this] { QApplication::instance()->removeEventFilter(this); });
    QCoreApplication::processEvents(); // of screen readers as well
    sinceTurn_.start();
}

void ProgressArea::EndWork()
{
    isWorking_ = false;
    ShowBackground();
}

void ProgressArea::BeginBackground(const QString& text, int maximum)
{
    backgroundText_ = text;
    backgroundMaximum_ = maximum;
    SetBackground(0);
}

void ProgressArea::SetBackground(int value)
{
    backgroundValue_ = value;
    if (!isWorking_)
        ShowBackground();
}

void ProgressArea::EndBackground()
{
    backgroundMaximum_ = 0;
    SetBackground(0);
}

void ProgressArea::ShowBackground()
{
    if (backgroundMaximum_ > 0)
        return ShowWork(backgroundText_, backgroundValue_, backgroundMaximum_);
    hide();
    Q_EMIT TextChanged({});
}

void ProgressArea::Stop()
{
    if (isWorking_)
        isStopped_ = true;
    else
        Q_EMIT BackgroundStopped();
}

bool ProgressArea::eventFilter(QObject* watched, QEvent* event)
{
    // Windows hand their events on to widgets; shortcuts go straight to commands.
    const bool isLast = watched->isWidgetType() || event->type() == QEvent::Shortcut;
    if (!IsInput(event->type()) || !isLast)
        return false;
    const bool isKey = event->type() == QEvent::KeyPress;
    if (isKey && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape)
        isStopped_ = true;
    if (event->type() == QEvent::Close) {
        isStopped_ = true;
        event->ignore();
    }
    return watched != button_;
}

} // namespace Glyphor
