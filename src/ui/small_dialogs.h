#pragma once

#include "actions/action_open_font.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace Glyphor {

class EncodingBox;
class FormatBox;

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
    ActionOpenFontArgs args_;
    QSpinBox* height_;
    QComboBox* unit_;
    FormatBox* format_;
    EncodingBox* encoding_;
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
