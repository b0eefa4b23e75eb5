#include "ui/dialogs/gui_interface.h"

#include "ui/dialogs/format_box.h"
#include "ui/dialogs/merge_mode_dialog.h"
#include "ui/support/dialog_parts.h"

#include <QApplication>

namespace Glyphor {

void GuiInterface::information(const QString& title, const QString& text)
{
    ShowPlainBox(nullptr, QMessageBox::Information, title, text);
}

void GuiInterface::warning(const QString& title, const QString& text)
{
    ShowPlainBox(nullptr, QMessageBox::Warning, title, text);
}

void GuiInterface::critical(const QString& title, const QString& text)
{
    ShowPlainBox(nullptr, QMessageBox::Critical, title, text);
}

Answer GuiInterface::Ask(const QString& title, const QString& text)
{
    const auto button = ShowPlainBox(nullptr, QMessageBox::Question, title, text,
                                     QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

std::optional<FormatChoice> GuiInterface::askFontFormat(EncodingType)
{
    FormatDialog dialog(QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return FormatChoice{dialog.Format(), dialog.Encoding()};
}

std::optional<MergeMode> GuiInterface::askMergeMode()
{
    MergeModeDialog dialog(QApplication::activeWindow());
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Mode()) : std::nullopt;
}

} // namespace Glyphor
