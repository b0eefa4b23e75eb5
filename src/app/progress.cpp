#include "app/progress.h"

#include "app/user_interface.h"

#include <algorithm>

namespace Glyphor {

Progress::Progress(const QString& text, int maximum) : text_(text), maximum_(std::max(1, maximum))
{
    Report();
}

Progress::~Progress()
{
    CurrentInterface().ProgressFinished();
}

void Progress::SetValue(int value)
{
    value_ = std::min(value, maximum_);
    if (value_ >= nextReport_ && !Report())
        throw WorkStopped();
}

void Progress::LookedAt()
{
    constexpr int worthATurn = 16;
    if (++lookedAt_ >= worthATurn && !Report())
        throw WorkStopped();
}

bool Progress::Report()
{
    lookedAt_ = 0;
    nextReport_ = value_ + std::max(1, maximum_ / 100);
    return CurrentInterface().ProgressChanged(text_, value_, maximum_);
}

} // namespace Glyphor
