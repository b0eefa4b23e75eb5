#pragma once

#include "actions/action_open_font.h"

#include <QPainterPath>

#include <optional>

namespace Glyphor {

class GlyphOutlines;

// The outlines of the scalable font that the window's font was made from, where it was made in this
// window. The file is opened when the first one is asked for.
class FontOutlines
{
public:
    FontOutlines();
    ~FontOutlines();

    // How the font was opened or made.
    void SetOrigin(const ActionOpenFontArgs& origin);

    // From the cursor position and the baseline, in pixels of the font. Empty where there is none.
    [[nodiscard]] const QPainterPath& PathOf(quint16 code);

private:
    [[nodiscard]] QPainterPath MakePath(quint16 code) const;

    std::optional<ActionOpenFontArgs> origin_; // until it is opened
    std::unique_ptr<GlyphOutlines> outlines_;
    std::optional<quint16> lastCode_; // that was asked for
    QPainterPath lastPath_;
};

} // namespace Glyphor
