#pragma once

#include "render/font_file_ft.h"

#include <QHash>
#include <QStringList>

namespace Glyphor {

// A scalable font file, rendered at one size into a font of one format. Read only.
class FontFileScalable : public FontFileFT
{
public:
    // Empty where the face could be opened.
    [[nodiscard]] QString OpenFault() const { return face_.OpenFault(); }

    // Of the face at the size it is rendered at, in pixels.
    [[nodiscard]] int EmSize() const { return face_.EmSize(); }

    // How many face indices the file takes: 0 up to one less than this.
    [[nodiscard]] virtual int FaceCount() const = 0;

    // The face's characters as a font; one without characters where the face could not be opened.
    std::unique_ptr<Font> Read() override;

protected:
    FontFileScalable(const QString& path, const RenderOptions& options);

    // Takes the face that is rendered and gives it the depth and the size.
    void UseFace(const FreeTypeFace& face);

    [[nodiscard]] FreeTypeFace& Face() { return face_; }
    [[nodiscard]] const FreeTypeFace& Face() const { return face_; }

private:
    void SetMetrics(Font& font) const;
    void RenderCharmap(Font& font);
    void RefuseUselessHeight() const;
    bool AddCharacter(Font& font, quint16 code, FT_UInt glyphIndex);
    void WarnOfMissingSize() const;
    [[nodiscard]] QString FontName() const;

    FreeTypeFace face_;
    RenderOptions options_;
    QHash<FT_UInt, quint16> rendered_; // glyphs, with the first code of each
    RenderedGlyph glyph_;              // keeps its buffer from glyph to glyph
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

// The faces or named instances of a file by name, in the order of their indices; empty where a name
// can't be read. Nothing where the file can't be opened.
[[nodiscard]] QStringList FaceNames(const QString& path);

} // namespace Glyphor
