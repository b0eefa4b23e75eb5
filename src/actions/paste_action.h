#pragma once

#include "actions/action_replace_chars.h"
#include "files/copied_characters.h"
#include "model/rendered_glyph.h"

#include <memory>

namespace Glyphor {

// Throws a CriticalException unless a character can go from one code to the other.
void CheckTarget(quint16 code, int target, EncodingType encoding);

struct PreparedPaste
{
    std::shared_ptr<ActionReplaceChars> action; // not run yet
    int cut = 0; // characters that lose ink in the cells of a legacy font
};

// Puts the first of the characters at the code, and the others behind it as far as they were from
// the first. Pixels get the depth of the session's font, and characters stand on its baseline.
// Throws a CriticalException where a code can't be had or a character does not fit.
[[nodiscard]] PreparedPaste PreparePaste(Session& session, const CopiedCharacters& copied,
                                         quint16 code);

// The same with a picture, whose lower edge stands on row 0.
[[nodiscard]] PreparedPaste PreparePaste(Session& session, const RenderedGlyph& picture,
                                         quint16 code);

} // namespace Glyphor
