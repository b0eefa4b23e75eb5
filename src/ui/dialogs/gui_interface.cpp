#include "ui/dialogs/gui_interface.h"

#include "app/progress.h"
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

Answer GuiInterface::ask(const QString& title, const QString& text)
{
    const auto button = ShowPlainBox(nullptr, QMessageBox::Question, title, text,
                                     QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

int GuiInterface::askFontFormat(EncodingType& encoding)
{
    FormatDialog dialog(QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        throw WorkStopped();
    encoding = dialog.Encoding();
    return int(dialog.Format());
}

int GuiInterface::askMergeMode()
{
    MergeModeDialog dialog(QApplication::activeWindow());
    return dialog.exec() == QDialog::Accepted ? int(dialog.Mode()) : 0;
}

} // namespace Glyphor
