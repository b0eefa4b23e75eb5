#pragma once

#include "actions/action_open_font.h"
#include "app/dialog_data.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QPushButton;

namespace Glyphor {

class CharacterSelection;
class EncodingBox;
class FontSizeBox;
class FormatBox;
class GenerationPreview;
class RenderingEntries;
class SourceEntries;

// Asks how a scalable font is to be rendered, and shows what comes of it. The last entries are
// remembered.
class FontGenerationDialog final : public QDialog
{
    Q_OBJECT

public:
    // Begins with what the arguments say, which is not changed here where it says a format or a
    // selection of characters. The faces are the names of the file's, in the order of their
    // indices.
    FontGenerationDialog(const ActionOpenFontArgs& args, const QStringList& faces, QWidget* parent);
    ~FontGenerationDialog() override;

    // The arguments with what was chosen. Throws a CriticalException where the chosen pattern file
    // can't be read.
    [[nodiscard]] ActionOpenFontArgs Args() const;

    // A line for a shell that makes the same font without a window. Throws as Args() does.
    [[nodiscard]] QString CommandLine() const;

    // The text that characters are taken from; empty where none are.
    [[nodiscard]] QString ChosenText() const;

    void done(int result) override;

    [[nodiscard]] GenerationPreview& Preview() const { return *preview_; }

private:
    void LoadEntries();
    void StoreEntries() const;
    void LoadEntriesOfFile();
    void StoreEntriesOfFile(FontGenerationDialogData& record) const;
    [[nodiscard]] QWidget* MakeEntries();
    [[nodiscard]] QWidget* MakeFontPage();
    void ShowFace();
    void CopyCommandLine();
    void ConnectEntries();
    void ShowEffect();
    void ShowChosenText();

    ActionOpenFontArgs args_;
    FontSizeBox* size_;
    FormatBox* format_;
    EncodingBox* encoding_;
    QComboBox* face_;
    QCheckBox* bold_;
    QCheckBox* italic_;
    CharacterSelection* selection_;
    RenderingEntries* rendering_;
    SourceEntries* sources_;
    GenerationPreview* preview_;
    QPushButton* ok_ = nullptr;
    QPushButton* copy_ = nullptr;
};

} // namespace Glyphor
