#pragma once

#include "model/font_format.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QString>

#include <initializer_list>
#include <optional>
#include <vector>

class QDialog;
class QLabel;
class QScrollArea;
class QUrl;
class QVBoxLayout;

namespace Glyphor {

// Adds the buttons below a dialog and has them close it.
QDialogButtonBox* AddButtons(QDialog& dialog, QVBoxLayout& layout,
                             QDialogButtonBox::StandardButtons kinds = QDialogButtonBox::Ok |
                                                                       QDialogButtonBox::Cancel);

// Asks or tells something in a box and returns the button that closed it. Names of files and fonts
// may look like markup, so none is interpreted.
QMessageBox::StandardButton
ShowPlainBox(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

// A label for texts that have something from outside in them.
[[nodiscard]] QLabel* PlainLabel(const QString& text = {});

// A name as a part of a window's title, where "[*]" stands for the mark of changes.
[[nodiscard]] QString TitlePart(const QString& name);

// The file that a file dialog gives, whatever bytes its name has. Dialogs of the desktop know such
// names; the toolkit's own ones leave them out.
[[nodiscard]] QString ChosenPath(const QUrl& url);

// Widgets beside or below each other, without margins. The growing one takes the room that is
// left; where there is none, that stays empty at the end.
[[nodiscard]] QWidget* Row(std::initializer_list<QWidget*> parts, const QWidget* growing);
[[nodiscard]] QWidget* Column(std::initializer_list<QWidget*> parts, const QWidget* growing);

// A view of something that scrolls in it, and that keys do not reach.
[[nodiscard]] QScrollArea* ScrollAreaOf(QWidget& content);

// The content of a dialog, which scrolls where the screen has no room for it.
[[nodiscard]] QWidget* ScrollingContent(QWidget& content);

// For rows of more than one widget, which have no buddy of their own.
[[nodiscard]] QLabel* LabelFor(QWidget& buddy, const QString& text);

// The code that a Unicode character has in the encoding; nothing where it has none.
[[nodiscard]] std::optional<quint16> Encoded(quint16 unicode, EncodingType encoding);

// A code as the user writes it: 0x41 or 65, or a character that the encoding has, as U+0041 or as
// itself; nothing for other texts.
[[nodiscard]] std::optional<quint16> ParseCode(const QString& text,
                                               EncodingType encoding = EncodingType::Unicode);

// Whether the settings have codes shown in hexadecimal.
[[nodiscard]] bool ShowsHexadecimal();

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
