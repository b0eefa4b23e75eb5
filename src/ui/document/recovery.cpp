#include "ui/document/recovery.h"

#include "actions/action_restore_font.h"
#include "actions/session.h"
#include "app/user_interface.h"
#include "ui/dialogs/recovery_dialog.h"
#include "ui/document/document.h"
#include "ui/document/recovery_slot.h"
#include "ui/support/guarded.h"

#include <QThread>

#include <cerrno>
#include <new>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int DefaultInterval = 30'000; // milliseconds
constexpr int RetryInterval = 500;
constexpr int MostSteps = 50; // without a copy

// The log of a font on which thousands of characters were edited at once takes longer than its
// copy.
QStringList KeptLog(const ActionStack& history)
{
    constexpr qsizetype most = 20'000;
    QStringList lines = history.LogLines(most);
    if (lines.size() > most) {
        lines.resize(most);
        lines.append(u"[Font]: The log of what followed was lost with the window."_s);
    }
    return lines;
}

} // namespace

Recovery::Recovery(Session& session, Document& document, const std::function<bool()>& isBusy,
                   QWidget& window)
    : QObject(&window),
      session_(session),
      document_(document),
      isBusy_(isBusy),
      window_(window),
      interval_(DefaultInterval)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Recovery::Start);
}

Recovery::~Recovery()
{
    WaitForThread();
}

void Recovery::Update()
{
    if (!session_.IsModified())
        Drop();
    else if (!timer_.isActive())
        timer_.start(interval_);
}

// Copies are made between events, when nothing is half done.
void Recovery::CountStep()
{
    if (++steps_ >= MostSteps)
        timer_.start(0);
}

void Recovery::BeginFont()
{
    Drop();
    Update();
}

void Recovery::End()
{
    WaitForThread();
    Drop();
}

void Recovery::Start()
{
    if (!session_.IsModified())
        return;
    if (thread_ != nullptr || isBusy_()) {
        timer_.start(RetryInterval);
        return;
    }
    steps_ = 0;
    try {
        Keep();
    } catch (const std::bad_alloc&) {
        timer_.start(interval_); // the work is of more use than its copy
    }
}

void Recovery::Keep()
{
    const Font& font = *session_.CurrentFont();
    const auto copy = std::make_shared<const FontCopy>(font);
    const KeptSession kept = {.path = session_.Path().isEmpty() ? QString()
                                                                : AbsolutePathOf(session_.Path()),
                              .stamp = session_.Stamp(),
                              .log = KeptLog(session_.Stack()),
                              .fontName = font.Name(),
                              .time = QDateTime::currentDateTimeUtc()};
    thread_.reset(QThread::create([this, copy, kept] {
        try {
            if (slot_ == nullptr)
                slot_ = RecoverySlot::Create(RecoverySlot::DefaultFolder());
            failure_ = slot_ == nullptr ? qt_error_string() : slot_->Keep(*copy, kept);
        } catch (const std::bad_alloc&) {
            failure_ = qt_error_string(ENOMEM);
        }
    }));
    connect(thread_.get(), &QThread::finished, this, &Recovery::Finish);
    thread_->start(QThread::LowPriority);
}

void Recovery::Finish()
{
    if (thread_ == nullptr || !thread_->isFinished())
        return; // somebody has waited for it
    WaitForThread();
    if (failure_.isEmpty())
        Q_EMIT Kept();
    else if (!hasTold_)
        Q_EMIT Failed(tr("Unsaved changes can't be kept for recovery: %1").arg(failure_));
    hasTold_ = !failure_.isEmpty();
    if (hasTold_)
        Update(); // there may be room later
}

void Recovery::WaitForThread()
{
    if (thread_ == nullptr)
        return;
    thread_->wait();
    thread_.reset();
    if (std::exchange(isObsolete_, false))
        DiscardSlot();
}

void Recovery::Drop()
{
    timer_.stop();
    steps_ = 0;
    if (thread_ != nullptr)
        isObsolete_ = true;
    else
        DiscardSlot();
}

// The next copy begins with another one.
void Recovery::DiscardSlot()
{
    if (slot_ != nullptr)
        slot_->Discard();
    slot_.reset();
}

void Recovery::Offer(bool tellsNone)
{
    std::vector<std::unique_ptr<RecoverySlot>> slots =
        RecoverySlot::Abandoned(RecoverySlot::DefaultFolder());
    if (slots.empty()) {
        if (tellsNone)
            CurrentInterface().information(tr("Recover unsaved fonts"),
                                           tr("There are no unsaved fonts."));
        return;
    }
    std::vector<RecoverableFont> fonts;
    fonts.reserve(slots.size());
    for (const auto& slot : slots)
        fonts.push_back({slot->Session().fontName, slot->Session().path, slot->Session().time});
    RecoveryDialog dialog(fonts, &window_);
    connect(&dialog, &RecoveryDialog::DiscardRequested, this,
            [&slots](int index) { slots[std::size_t(index)]->Discard(); });
    if (dialog.exec() == QDialog::Accepted)
        Restore(std::move(slots[std::size_t(dialog.Chosen())]));
}

// The copy is kept on as that of this window.
void Recovery::Restore(std::unique_ptr<RecoverySlot> slot)
{
    if (!document_.AskToSave())
        return;
    const bool isRestored = Guarded([&] {
        const auto action = std::make_shared<ActionRestoreFont>(session_);
        action->Args() = {.font = slot->ReadFont(),
                          .path = slot->Session().path,
                          .stamp = slot->Session().stamp,
                          .log = slot->Session().log};
        action->Run();
    });
    if (!isRestored)
        return;
    WaitForThread();
    Drop();
    slot_ = std::move(slot);
    Update();
}

} // namespace Glyphor
