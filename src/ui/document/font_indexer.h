#pragma once

#include <QObject>

namespace Glyphor {

class FontDatabaseThread;

// Indexes the fonts of the font directories in the background, one time after the other.
class FontIndexer final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Stops, and waits for the end.
    ~FontIndexer() override;

    [[nodiscard]] bool IsIndexing() const { return thread_ != nullptr; }

    // True where fonts are indexed, or are being.
    [[nodiscard]] bool HasBegun() const;

    // Indexes with the directories that are set now, anew where it is at it.
    void Start();
    void Stop();

Q_SIGNALS:
    void Counted(int files);
    void FileDone(int done);
    void Ended();   // whether or not it was stopped
    void Indexed(); // for good: there is nothing else under way

private:
    void End();

    FontDatabaseThread* thread_ = nullptr;
    bool startsAgain_ = false; // once the thread has ended
};

} // namespace Glyphor
