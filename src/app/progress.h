#pragma once

#include <QString>

#include <exception>

namespace Glyphor {

// The user stopped the work at hand, which there is nothing to say about.
class WorkStopped : public std::exception
{
public:
    [[nodiscard]] const char* what() const noexcept override { return "stopped by the user"; }
};

// Reports one piece of long work to the current interface for as long as it lives. Cheap enough to
// advance once per character: the interface hears of every full percent only.
class Progress
{
public:
    Progress(const QString& text, int maximum);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // These throw WorkStopped where the interface asks for it.
    void Advance() { SetValue(value_ + 1); }
    void SetValue(int value);

    // Something was looked at that the value does not count.
    void LookedAt();

private:
    bool Report();

    QString text_;
    int maximum_;
    int value_ = 0;
    int nextReport_ = 0;
    int lookedAt_ = 0; // since the last report
};

} // namespace Glyphor
