#pragma once

#include "model/font_format.h"

#include <QDialogButtonBox>
#include <QString>

#include <optional>
#include <vector>

class QDialog;
class QLabel;
class QVBoxLayout;

namespace Glyphor {

// Adds the buttons below a dialog and has them close it.
QDialogButtonBox* AddButtons(QDialog& dialog, QVBoxLayout& layout,
                             QDialogButtonBox::StandardButtons kinds = QDialogButtonBox::Ok |
                                                                       QDialogButtonBox::Cancel);

// For rows of more than one widget, which have no buddy of their own.
[[nodiscard]] QLabel* LabelFor(QWidget& buddy, const QString& text);

// The code that a Unicode character has in the encoding; nothing where it has none.
[[nodiscard]] std::optional<quint16> Encoded(quint16 unicode, EncodingType encoding);

// A code as the user writes it: 0x41 or 65, or a character that the encoding has, as U+0041 or as
// itself; nothing for other texts.
[[nodiscard]] std::optional<quint16> ParseCode(const QString& text,
                                               EncodingType encoding = EncodingType::Unicode);

// A code in the numeral system of the settings.
[[nodiscard]] QString CodeText(int code);

struct UnicodeBlock
{
    QString name;
    quint16 first;
    quint16 last;
};

// In ascending order.
[[nodiscard]] const std::vector<UnicodeBlock>& UnicodeBlocks();

// Takes a remembered geometry; an empty one leaves the dialog as it is.
void RestoreGeometry(QDialog& dialog, const QByteArray& geometry);

} // namespace Glyphor
