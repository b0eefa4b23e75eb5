#pragma once

#include "app/dialog_data.h"
#include "model/code_set.h"

#include <QWidget>

#include <optional>

class QButtonGroup;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QStackedWidget;

namespace Glyphor {

// Chooses which characters are generated: all, those of some blocks, of a pattern file or of a
// text.
class CharacterSelection final : public QWidget
{
    Q_OBJECT

public:
    explicit CharacterSelection(QWidget* parent = nullptr);

    void Load(const FontGenerationDialogData& record);
    void Store(FontGenerationDialogData& record) const;

    // Unicode codes; nothing for all characters. Throws a CriticalException where the pattern file
    // can't be read.
    [[nodiscard]] std::optional<CodeSet> Codes() const;

    // What selects the same on the command line; nothing where ranges do.
    [[nodiscard]] std::optional<QStringList> Words() const;

    // True where every single character was asked for.
    [[nodiscard]] bool IsExact() const;

    // Empty where the choice can be used, or what is missing.
    [[nodiscard]] QString Fault() const;

Q_SIGNALS:
    void Changed();

private:
    void AddChoice(CharacterChoice choice, const QString& text, QWidget* page);
    [[nodiscard]] CharacterChoice Choice() const;
    [[nodiscard]] QWidget* MakePatternPage();
    void BrowsePattern();

    QButtonGroup* choices_;
    QStackedWidget* pages_;
    QListWidget* blocks_;
    QLineEdit* patternPath_;
    QPlainTextEdit* text_;
};

} // namespace Glyphor
