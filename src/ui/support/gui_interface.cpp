#include "ui/support/gui_interface.h"

#include "ui/support/dialog_parts.h"

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

Answer GuiInterface::ask(const QString& title, const QString& text)
{
    const auto button = ShowPlainBox(nullptr, QMessageBox::Question, title, text,
                                     QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

} // namespace Glyphor
