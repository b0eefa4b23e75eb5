#pragma once

#include "model/char_bitmap.h"
#include "model/code_range.h"
#include "model/code_set.h"

#include <QString>

#include <array>
#include <memory>
#include <vector>

namespace Glyphor {

// How much closer (or further apart) a character and the one with this code stand.
struct KerningPair
{
    quint16 right;
    qint32 distance; // pixels

    bool operator==(const KerningPair&) const = default;
};

// What firmware calls a character that was taken from somewhere, and what that was.
struct CharacterLabel
{
    QString name;   // empty for none
    QString origin; // of the font's file: "U+F02D1 heart"; or of a picture: "heart.png"

    bool operator==(const CharacterLabel&) const = default;
};

// One character of a font.
struct Character
{
    explicit Character(const FontMetrics& font);

    CharInfo info;
    std::unique_ptr<CharBitmap> bitmap;
    std::vector<KerningPair> kerning;
    std::shared_ptr<const CharacterLabel> label; // of most characters null; in no file of a font

    // Whether all of it is the same: metrics, pixels, kerning and label.
    [[nodiscard]] bool operator==(const Character& other) const;
};

// A copy for the font of the metrics, which must have the same format. A character refers to the
// metrics of its font, so that it can't move to another one.
[[nodiscard]] std::unique_ptr<Character> CopyOf(const Character& character,
                                                const FontMetrics& font);

// The maximal runs of consecutive codes of a set, in ascending order.
[[nodiscard]] std::vector<CodeRange> RunsOf(const CodeSet& codes);

// One bitmap font: its metrics, its characters by code, and the codes that are enabled. Only
// characters that exist and are enabled are saved.
class Font
{
public:
    enum class AddResult { Added, Exists, DoesNotFit };

    Font(FontFormat format, EncodingType encoding);
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    [[nodiscard]] const FontMetrics& Metrics() const { return metrics_; }
    void SetHeight(quint8 height); // and the line distance, which equals it

    // The rows come and go at the bottom, in the characters of legacy formats too; the line
    // distance changes as much.
    void ChangeHeight(quint8 height);

    void SetBaseline(quint8 baseline) { metrics_.baseline = baseline; }
    void SetReferenceHeights(quint8 lowercase, quint8 capital);
    void SetMaxWidth(quint8 width) { metrics_.maxWidth = width; }

    [[nodiscard]] const QString& Name() const { return name_; }
    void SetName(const QString& name) { name_ = name; }

    // Whether the source face has kerning.
    [[nodiscard]] bool HasKerning() const { return hasKerning_; }
    void SetHasKerning(bool hasKerning) { hasKerning_ = hasKerning; }

    // A text for the sibling tool Kestrix that XBF files may carry.
    [[nodiscard]] const QString& ToolText() const { return toolText_; }
    void SetToolText(const QString& text) { toolText_ = text; }

    // Null where the font has no such character.
    [[nodiscard]] Character* FindChar(quint16 code);
    [[nodiscard]] const Character* FindChar(quint16 code) const;

    // Gives a missing code an empty character and enables it; an existing one stays as it is.
    Character& AddChar(quint16 code);

    // Adds and enables a rendered character, unless the code exists or a field can't hold it.
    AddResult AddRendered(quint16 code, const RenderedGlyph& glyph);

    // The same in two steps, of which the first may run on any thread while the metrics stay; it
    // gives null where a field can't hold the glyph.
    [[nodiscard]] std::unique_ptr<Character> MakeRendered(const RenderedGlyph& glyph) const;
    AddResult AddMade(quint16 code, std::unique_ptr<Character> character);

    // Gives the code an enabled character with its packed bytes, all planes one behind the other,
    // in the place of one that exists. The metrics must fit and the bytes have the size they ask
    // for.
    Character& PutChar(quint16 code, const CharMetrics& metrics, std::span<const uchar> bytes);

    // Adds and enables a character with the metrics and pixels of another one of this font, unless
    // the code exists.
    AddResult AddLike(quint16 code, const Character& same);

    // Takes a character out of the font, or gives it one that was taken out of it. Its enabled bit
    // stays as it is.
    std::unique_ptr<Character> RemoveChar(quint16 code);
    void InsertChar(quint16 code, std::unique_ptr<Character> character);

    // True for an enabled code that has a character.
    [[nodiscard]] bool IsEnabled(quint16 code) const;

    // Enabling gives every missing code of the range an empty character.
    void SetEnabled(quint16 first, quint16 last, bool state);

    // Sets the bits alone: it creates no characters.
    void SetEnabledCodes(const CodeSet& codes) { enabled_ = codes; }

    [[nodiscard]] const CodeSet& EnabledCodes() const { return enabled_; }
    [[nodiscard]] const CodeSet& ExistingCodes() const { return existing_; }

    // Codes whose characters were too large for the font when it was made.
    [[nodiscard]] const CodeSet& LeftOutCodes() const { return leftOut_; }
    void LeaveOut(quint16 code) { leftOut_.Set(code, true); }

    // The enabled codes that have a character.
    [[nodiscard]] CodeSet SavedCodes() const;

    [[nodiscard]] bool HasEnabledChars() const { return !SavedCodes().IsEmpty(); }

    // Calls visit(code, character) for the enabled characters in ascending order.
    template <typename Visit>
    void ForEachEnabled(Visit visit) const
    {
        for (const quint16 code : SavedCodes())
            visit(code, *FindChar(code));
    }

    // The enabled characters as maximal runs of consecutive codes, in ascending order.
    [[nodiscard]] std::vector<CodeRange> EnabledRuns() const { return RunsOf(SavedCodes()); }

    // Bytes of one pixel row of the character in a file, all planes together.
    [[nodiscard]] int CharDataWidth(const Character& character) const;

    // Rows of the whole font, which legacy characters gain or lose in their pixels. Refused,
    // without a change, where the height or an offset would leave its range or legacy characters
    // would become empty; the baseline wraps.
    //
    // A character at the largest offset can't move down: it grows by an empty row above instead.
    // `grown` gets the codes of those that did, for the undo.
    bool InsertRowTop(CodeSet* grown = nullptr);
    bool UndoInsertRowTop(const CodeSet& grown);
    bool InsertRowBottom();
    bool DeleteRowTop();
    bool DeleteRowBottom();

    // How many rows can come (or go) at the top before an offset leaves its range.
    [[nodiscard]] int TopRowRoom(bool insert) const;

private:
    static constexpr std::size_t PageSize = 256;
    using Page = std::array<std::unique_ptr<Character>, PageSize>;

    enum class RowEdge { Top, Bottom };

    std::unique_ptr<Character>& Place(quint16 code);
    Character& Create(quint16 code);
    bool EditRow(RowEdge edge, int change, void (CharBitmap::*legacyEdit)());
    void MoveDown(CodeSet& grown);
    template <typename HasRowAbove>
    void MoveUp(HasRowAbove hasRowAbove);
    template <typename Edit>
    void ForEachChar(Edit edit) const;

    FontMetrics metrics_;
    QString name_;
    bool hasKerning_ = false;
    QString toolText_;
    std::array<std::unique_ptr<Page>, PageSize> pages_;
    CodeSet existing_;
    CodeSet enabled_;
    CodeSet leftOut_;
};

} // namespace Glyphor
