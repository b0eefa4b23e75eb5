#pragma once

#include "app/file_system.h"
#include "ui/document/font_copy.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace Glyphor {

class FileLock;

// What is kept of a session with unsaved changes, beside the font itself.
struct KeptSession
{
    QString path;
    std::optional<FileStamp> stamp; // see Session
    QStringList log;                // of the font's history
    QString fontName;
    QDateTime time;
};

// The place of one window in the folder where unsaved work is kept: a lock, which the window holds
// as long as it lives, and a font as a SIF file with what such a file does not keep beside it. It
// may be used on any thread, by one at a time.
class RecoverySlot
{
public:
    ~RecoverySlot();
    RecoverySlot(const RecoverySlot&) = delete;
    RecoverySlot& operator=(const RecoverySlot&) = delete;

    // Of the current user.
    [[nodiscard]] static QString DefaultFolder();

    // A slot of one's own; null where the folder can't be written to.
    [[nodiscard]] static std::unique_ptr<RecoverySlot> Create(const QString& folder);

    // Those with a font in them that no window holds any more; they are held from now on.
    [[nodiscard]] static std::vector<std::unique_ptr<RecoverySlot>>
    Abandoned(const QString& folder);

    // Takes the place of what was kept before. Empty, or why it failed: then the copy before stays.
    QString Keep(const FontCopy& font, const KeptSession& session);

    // What was kept last.
    [[nodiscard]] const KeptSession& Session() const { return session_; }

    // The font that was kept last. Throws a CriticalException where it can't be read.
    [[nodiscard]] std::unique_ptr<Font> ReadFont() const;

    // Leaves nothing in the folder.
    void Discard();

private:
    RecoverySlot(const QString& folder, const QString& id, std::unique_ptr<FileLock> lock);

    [[nodiscard]] QStringList Files(const QString& pattern) const;
    [[nodiscard]] QString PathOf(int number, QLatin1StringView suffix) const;
    [[nodiscard]] bool Recall();
    void RemoveCopies(int except) const;

    QString folder_;
    QString id_;
    std::unique_ptr<FileLock> lock_;
    int number_ = 0; // of the copy
    KeptSession session_;
};

} // namespace Glyphor
