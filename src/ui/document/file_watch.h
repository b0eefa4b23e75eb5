#pragma once

#include "app/file_system.h"

#include <QObject>

#include <optional>

class QWidget;

namespace Glyphor {

class Session;

// Notices that somebody else wrote or removed the file of the font, and asks what is to be done.
class FileWatch final : public QObject
{
    Q_OBJECT

public:
    enum class Saving { Here, Elsewhere, Nowhere };

    // It belongs to the window, as its questions do. The session must outlive it.
    FileWatch(Session& session, QWidget& window);

    // Before the font is saved to its file.
    [[nodiscard]] Saving AskWhereToSave() const;

    // When the user comes back to the window. Each change is told once.
    void Check();

Q_SIGNALS:
    void ReloadWanted();
    void Noticed(const QString& text); // the font counts as changed now

private:
    [[nodiscard]] bool AskToReload() const;

    Session& session_;
    QWidget& window_;
    std::optional<FileStamp> known_; // of the session
    std::optional<FileStamp> told_;  // what the user knows
};

} // namespace Glyphor
