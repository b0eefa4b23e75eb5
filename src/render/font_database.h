#pragma once

#include "render/font_family.h"

#include <QThread>

#include <functional>
#include <memory>

namespace Glyphor {

// The families of the scalable fonts in the font directories, in ascending order of their names.
class FontDatabase
{
public:
    // The process-wide one, empty until one was built. It stays as it is and is replaced as a
    // whole, so any thread may ask for it and keep it.
    static std::shared_ptr<const FontDatabase> Current();
    static void SetCurrent(std::shared_ptr<const FontDatabase> database);

    // Indexes the font files of the directories anew. `counted` hears the number of files, `done`
    // after each how many are done. False where `done` asked to stop by returning false.
    bool Build(const QStringList& directories, const std::function<void(int)>& counted,
               const std::function<bool(int)>& done);

    [[nodiscard]] const FontFamilies& Families() const { return families_; }

    // Null where no family has just this name.
    [[nodiscard]] const FontFamily* Find(const QString& name) const;

private:
    void AddFile(const QString& path, FileType type, FontLibrary& library);
    void Add(std::unique_ptr<FontFamily> family);

    FontFamilies families_;
};

// The directories to index: the system's with those below them, and the user's own.
[[nodiscard]] QStringList FontSearchList(const QStringList& additional, bool recursively);

// The directories in order, each followed by those below it if asked for. Ten directories at most
// are entered from others for the whole list.
[[nodiscard]] QStringList ExpandDirectories(const QStringList& directories, bool recursively);

// Rebuilds the process-wide database in the background, from the system's directories and further
// ones. Where it is interrupted the database stays as it was.
class FontDatabaseThread : public QThread
{
    Q_OBJECT

public:
    FontDatabaseThread(const QStringList& additional, bool recursively, QObject* parent = nullptr);

Q_SIGNALS:
    void initFileCount(int count);
    void fileDone(int done);
    void hasFinished();

protected:
    void run() override;

private:
    QStringList additionalDirectories_;
    bool recursively_;
};

} // namespace Glyphor
