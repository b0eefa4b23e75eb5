#pragma once

#include "actions/action_open_font.h"
#include "ui/preview/text_preview.h"

#include <memory>

namespace Glyphor {

class FreeTypeFace;

// A line of text that a face has characters for, in the pixels that it would be rendered to.
class FaceSample final : public TextStrip
{
    Q_OBJECT

public:
    ~FaceSample() override;

    // Renders by the arguments. Nothing is shown where that fails: the making of the font tells
    // why.
    void ShowFace(const FreeTypeFace& face, ActionOpenFontArgs args);
    void ShowNothing();

private:
    std::unique_ptr<Font> font_;
};

} // namespace Glyphor
