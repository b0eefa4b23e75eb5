#pragma once

#include <QStatusBar>

class QLabel;

namespace Glyphor {

class ProgressArea;

// What was done, the pixel under the mouse, and how far long work is.
class StatusLine final : public QStatusBar
{
    Q_OBJECT

public:
    StatusLine();

    // For some seconds.
    void Tell(const QString& text);
    void TellPixel(const QString& text);

    [[nodiscard]] ProgressArea& Progress() const { return *progress_; }

private:
    QLabel* work_;
    QLabel* pixel_;
    ProgressArea* progress_;
};

} // namespace Glyphor
