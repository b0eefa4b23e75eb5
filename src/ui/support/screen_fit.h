#pragma once

#include <QObject>

namespace Glyphor {

// Keeps windows and dialogs no larger than the screen that they open on. What is large by itself
// must scroll its content, see ScrollingContent().
class ScreenFit final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Glyphor
