#pragma once

#include "actions/action_open_font.h"
#include "actions/demand.h"
#include "cli/command_line_option.h"
#include "cli/run_messages.h"

#include <QJsonArray>

namespace Glyphor {

class Action;
class Font;

// Which files a run read and wrote, and what it made: for the report, and for build tools.
class RunRecord
{
public:
    RunRecord() = default;
    RunRecord(const QStringList& argumentFiles, const std::vector<OptionOccurrence>& occurrences);

    // An action that was performed.
    void Add(const Action& action);

    // Files that were read or written without one.
    void AddInput(const char* kind, const QString& path) { inputs_.push_back({kind, path}); }
    void AddOutput(const char* kind, const QString& path) { outputs_.push_back({kind, path}); }

    // The font file that was written; empty for none.
    [[nodiscard]] QString SavedFont() const;

    void SetMissing(std::vector<DemandGap> missing);
    [[nodiscard]] const std::vector<DemandGap>& Missing() const { return missing_; }

    // Whether it is known what is missing.
    [[nodiscard]] bool IsChecked() const { return isChecked_; }

    // What -check says at the end.
    [[nodiscard]] QString CheckResult() const;

    // One JSON object with all of this; the manual describes its fields.
    void WriteReport(const Font& font, const QString& path,
                     const std::vector<RunWarning>& warnings);

    // A rule of Make, with an empty one for each file that was read, so that files which are gone
    // break no build. Throws a CriticalException for names that such files can't have.
    void WriteDependencies(const QString& path) const;

private:
    struct UsedFile
    {
        const char* kind;
        QString path;
    };

    [[nodiscard]] QJsonArray MissingList() const;

    std::vector<UsedFile> inputs_;
    std::vector<UsedFile> outputs_;
    QJsonArray optionsInForce_;
    std::vector<DemandGap> missing_;
    bool isChecked_ = false;
    std::optional<ActionOpenFontArgs> rendered_; // of a font that is no bitmap font
};

} // namespace Glyphor
