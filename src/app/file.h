#pragma once

#include <QFile>

#include <functional>

namespace Glyphor {

// A file on disk, known by the name that the user gave, whatever bytes it has.
class File : public QFile
{
public:
    // Takes the next bytes of the contents.
    using Sink = std::function<void(QByteArrayView)>;

    explicit File(const QString& path) : QFile(path), path_(path) {}

    // The toolkit forgets the name of a file that it did not open itself.
    [[nodiscard]] QString fileName() const override { return path_; }

    using QFile::open;

    bool open(OpenMode mode) override;

    // The whole contents. Throws a CriticalException where they can't be read or are larger than
    // any font.
    [[nodiscard]] QByteArray Contents();

    // Tells the system that the open file won't be read again soon, as it is about to be replaced:
    // that is faster where none of it is in memory.
    void ForgetContents() const;

    // Puts the contents in the file's place, as a whole or not at all: on any error the old file
    // stays and a CriticalException names the file and the reason. Follows symbolic links, keeps
    // permissions and, where it may, the owner; warns where hard links keep the old contents.
    // Writes to devices and pipes directly.
    void Replace(const QByteArray& contents);

    // The same for contents that are composed piece by piece.
    void Replace(const std::function<void(const Sink&)>& compose);

private:
    bool OpenByBytes(OpenMode mode);
    void WriteDirectly(const std::function<void(const Sink&)>& compose);
    [[noreturn]] void Fail(const QString& reason) const;

    QString path_;
};

} // namespace Glyphor
