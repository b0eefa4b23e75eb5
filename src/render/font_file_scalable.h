#pragma once

#include "render/font_file_ft.h"
#include "render/glyph_source.h"
#include "render/picture_glyph.h"

#include <QStringList>

namespace Glyphor {

class GlyphOutlines;

// What there is to choose of a face.
struct FaceTraits
{
    std::vector<FaceAxis> axes;
    QStringList charmaps;          // "0: Mac Roman"
    bool hasOtherCharmaps = false; // than those of Unicode
    CodeSet codes;                 // that it has glyphs for, up to U+FFFF
};

// A scalable font file, rendered at one size into a font of one format. Read only.
class FontFileScalable : public FontFileFT
{
public:
    // Empty where the face could be opened.
    [[nodiscard]] QString OpenFault() const { return face_.OpenFault(); }

    // Nothing where the face could not be opened.
    [[nodiscard]] FaceTraits Traits() const;

    // Of the face at the size it is rendered at, in pixels. Throws as Read() does.
    [[nodiscard]] int EmSize();

    // Takes characters of another source as well, sized and planned for a font of this format.
    void AddSource(GlyphSource source) { others_.push_back(std::move(source)); }
    void AddPicture(PictureGlyph picture) { pictures_.push_back(std::move(picture)); }

    // The face as a source for another font: what the map of the options names, of which the
    // mappings that fill gaps give only what the filter has. Throws as Read() does.
    [[nodiscard]] GlyphSource Source();

    // What the file's own characters are rendered from. Throws as Read() does.
    [[nodiscard]] std::unique_ptr<GlyphOutlines> Outlines();

    // How many face indices the file takes: 0 up to one less than this.
    [[nodiscard]] virtual int FaceCount() const = 0;

    // The face's characters as a font; one without characters where the face could not be opened.
    // Throws a CriticalException where the face does not have what the options ask for.
    std::unique_ptr<Font> Read() override;

protected:
    FontFileScalable(const QString& path, const RenderOptions& options);

    // Takes the face that is rendered.
    void UseFace(const FreeTypeFace& face) { face_ = face; }

    [[nodiscard]] FreeTypeFace& Face() { return face_; }
    [[nodiscard]] const FreeTypeFace& Face() const { return face_; }

private:
    void SetUp();
    void SetMetrics(Font& font) const;
    [[nodiscard]] GlyphSource PlanOwn(bool warnsOfUnused) const;
    void RenderAll(Font& font, GlyphSource own);
    void RefuseUselessHeight(const GlyphSource& own) const;
    void WarnOfMissingSize() const;
    [[nodiscard]] QString FontName() const;

    FreeTypeFace face_;
    RenderOptions options_;
    std::vector<GlyphSource> others_;
    std::vector<PictureGlyph> pictures_;
};

// A single face, a member of a collection by its index, or a named instance of a multi-master face,
// where index 0 is the default instance.
class FontFileTTF : public FontFileScalable
{
public:
    FontFileTTF(const QString& path, const RenderOptions& options);

    [[nodiscard]] int FaceCount() const override { return faceCount_; }

private:
    int faceCount_ = 0;
};

// A TrueType collection; the face index selects the member.
class FontFileTTC final : public FontFileTTF
{
public:
    FontFileTTC(const QString& path, const RenderOptions& options);

    [[nodiscard]] int FaceCount() const override { return faceCount_; }

    // The family and the style of each face, in the order of their indices.
    [[nodiscard]] QStringList FaceNames() const;

private:
    int faceCount_;
};

// The file object of the kind that the name tells.
[[nodiscard]] std::unique_ptr<FontFileScalable> MakeScalableFontFile(const QString& path,
                                                                     const RenderOptions& options);

// Of a face or named instance of the file; nothing where it can't be opened.
[[nodiscard]] FaceTraits TraitsOf(const QString& path, int faceIndex);

// The faces or named instances of a file by name, in the order of their indices; empty where a name
// can't be read. Nothing where the file can't be opened.
[[nodiscard]] QStringList FaceNames(const QString& path);

} // namespace Glyphor
