#pragma once

#include "render/free_type_face.h"
#include "render/glyph_collector.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Glyphor {

// A glyph that becomes a character of a font.
struct PlannedGlyph
{
    char32_t faceCode;
    quint16 code; // of the font, in its encoding
    FT_UInt glyph;
    bool isMapped = false;
    bool onlyMissing = false; // left out where the font has the character
    bool isLabelled = false;  // firmware can't write it as text
    QString name = {};        // that its mapping gives
};

// The characters that a face, which is set up and sized, gives to a font.
class GlyphSource
{
public:
    // The name is for messages.
    GlyphSource(std::shared_ptr<FreeTypeFace> face, const QString& name)
        : face_(std::move(face)), name_(name)
    {}

    // Every code of the charmap as its low 16 bits, or those that the map names; of these the ones
    // in the filter, if there is one. Filter and targets are codes of Unicode.
    void Plan(EncodingType encoding, const std::optional<CodeSet>& filter);
    void Plan(const CharacterMap& map, EncodingType encoding, const std::optional<CodeSet>& filter);

    // The same, with the filter for those mappings only that fill gaps.
    void PlanGiven(const CharacterMap& map, EncodingType encoding,
                   const std::optional<CodeSet>& filter);

    // Has other glyphs show the characters.
    void ReplaceGlyphs(const std::function<FT_UInt(FT_UInt)>& replacement);

    [[nodiscard]] const std::vector<PlannedGlyph>& Planned() const { return planned_; }
    [[nodiscard]] const QString& Name() const { return name_; }
    [[nodiscard]] const FreeTypeFace& Face() const { return *face_; }

    // How many characters above U+FFFF the charmap has that were not planned; the first and the
    // last of them.
    struct Beyond
    {
        int count = 0;
        char32_t first = 0;
        char32_t last = 0;
    };
    [[nodiscard]] const Beyond& BeyondFonts() const { return beyond_; }

    // The named codes and ranges of which the face lacks characters, as a message each.
    [[nodiscard]] const QStringList& Lacking() const { return lacking_; }

    // Where glyphs stand in the font: moved by rows, or with the source's baseline on that one.
    void MoveDown(int rows) { shift_ += rows; }
    void StandOn(int baseline);

    // How far ink leaves the line of a font.
    [[nodiscard]] InkOverflow Measure(const FontMetrics& font, int threads) const;

    // Renders the glyphs, and adds them in their order. `isWanted` is asked before each, `onAdded`
    // told of each that became a character.
    void Render(GlyphCollector& collector, int threads,
                const std::function<bool(const PlannedGlyph&)>& isWanted,
                const std::function<void(const PlannedGlyph&)>& onAdded) const;

private:
    void PlanMapping(const CodeMapping& mapping, EncodingType encoding,
                     const std::optional<CodeSet>& filter);
    bool RenderGlyph(const FreeTypeFace& face, FT_UInt index, RenderedGlyph& glyph) const;

    // Each that is planned, once.
    [[nodiscard]] std::vector<FT_UInt> Glyphs() const;

    std::shared_ptr<FreeTypeFace> face_;
    QString name_;
    int shift_ = 0;
    std::vector<PlannedGlyph> planned_;
    Beyond beyond_;
    QStringList lacking_;
};

} // namespace Glyphor
