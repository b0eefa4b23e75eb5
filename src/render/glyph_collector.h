#pragma once

#include "model/font.h"
#include "model/glyph_conversion.h"

#include <QStringList>

#include <vector>

namespace Glyphor {

// Of the glyph in a line of the font.
[[nodiscard]] InkOverflow OverflowOf(const RenderedGlyph& glyph, const FontMetrics& font);

// True for glyphs that no character can be, not even an empty one: they neither show nor move
// anything.
[[nodiscard]] bool IsNothing(const RenderedGlyph& glyph);

// Puts rendered glyphs of one source into a font, and tells afterwards which did not come in whole.
class GlyphCollector
{
public:
    explicit GlyphCollector(Font& font) : font_(font) {}

    // What leaves the line is told of cells, which cut it, and of sources that are named.
    void NameSource(const QString& name) { source_ = name; }

    // A glyph that is ready to become a character.
    struct Prepared
    {
        bool isNothing = true;
        std::unique_ptr<Character> character; // null where none can hold the glyph
        InkOverflow overflow = {};
        bool isLeftOfOrigin = false;
    };

    // Safe to call from any thread while the metrics of the font stay.
    [[nodiscard]] Prepared Prepare(const RenderedGlyph& glyph) const;

    // Glyphs that are nothing are no characters, and those that no character can hold are
    // remembered for the warning. True if the font has a new one.
    bool Add(quint16 code, Prepared glyph);
    bool Add(quint16 code, const RenderedGlyph& glyph) { return Add(code, Prepare(glyph)); }

    // Adds a character with the metrics and pixels of another one that was added here.
    bool AddLike(quint16 code, quint16 same);

    // Tells the user what was left out and what was cut.
    void Warn() const;

private:
    struct Overflow
    {
        InkOverflow rows;
        std::vector<quint16> codes;
    };

    void WarnOfMisfits() const;
    void WarnOfOverflow() const;
    void WarnOfMarks() const;

    Font& font_;
    QString source_;
    std::vector<quint16> misfits_;
    Overflow overflow_;
    std::vector<quint16> marks_; // left of their origin, where cells can't show them
    CodeSet overflowing_;
    CodeSet leftOfOrigin_;
};

// The first ones of a list of codes, "0x0067, 0x006A, ...".
[[nodiscard]] QString FirstCodes(const std::vector<quint16>& codes);

} // namespace Glyphor
