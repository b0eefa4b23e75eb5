#pragma once

#include "actions/demand.h"
#include "cli/run_options.h"
#include "proof/proof_layout.h"

#include <memory>

namespace Glyphor {

class Session;

// What -prooftext, -compare and -proof of one run share.
class RunProof
{
public:
    void ReadText(const QString& path);

    // Compares the font with that of a file, which scalable fonts are rendered for as the font at
    // work is. The lines to be printed.
    [[nodiscard]] QString Compare(const Session& session, const QString& path,
                                  const RunOptions& options);

    [[nodiscard]] bool FoundDifferences() const { return foundDifferences_; }

    // Writes the proof of the font, as it is in its file where the run saved one. The files that it
    // took.
    [[nodiscard]] QStringList Write(const Session& session, const QString& savedPath,
                                    const std::vector<DemandGap>& missing,
                                    const QString& path) const;

private:
    std::vector<SampleText> texts_; // instead of the built-in ones
    std::unique_ptr<Font> other_;
    QString otherPath_;
    bool comparesNames_ = false;
    bool foundDifferences_ = false;
};

} // namespace Glyphor
