#pragma once

#include "app/action_type.h"
#include "model/code_set.h"
#include "model/font_format.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace Glyphor {

// Asks for a first and a last code, or for a block. The last answer is remembered.
class EnableRangeDialog final : public QDialog
{
    Q_OBJECT

public:
    // `change` is Enable or Disable. `existing` are the codes that the font has characters for, of
    // which the dialog tells how many are in the range.
    EnableRangeDialog(ActionType change, const CodeSet& existing, EncodingType encoding,
                      QWidget* parent);
    ~EnableRangeDialog() override;

    // Of an accepted dialog.
    [[nodiscard]] quint16 First() const;
    [[nodiscard]] quint16 Last() const;

private:
    void ChooseBlock(int index);
    void Validate();

    ActionType change_;
    CodeSet existing_;
    EncodingType encoding_;
    QLineEdit* first_;
    QLineEdit* last_;
    QComboBox* block_;
    QLabel* hint_;
    QPushButton* ok_;
};

// Finds a character by its code, by itself or by a part of its name.
class GoToDialog final : public QDialog
{
    Q_OBJECT

public:
    // Finds characters among the codes, which have the encoding.
    GoToDialog(const CodeSet& codes, EncodingType encoding, QWidget* parent);

    // -1 where there is none.
    [[nodiscard]] int Code() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Search(const QString& text);
    [[nodiscard]] QList<int> CodesOf(const QString& text) const;
    [[nodiscard]] QList<int> NamedLike(const QString& text) const;

    CodeSet codes_;
    EncodingType encoding_;
    QLineEdit* field_;
    QListWidget* found_;
    QLabel* hint_;
    QPushButton* ok_;
};

// Asks for the code that the first of some characters is to be copied to.
class DuplicateDialog final : public QDialog
{
    Q_OBJECT

public:
    // The characters' codes, and all that the font has, in the encoding.
    DuplicateDialog(const CodeSet& codes, const CodeSet& existing, EncodingType encoding,
                    QWidget* parent);

    // Of an accepted dialog.
    [[nodiscard]] quint16 Code() const;

private:
    void Validate();
    [[nodiscard]] QString FaultOf(quint16 code) const;

    CodeSet codes_;
    CodeSet existing_;
    EncodingType encoding_;
    QLineEdit* field_;
    QLabel* hint_;
    QPushButton* ok_;
};

} // namespace Glyphor
