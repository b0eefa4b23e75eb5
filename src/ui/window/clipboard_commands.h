#pragma once

#include "files/copied_characters.h"
#include "model/pixel_block.h"
#include "model/rendered_glyph.h"

#include <QObject>

#include <optional>

class QMimeData;

namespace Glyphor {

class CharBitmapView;
class CharacterTable;
class EditCommands;
class PixelSelection;
class Session;

// Cuts, copies and pastes: the selected pixels where the editor has the focus, else characters.
// Both go to the clipboard as a picture as well, and pictures of others come from there.
class ClipboardCommands final : public QObject
{
    Q_OBJECT

public:
    // The others must outlive it.
    ClipboardCommands(Session& session, CharacterTable& table, CharBitmapView& editor,
                      PixelSelection& selection, EditCommands& edits);

    void Cut(bool isInEditor);
    void Copy(bool isInEditor);
    void Paste(bool isInEditor);

Q_SIGNALS:
    void Done(const QString& text);

private:
    void CopyPixels();
    void CopyCharacters();
    void PastePixels(const PixelBlock& block);
    void PasteCharacters(const CopiedCharacters& copied);
    void PastePicture(const RenderedGlyph& picture);
    [[nodiscard]] int Depth() const;
    [[nodiscard]] bool HasPlaceForPixels() const;

    Session& session_;
    CharacterTable& table_;
    CharBitmapView& editor_;
    PixelSelection& selection_;
    EditCommands& edits_;
};

} // namespace Glyphor
