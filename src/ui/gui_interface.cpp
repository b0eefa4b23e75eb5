#include "ui/gui_interface.h"

#include <QMessageBox>

namespace Glyphor {

void GuiInterface::information(const QString& title, const QString& text)
{
    QMessageBox::information(nullptr, title, text, QMessageBox::Ok);
}

void GuiInterface::warning(const QString& title, const QString& text)
{
    QMessageBox::warning(nullptr, title, text, QMessageBox::Ok);
}

void GuiInterface::critical(const QString& title, const QString& text)
{
    QMessageBox::critical(nullptr, title, text, QMessageBox::Ok);
}

} // namespace Glyphor
