#pragma once

#include "app/dialog_data.h"
#include "model/code_set.h"

#include <QHash>
#include <QWidget>

#include <optional>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

namespace Glyphor {

// Chooses which characters are generated: all, or those of some blocks, of a pattern file and of a
// text together. Tells how many of them the face has.
class CharacterSelection final : public QWidget
{
    Q_OBJECT

public:
    explicit CharacterSelection(QWidget* parent = nullptr);

    void Load(const FontGenerationDialogData& record);
    void Store(FontGenerationDialogData& record) const;

    // Unicode codes that the face has characters for.
    void ShowFace(const CodeSet& codes);

    // Unicode codes; nothing for all characters. Throws a CriticalException where the pattern file
    // can't be read.
    [[nodiscard]] std::optional<CodeSet> Codes() const;

    // What selects the same on the command line; nothing where ranges do.
    [[nodiscard]] std::optional<QStringList> Words() const;

    // Those of which every single one was asked for. Throws as Codes() does.
    [[nodiscard]] CodeSet ExactCodes() const;

    // The text that characters are taken from; empty where none are.
    [[nodiscard]] QString ChosenText() const;

    // Empty where the choice can be used, or what is missing.
    [[nodiscard]] QString Fault() const;

Q_SIGNALS:
    void Changed();

private:
    QCheckBox* AddChoice(CharacterChoice choice, const QString& text, QWidget* part);
    void Choose(CharacterChoice choice, bool isOn);
    [[nodiscard]] bool Has(CharacterChoice choice) const;
    [[nodiscard]] bool HasOnly(CharacterChoice choice) const;
    [[nodiscard]] QWidget* MakeBlocksPart();
    [[nodiscard]] QWidget* MakePatternPart();
    [[nodiscard]] CodeSet BlockCodes() const;
    [[nodiscard]] CodeSet TextCodes() const;
    void BrowsePattern();
    void ShowBlocks();
    void ShowCount();
    void TellChange();

    QGridLayout* buttons_;
    QHash<CharacterChoice, QCheckBox*> choices_;
    QListWidget* blocks_;
    QCheckBox* showsEmpty_; // blocks that the face has nothing of
    QLineEdit* patternPath_;
    QPlainTextEdit* text_;
    QLabel* count_;
    CodeSet face_;
};

} // namespace Glyphor
