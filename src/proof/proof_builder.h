#pragma once

#include "model/code_set.h"
#include "proof/proof_layout.h"

namespace Glyphor {

// How far a character reaches from the cursor at the top of its font, in its own pixels.
struct Reach
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] int Width() const { return left + right; }
    [[nodiscard]] int Height() const { return top + bottom; }
    void Include(const Reach& other);
};

[[nodiscard]] Reach ReachOf(const Character& character);

// The bands of a proof while they are made, from top to bottom.
class ProofBuilder
{
public:
    explicit ProofBuilder(const ProofContents& contents);

    [[nodiscard]] ProofLayout Build();

private:
    // A character among others, or a red box in its place.
    struct Placed
    {
        int x = 0;
        const Character* glyph = nullptr;
    };

    // One cell of a table.
    struct Cell
    {
        QStringList labels;               // as many as the others of the row have
        const Character* glyph = nullptr; // null for a red box
    };

    struct CellRow
    {
        std::vector<std::pair<int, Cell>> cells; // with their columns
        Reach reach;
    };

    void AddHead();
    void AddLegend();
    void AddSamples();
    void AddMissing();
    void AddDifferences();
    void AddCharacters();

    void AddHeading(const QString& text, int zoom = 2);
    void AddText(const QString& text, quint8 colour, int zoom = 1);
    void AddGap(int height);

    void AddSample(const SampleText& text);
    void AddSampleLine(std::span<const char32_t> line, bool isKerned, bool needsBlank);
    [[nodiscard]] qsizetype BreakOf(std::span<const char32_t> line) const;
    [[nodiscard]] std::vector<Placed> Place(std::span<const char32_t> line, bool isKerned, int& end,
                                            bool needsBlank = true) const;
    [[nodiscard]] const Character* Find(char32_t character) const;
    void TakeMissing(const SampleText& text);

    [[nodiscard]] bool IsSparse(const CodeSet& codes, int group) const;
    void AddCellRow(const CellRow& row);
    void AddDifferenceRow(std::span<const CharacterDifference> row, int units);
    [[nodiscard]] Reach ReachOf(const CharacterDifference& difference) const;
    [[nodiscard]] int UnitsOf(const Reach& reach) const;
    [[nodiscard]] QStringList LabelsOf(quint16 code) const;

    const ProofContents& contents_;
    const Font& font_;
    ProofLayout layout_;
    int cellWidth_ = 0;
    int columns_ = 16;
    int contentWidth_ = 0;
    int sampleZoom_ = 1;
    std::set<char32_t> missing_;
};

} // namespace Glyphor
