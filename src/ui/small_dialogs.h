#pragma once

#include "actions/action_open_font.h"

#include <QDialog>
#include <QDialogButtonBox>

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QVBoxLayout;

namespace Glyphor {

// Adds the buttons below a dialog and has them close it.
QDialogButtonBox* AddButtons(QDialog& dialog, QVBoxLayout& layout,
                             QDialogButtonBox::StandardButtons kinds = QDialogButtonBox::Ok |
                                                                       QDialogButtonBox::Cancel);

// A code as the user writes it: 0x41, 65 or U+0041, or a single character; nothing for other texts.
[[nodiscard]] std::optional<quint16> ParseCode(const QString& text);

// Asks for a first and a last code.
class RangeDialog final : public QDialog
{
    Q_OBJECT

public:
    RangeDialog(const QString& title, int first, int last, QWidget* parent);

    [[nodiscard]] quint16 First() const;
    [[nodiscard]] quint16 Last() const;

private:
    void Validate();

    QLineEdit* first_;
    QLineEdit* last_;
    QLabel* hint_;
    class QPushButton* ok_;
};

// Asks how a scalable font is to be rendered.
class GenerationDialog final : public QDialog
{
    Q_OBJECT

public:
    // Begins with what the arguments say and has a choice of faces by their names.
    GenerationDialog(const ActionOpenFontArgs& args, const QStringList& faces, QWidget* parent);

    // The arguments with what was chosen.
    [[nodiscard]] ActionOpenFontArgs Args() const;

private:
    void UpdateEncodings();

    ActionOpenFontArgs args_;
    QSpinBox* height_;
    QComboBox* unit_;
    QComboBox* format_;
    QComboBox* encoding_;
    QComboBox* face_;
    QCheckBox* bold_;
    QCheckBox* italic_;
    QLineEdit* first_;
    QLineEdit* last_;
};

// Asks for the number of one of the choices; -1 where none was made.
[[nodiscard]] int AskChoice(QWidget* parent, const QString& title, const QString& text,
                            const QList<std::pair<QString, int>>& choices);

} // namespace Glyphor
