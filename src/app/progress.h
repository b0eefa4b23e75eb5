#pragma once

#include <QString>

namespace Glyphor {

// Reports one piece of long work to the current interface for as long as it lives. Cheap enough to
// advance once per character: the interface hears of every full percent only.
class Progress
{
public:
    Progress(const QString& text, int maximum);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void Advance() { SetValue(value_ + 1); }
    void SetValue(int value);

private:
    void Report();

    QString text_;
    int maximum_;
    int value_ = 0;
    int nextReport_ = 0;
};

} // namespace Glyphor
