#pragma once

#include "actions/action.h"
#include "actions/character_swap.h"

#include <optional>

namespace Glyphor {

enum class FontMetric { Height, Baseline, LowercaseHeight, CapitalHeight };

[[nodiscard]] int MetricOf(const Font& font, FontMetric metric);

// The least value that the font can have; the largest one is 255.
[[nodiscard]] int LeastOf(const Font& font, FontMetric metric);

// Gives the font another height, baseline or height of letters. Undone exactly: characters of
// legacy formats get back the rows that a smaller height took.
class ActionSetFontMetrics final : public Action
{
public:
    ActionSetFontMetrics(Session& session, FontMetric metric, int value)
        : Action(session, ActionType::None), metric_(metric), value_(value)
    {}

    // False where the font has the value already, or can't have it.
    bool Execute() override;
    void UndoOnce() override;
    void RedoOnce() override;
    [[nodiscard]] LogEntry Log() const override;

private:
    FontMetric metric_;
    int value_;
    int previous_ = 0;
    std::optional<CharacterSwap> whole_; // the characters before their last rows were cut
};

// Gives the font another name.
class ActionSetFontName final : public Action
{
public:
    ActionSetFontName(Session& session, const QString& name)
        : Action(session, ActionType::None), name_(name)
    {}

    // False where the font has the name already, or for none.
    bool Execute() override;
    void UndoOnce() override { RedoOnce(); }
    void RedoOnce() override;
    [[nodiscard]] LogEntry Log() const override;

private:
    QString name_; // that the font gets next, by redo or undo
    QString told_;
};

} // namespace Glyphor
