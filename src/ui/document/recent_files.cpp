#include "ui/document/recent_files.h"

#include <algorithm>

namespace Glyphor {

void RecentFiles::Add(const QString& path)
{
    Make(changes_.emplace_back(Kind::Added, path));
}

void RecentFiles::Remove(const QString& path)
{
    Make(changes_.emplace_back(Kind::Removed, path));
}

void RecentFiles::Merge(const QStringList& stored)
{
    files_ = stored;
    for (const Change& change : std::exchange(changes_, {}))
        Make(change);
}

void RecentFiles::Make(const Change& change)
{
    files_.removeAll(change.second);
    if (change.first == Kind::Added)
        files_.prepend(change.second);
    files_.resize(std::min(files_.size(), MaxCount));
}

} // namespace Glyphor
