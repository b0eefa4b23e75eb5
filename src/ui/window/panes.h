#pragma once

#include "ui/window/font_outlines.h"

#include <QSplitter>

#include <array>

namespace Glyphor {

class CharBitmapView;
class CharacterTable;
class Font;
class InfoPanel;
class TextPreview;

// The views of the font side by side: the table of characters, and beside it the editor with the
// information, above the sample text.
class Panes final : public QSplitter
{
    Q_OBJECT

public:
    Panes();

    [[nodiscard]] CharacterTable& Table() const { return *table_; }
    [[nodiscard]] CharBitmapView& Editor() const { return *editor_; }
    [[nodiscard]] InfoPanel& Info() const { return *info_; }
    [[nodiscard]] TextPreview& Preview() const { return *preview_; }

    // The splitters inside: of editor and sample, and of editor and information.
    [[nodiscard]] std::array<QSplitter*, 2> SubSplitters() const;

    // Null for no font. Another font is shown from its beginning.
    void ShowFont(const Font* font);

    // After a change of the font, or of its character.
    void ShowChanges();

    // Shows the table's current character in the other views.
    void ShowCurrentCharacter();

    void ShowHexadecimal(bool isOn);

    // In the editor, what stands beside the character in the sample text.
    void ShowNeighbours(bool isOn);

    // In the editor, the outline of the glyph that the character was rendered from, and how the
    // font was opened, which tells that glyph.
    void ShowOutline(bool isOn);
    void SetOrigin(const ActionOpenFontArgs& origin) { outlines_.SetOrigin(origin); }

private:
    CharacterTable* table_;
    CharBitmapView* editor_;
    InfoPanel* info_;
    TextPreview* preview_;
    QSplitter* subSplitter_;
    QSplitter* upperSplitter_;
    const Font* font_ = nullptr;
    FontOutlines outlines_;
    bool showsNeighbours_ = false;
    bool showsOutline_ = false;
};

} // namespace Glyphor
