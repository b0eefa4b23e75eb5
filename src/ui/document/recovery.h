#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class QThread;
class QWidget;

namespace Glyphor {

class Document;
class RecoverySlot;
class Session;

// Keeps a copy of the font as long as it has unsaved changes, so that a window which ends without
// being closed loses none of them but the latest; and offers what such windows left.
class Recovery final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the window, as its dialog does. The others must outlive it. While `isBusy`
    // gives true, no copy is made.
    Recovery(Session& session, Document& document, const std::function<bool()>& isBusy,
             QWidget& window);

    // What is kept stays, unless End() came before.
    ~Recovery() override;

    // After changes of the font, or of whether it has any.
    void Update();
    void CountStep();

    // The changes of the font before are settled.
    void BeginFont();

    // The window closes, and nothing is to be kept.
    void End();

    // Asks what becomes of the fonts that other windows left. Where there are none, that is told if
    // the user wants to know.
    void Offer(bool tellsNone);

    // Milliseconds between copies.
    void SetInterval(int interval) { interval_ = interval; }

Q_SIGNALS:
    void Kept();
    void Failed(const QString& text); // once until it works again

private:
    void Start();
    void Keep();
    void Finish();
    void Drop();
    void DiscardSlot();
    void WaitForThread();
    void Restore(std::unique_ptr<RecoverySlot> slot);

    Session& session_;
    Document& document_;
    std::function<bool()> isBusy_;
    QWidget& window_;
    QTimer timer_;
    int interval_;
    int steps_ = 0;                   // since the last copy
    std::unique_ptr<QThread> thread_; // has the slot as long as it runs
    std::unique_ptr<RecoverySlot> slot_;
    QString failure_;         // of the thread
    bool isObsolete_ = false; // what the thread is writing
    bool hasTold_ = false;
};

} // namespace Glyphor
