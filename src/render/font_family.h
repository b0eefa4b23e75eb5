#pragma once

#include "files/file_types.h"
#include "render/free_type_face.h"

#include <QStringList>

#include <map>
#include <memory>
#include <vector>

namespace Glyphor {

// The styles of one family of scalable fonts and where they are. A family keeps the styles that it
// took over from another one as they were there, so families of every class can be merged.
class FontFamily
{
public:
    FontFamily(const FontFamily&) = delete;
    FontFamily& operator=(const FontFamily&) = delete;
    virtual ~FontFamily() = default;

    // Opens the style; an empty face where the family has no such style.
    [[nodiscard]] virtual FreeTypeFace Face(const QString& style) const;

    // What -face would be for the style's file; 0 for an unknown style.
    [[nodiscard]] virtual int FaceIndex(const QString& style) const
    {
        return Find(style).faceIndex;
    }

    // By weight, by width, upright before italic.
    [[nodiscard]] virtual QStringList StyleNames() const;

    [[nodiscard]] virtual FaceStyle Style(const QString& style) const { return Find(style).style; }

    [[nodiscard]] const QString& Name() const { return name_; }
    [[nodiscard]] const QList<quint32>& UnicodeRanges() const { return unicodeRanges_; }

    // The file of a style; empty for an unknown one.
    [[nodiscard]] QString Path(const QString& style) const { return Find(style).path; }

    // Takes over the styles that this family does not have yet.
    void AddStyles(const FontFamily& other);

protected:
    // Named after the face and without styles.
    explicit FontFamily(const FreeTypeFace& face);

    void AddStyle(const QString& name, const QString& path, int faceIndex, bool isInstance,
                  const FaceStyle& style);

private:
    struct Entry
    {
        QString path;
        int faceIndex = 0;
        bool isInstance = false; // the index is that of a named instance, not of a face
        FaceStyle style;
    };

    // An empty entry where there is no such style.
    [[nodiscard]] Entry Find(const QString& style) const;

    QString name_;
    QList<quint32> unicodeRanges_;
    std::map<QString, Entry> styles_;
};

// The style of a single file.
class FontFamilyTTF final : public FontFamily
{
public:
    explicit FontFamilyTTF(const FreeTypeFace& face);
};

// The style of one face of a collection.
class FontFamilyTTC final : public FontFamily
{
public:
    FontFamilyTTC(const FreeTypeFace& face, int faceIndex);
};

// The named instances of a multi-master face.
class FontFamilyTTF_MM final : public FontFamily
{
public:
    explicit FontFamilyTTF_MM(const FreeTypeFace& face);
};

using FontFamilies = std::vector<std::unique_ptr<FontFamily>>;

// The families that the faces of a file form, one for each face. Nothing where the file can't be
// read. Two threads need two libraries.
[[nodiscard]] FontFamilies ListFamilies(const QString& path, FileType type, FontLibrary& library);

} // namespace Glyphor
