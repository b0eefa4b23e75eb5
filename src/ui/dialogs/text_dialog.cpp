#include "ui/dialogs/text_dialog.h"

#include "app/settings.h"
#include "ui/support/dialog_parts.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int PixelSize = 12;
constexpr QSize Around(60, 90); // the text: margins, scroll bars and buttons
constexpr QSize Largest(1100, 700);

} // namespace

TextDialog::TextDialog(const QString& title, const QString& text, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(title);
    auto* const view = new QPlainTextEdit(text);
    view->setReadOnly(true);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setAccessibleName(title);
    QFont font(u"Consolas"_s);
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(PixelSize);
    view->setFont(font);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(view);
    AddButtons(*this, *layout, QDialogButtonBox::Ok);
    resize((QFontMetrics(font).size(0, text) + Around).boundedTo(Largest));
}

CommandDialog::CommandDialog(const QString& usage, QWidget* parent)
    : TextDialog(tr("Command line options"), usage, parent)
{
    const CommandDialogData stored = Settings::Instance().commandDialog.load();
    if (stored.width > 0 && stored.height > 0)
        resize(stored.width, stored.height);
}

CommandDialog::~CommandDialog()
{
    Settings::Instance().commandDialog.save({width(), height()});
}

} // namespace Glyphor
