#pragma once

#include "render/glyph_source.h"
#include "render/picture_glyph.h"

#include <map>

namespace Glyphor {

// Makes one font of the characters of several sources, all on the baseline of the font.
class FontAssembly
{
public:
    // The font has its metrics, and may have characters, which are those of the named file.
    // Many glyphs are rendered by so many threads, with 0 by as many as there are cores.
    FontAssembly(Font& font, const QString& name, int threads);

    // The first source of a font that is rendered has the font's own baseline, any other is put on
    // it. What leaves the line is told of the others.
    void AddOwn(GlyphSource source);
    void Add(GlyphSource source);
    void Add(PictureGlyph picture);

    // Makes the line so high that all ink lies in it. Throws a CriticalException where that is
    // higher than a font can be.
    void Fit();

    // Renders all of them; `onOwn` is told of each character that came of the font's own source.
    // Throws a CriticalException where two give the same character.
    void Render(const std::function<void(const PlannedGlyph&)>& onOwn);

private:
    struct Part
    {
        GlyphSource source;
        bool isOwn;
    };

    void RenderPart(const Part& part, const std::function<void(const PlannedGlyph&)>& onOwn);
    void RenderPicture(const PictureGlyph& picture);
    void SetLabel(const PlannedGlyph& glyph, const FreeTypeFace& face);
    [[nodiscard]] QString GiverOf(quint16 code) const;
    [[noreturn]] void RefuseSecond(const PlannedGlyph& glyph, const QString& second) const;

    Font& font_;
    QString name_;
    int threads_;
    std::vector<Part> parts_;
    std::vector<PictureGlyph> pictures_;
    std::map<quint16, QString> given_; // by sources other than the first
};

// Tells of codes above U+FFFF that the source has and fonts can't have, and of mapped ones that it
// does not have.
void TellOfCodes(const GlyphSource& source, bool tellsBeyond);

} // namespace Glyphor
