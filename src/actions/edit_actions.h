#pragma once

#include "actions/action.h"
#include "actions/character_swap.h"
#include "model/code_set.h"
#include "model/font.h"

#include <QHash>

#include <map>
#include <memory>
#include <vector>

namespace Glyphor {

struct Edit;

struct ActionCharArgs
{
    quint16 first = 0;
    quint16 last = 0;
    int value = 0; // of edits that have one
};

// Edits the pixels or metrics of every character of a range by an edit of characters, copies them
// to other codes, or toggles each one's enabled bit (33). Codes without a character are skipped.
class ActionChar final : public ActionWithArgs<ActionCharArgs>
{
public:
    // For one character, as an editor edits it.
    ActionChar(Session& session, ActionType type, quint16 code);

    // For a range, which the arguments give.
    ActionChar(Session& session, ActionType type) : ActionWithArgs(session, type) {}

    // Fails where a copy would go to a code that the encoding does not have.
    bool Execute() override;
    void UndoOnce() override;
    void RedoOnce() override;
    [[nodiscard]] CodeSet AffectedCodes() const override;
    [[nodiscard]] LogEntry Log() const override;
    [[nodiscard]] QString Shortfall() const override;

    // Without the steps that every character refused.
    [[nodiscard]] int LoggedSteps() const override;

private:
    [[nodiscard]] int CharCount() const;
    [[nodiscard]] bool IsRefusedByFormat(const Edit& edit) const;
    void PrepareSwap(const Edit& edit);
    void PrepareCopies();

    template <typename Visit>
    void ForEachChar(Visit visit) const;

    // How many steps the character of a code refused. Undo leaves as many out on it, so it never
    // becomes larger than it was. A character that refuses a step refuses all that follow.
    QHash<quint16, int> refused_;

    // Of edits that have no opposite: the characters as they will be, and what they took to that.
    std::unique_ptr<CharacterSwap> swap_;
    int stepsOfSwap_ = 1;

    bool target_ = false; // of the first character's toggle
};

// Inserts or deletes rows of the whole font: types 26 to 29.
class ActionFont final : public Action
{
public:
    ActionFont(Session& session, ActionType type) : Action(session, type) {}

    // Cuts the count where the font's height, or an offset, reaches its limit. False where it
    // stands there already.
    bool Execute() override;
    void UndoOnce() override;
    void RedoOnce() override;
    [[nodiscard]] LogEntry Log() const override { return LogEntry(MessageFor()); }
    [[nodiscard]] QString Shortfall() const override;

private:
    int leftOut_ = 0;            // steps that were asked for
    std::vector<CodeSet> grown_; // by each step at the top: which characters got a row of their own
};

struct ActionPixelIndexArgs
{
    quint16 code = 0;
    int x = 0;
    int y = 0;
    int previousIndex = 0; // for undo
};

// Changes one pixel: types 35 to 37, and one type for each index that a pixel can be set to. In the
// framed format each change computes the frame of the character anew.
class ActionPixelIndex final : public ActionWithArgs<ActionPixelIndexArgs>
{
public:
    ActionPixelIndex(Session& session, ActionType type) : ActionWithArgs(session, type) {}

    // False where there is no character, or where the pixel has the index already.
    bool Execute() override;
    void UndoOnce() override;
    void RedoOnce() override;
    [[nodiscard]] CodeSet AffectedCodes() const override;
    [[nodiscard]] LogEntry Log() const override;

private:
    [[nodiscard]] CharBitmap& Bitmap() const;
    [[nodiscard]] QByteArray FramedBytes() const;

    QByteArray framedBefore_; // both planes; empty in other formats
};

// How actions change which characters are enabled.
class CharStateInterface
{
public:
    CharStateInterface() = default;
    CharStateInterface(const CharStateInterface&) = delete;
    CharStateInterface& operator=(const CharStateInterface&) = delete;
    virtual ~CharStateInterface() = default;

    // Makes the same change to any set of codes.
    virtual void ApplyTo(CodeSet& codes) const = 0;
};

struct ActionCharStateArgs
{
    quint16 first = 0;
    quint16 last = 0;
    CodeSet previousCodes; // that were enabled, for undo
};

// Enables (30), disables (31 a range, 32 all) or toggles (33, all like the first) characters.
class ActionCharState final : public ActionWithArgs<ActionCharStateArgs>, public CharStateInterface
{
public:
    ActionCharState(Session& session, ActionType type);

    // False where no code of the range would change.
    bool Execute() override;
    void UndoOnce() override;
    void RedoOnce() override;
    [[nodiscard]] CodeSet AffectedCodes() const override;
    [[nodiscard]] LogEntry Log() const override;
    void ApplyTo(CodeSet& codes) const override;

private:
    bool target_ = false;
    CodeSet created_; // characters that enabling made
};

// Removes the characters of some codes from the font, and their bits.
class ActionCharDelete final : public Action
{
public:
    ActionCharDelete(Session& session, const CodeSet& codes)
        : Action(session, ActionType::None), codes_(codes)
    {}

    // False where none of the codes has a character.
    bool Execute() override;
    void UndoOnce() override;
    void RedoOnce() override;
    [[nodiscard]] CodeSet AffectedCodes() const override { return codes_; };
    [[nodiscard]] LogEntry Log() const override;

private:
    CodeSet codes_;
    CodeSet previousCodes_; // that were enabled
    std::map<quint16, std::unique_ptr<Character>> removed_;
};

} // namespace Glyphor
