#pragma once

#include "app/file.h"
#include "files/c_file_text.h"
#include "model/font.h"

#include <memory>
#include <vector>

namespace Glyphor {

// By how many pixels the second of two characters stands closer (negative) or further apart.
struct KerningEntry
{
    quint16 left;
    quint16 right;
    qint32 distance;
};

// The pairs of enabled characters: by left code, and for each in the order of its own list.
[[nodiscard]] std::vector<KerningEntry> EnabledKerning(const Font& font);

// A file that holds the kerning pairs of a font.
class KerningFile : public File
{
public:
    using File::File;

    // Throws a CriticalException where the file can't be written.
    virtual void Write(const std::vector<KerningEntry>& pairs, const Font& font) = 0;
};

// An array of pairs as C source or, by the suffix of the file's name, as a C header.
class KerningFileC final : public KerningFile
{
public:
    KerningFileC(const QString& path, const CFileOptions& options);

    void Write(const std::vector<KerningEntry>& pairs, const Font& font) override;

private:
    CFileOptions options_;
};

// A kind that is known by name only: its files are empty.
class KerningFileBinary final : public KerningFile
{
public:
    using KerningFile::KerningFile;

    void Write(const std::vector<KerningEntry>&, const Font&) override { Replace(QByteArray()); }
};

// The kind that the name tells, in any letter case: C by one of its suffixes, else ".kern"; null
// for any other name.
[[nodiscard]] std::unique_ptr<KerningFile> MakeKerningFile(const QString& path,
                                                           const CFileOptions& options);

} // namespace Glyphor
