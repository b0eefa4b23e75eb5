#pragma once

#include "model/rendered_glyph.h"

#include <QByteArrayView>
#include <QString>

namespace Glyphor {

// A PNG file that becomes a character of a font.
struct FontImage
{
    QString path;
    quint16 code = 0; // of Unicode
    QString name;     // what firmware calls it; empty for the name of the file
    int rows = 0;     // of its lower edge above the baseline

    bool operator==(const FontImage&) const = default;
};

// The same as a glyph, with the code that it has in the font.
struct PictureGlyph
{
    FontImage image;
    quint16 code = 0;
    RenderedGlyph glyph; // whose first row is counted from the baseline
};

// The pixels of a PNG file: black is ink, white and transparent pixels are none, and the coverage
// of those between is their darkness. With a threshold (1 to 255) pixels of so much coverage are
// ink, and others none. The lower edge stands on row 0, and the cursor goes one pixel further than
// the picture is wide. Throws a CriticalException that names the file where the bytes are no such
// picture of up to 255 x 255 pixels.
[[nodiscard]] RenderedGlyph GlyphOfPng(QByteArrayView png, const QString& path, int threshold);

// Of a file that exists and may be read.
[[nodiscard]] RenderedGlyph ReadPicture(const QString& path, int threshold);

// True where any pixel has ink.
[[nodiscard]] bool HasInk(const RenderedGlyph& glyph);

} // namespace Glyphor
