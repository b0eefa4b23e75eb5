#pragma once

#include <QStringList>

#include <utility>
#include <vector>

namespace Glyphor {

// The files that were opened or saved last, in any window. Each window makes its changes to the
// list that is stored by then.
class RecentFiles
{
public:
    static constexpr qsizetype MaxCount = 10;

    [[nodiscard]] const QStringList& List() const { return files_; }

    // A file that is there comes to the front.
    void Add(const QString& path);
    void Remove(const QString& path);

    // Takes the stored list, with the changes since the last time; what List() gives is to be
    // stored then.
    void Merge(const QStringList& stored);

private:
    enum class Kind { Added, Removed };
    using Change = std::pair<Kind, QString>;

    void Make(const Change& change);

    QStringList files_;
    std::vector<Change> changes_;
};

} // namespace Glyphor
