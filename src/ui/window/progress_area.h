#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QProgressBar;
class QToolButton;

namespace Glyphor {

// How far work is, with a button to stop it. Work in this thread shows up once it has lasted for a
// moment, and then only stopping it is possible: anything else that the user does is dropped, so
// that nothing happens to the font in the middle of the work.
class ProgressArea final : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressArea(QWidget* parent = nullptr);

    // Work in this thread. SetWork() gives the window its turn now and then.
    void BeginWork(const QString& text, int maximum);
    void SetWork(int value);
    void EndWork();

    [[nodiscard]] bool IsWorking() const { return isWorking_; }

    // True once the work in this thread is to stop.
    [[nodiscard]] bool IsStopped() const { return isStopped_; }

    // Work in another thread, which work in this one hides for its time.
    void BeginBackground(const QString& text, int maximum);
    void SetBackground(int value);
    void EndBackground();

    void Stop();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    // Of the work that is shown; empty for none.
    void TextChanged(const QString& text);

    void BackgroundStopped(); // by the user

private:
    void ShowWork(const QString& text, int value, int maximum);
    void ShowBackground();

    QProgressBar* bar_;
    QToolButton* button_;
    QElapsedTimer sinceBegin_;
    QElapsedTimer sinceTurn_;
    bool isWorking_ = false;
    bool isStopped_ = false;
    QString text_;
    int maximum_ = 0;
    QString backgroundText_;
    int backgroundValue_ = 0;
    int backgroundMaximum_ = 0; // 0 where there is none
};

} // namespace Glyphor
