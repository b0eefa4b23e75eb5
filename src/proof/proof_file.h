#pragma once

#include "proof/proof_layout.h"

#include <QStringList>

namespace Glyphor {

// True for ".png" and ".pdf", in any letter case.
[[nodiscard]] bool IsProofName(QStringView fileName);

// What a file dialog offers.
[[nodiscard]] QString ProofFileFilter();

// Writes a proof as PDF or PNG, as the name tells, and returns the names of all files that it
// took. A picture that is too tall is continued in others with a number: "a.png", "a-2.png". Throws
// a CriticalException for other names and where a file can't be written.
QStringList WriteProof(const ProofContents& contents, const QString& path);

// The proof of a font as it is, with the built-in texts.
[[nodiscard]] ProofContents ProofOf(const Font& font, const QString& path);

} // namespace Glyphor
