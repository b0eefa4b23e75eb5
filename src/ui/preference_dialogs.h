#pragma once

#include <QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QPlainTextEdit;

namespace Glyphor {

// The preferences; Ok stores them.
class PreferencesDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit PreferencesDialog(QWidget* parent);

    void accept() override;

private:
    QCheckBox* hideLegacy_;
    QComboBox* numeralSystem_;
    QCheckBox* logActions_;
    QCheckBox* createLogFile_;
    QCheckBox* useSystemEndings_;
    QComboBox* lineEndings_;
    QPlainTextEdit* directories_;
    QCheckBox* recursively_;
    QCheckBox* useBitmaps_;
};

// Chooses a style of an installed family.
class FontDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit FontDialog(QWidget* parent);

    [[nodiscard]] QString Path() const;
    [[nodiscard]] int FaceIndex() const;

private:
    void ShowStyles();

    QComboBox* family_;
    QComboBox* style_;
    class QPushButton* ok_;
};

// Asks for a code or a character; nothing where it was given up.
[[nodiscard]] std::optional<quint16> AskCode(QWidget* parent, const QString& title);

} // namespace Glyphor
