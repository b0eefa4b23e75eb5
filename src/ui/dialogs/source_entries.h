#pragma once

#include "actions/action_open_font.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace Glyphor {

class FontSizeBox;

// Asks for a file that gives characters to a font, which ones, and how high they are.
class SourceDialog final : public QDialog
{
    Q_OBJECT

public:
    SourceDialog(const FontSource& source, QWidget* parent);

    // Throws a CriticalException where the mapping is none.
    [[nodiscard]] FontSource Source() const;

    void done(int result) override;

private:
    void Browse();
    void EnableOk();

    QLineEdit* path_;
    QLineEdit* map_;
    QCheckBox* hasSize_;
    FontSizeBox* size_;
    QPushButton* ok_ = nullptr;
};

// Chooses where the characters of a font come from and where they go: the charmap of the face, the
// mapping of its codes, and other files that give characters.
class SourceEntries final : public QWidget
{
    Q_OBJECT

public:
    explicit SourceEntries(QWidget* parent = nullptr);

    // Names of charmaps; hidden where there is nothing to choose.
    void ShowCharmaps(const QStringList& names, bool isChoice);

    // Charmap, mapping and sources.
    void Load(const ActionOpenFontArgs& args);

    // Throws a CriticalException where the mapping is none.
    void ApplyTo(ActionOpenFontArgs& args) const;

    // As it was typed.
    [[nodiscard]] QString MapText() const;

    [[nodiscard]] const std::vector<FontSource>& Sources() const { return sources_; }

Q_SIGNALS:
    void Changed();

private:
    [[nodiscard]] QWidget* MakeButtons();
    [[nodiscard]] int Row() const;
    void ShowSources(int current);
    void Edit(int row); // the one behind the last is new
    void Remove();

    QFormLayout* form_;
    QComboBox* charmap_;
    QLineEdit* map_;
    QTreeWidget* list_;
    QPushButton* edit_ = nullptr;
    QPushButton* remove_ = nullptr;
    std::vector<FontSource> sources_;
};

// Sources as dialogs remember them; what can't be read is left out.
[[nodiscard]] QStringList DataOf(const std::vector<FontSource>& sources);
[[nodiscard]] std::vector<FontSource> SourcesOf(const QStringList& data);

} // namespace Glyphor
