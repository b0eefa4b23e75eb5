#pragma once

#include "actions/action.h"
#include "app/file_system.h"
#include "model/code_set.h"
#include "model/font.h"
#include "render/picture_glyph.h"
#include "render/render_options.h"

#include <optional>

namespace Glyphor {

class GlyphOutlines;

// A scalable font or a BDF file that gives characters to the font of another file.
struct FontSource
{
    QString path;
    CharacterMap map;
    std::optional<FontSize> size; // that of the font itself where it is missing

    bool operator==(const FontSource&) const = default;
};

struct ActionOpenFontArgs
{
    QString path;

    // What the user said, for fonts that are rendered and for files that do not tell these.
    std::optional<FontFormat> format;
    std::optional<EncodingType> encoding;

    // As the user gave it, whereas the height to render at is in pixels. Of the format and the
    // encoding those above count.
    FontSize size;
    RenderOptions render;
    int dotsPerInch = 0; // of the screen that points are for; 0 without one

    std::vector<FontSource> sources;
    std::vector<FontImage> images;
    int threshold = 0; // of the images; 0 for none

    // Instead of the name that the font has.
    std::optional<QString> name;

    // Where set, only these characters are rendered, or stay enabled.
    std::optional<CodeSet> selection;
};

// Makes a font file, or a rendering of one, the font of the session.
class ActionOpenFont final : public ActionWithArgs<ActionOpenFontArgs>
{
public:
    // The type is CreateFont or OpenFont.
    ActionOpenFont(Session& session, ActionType type) : ActionWithArgs(session, type) {}

    bool Execute() override;
    void UndoOnce() override {}
    void RedoOnce() override;
    [[nodiscard]] LogEntry Log() const override;
    [[nodiscard]] bool IsUndoable() const override { return false; }

private:
    std::unique_ptr<Font> font_; // between Execute and the first step
    std::optional<FileStamp> stamp_;
};

// The font of a file of any kind: read, or rendered as the arguments say. Asks the user for the
// format of a file that does not tell it. Throws a CriticalException on failure, and WorkStopped
// where the user gives up.
[[nodiscard]] std::unique_ptr<Font> ReadFont(const ActionOpenFontArgs& args);

// What the characters of such a font were rendered from; null where that is no scalable font, or
// can't be opened any more.
[[nodiscard]] std::unique_ptr<GlyphOutlines> OutlinesOf(const ActionOpenFontArgs& args);

// The em size in pixels that a scalable font would be rendered at; 0 where it can't be.
[[nodiscard]] int EmSize(const ActionOpenFontArgs& args);

} // namespace Glyphor
