#pragma once

#include <QDialog>

namespace Glyphor {

// Shows a long text with fixed columns, in a size that fits it.
class TextDialog : public QDialog
{
    Q_OBJECT

public:
    TextDialog(const QString& title, const QString& text, QWidget* parent);
};

// Shows the usage text of the command line. Its size is remembered.
class CommandDialog final : public TextDialog
{
    Q_OBJECT

public:
    CommandDialog(const QString& usage, QWidget* parent);
    ~CommandDialog() override;
};

} // namespace Glyphor
