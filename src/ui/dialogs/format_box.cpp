#include "ui/dialogs/format_box.h"

#include "app/engine_texts.h"
#include "ui/support/dialog_parts.h"

#include <QFormLayout>
#include <QLabel>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

void FormatBox::OfferFormats(LegacyFormats legacy)
{
    const FontFormat chosen = Format();
    clear();
    AddGroup(tr("Standard formats"), FormatGroup::Standard);
    if (legacy == LegacyFormats::Offered)
        AddGroup(tr("Legacy formats"), FormatGroup::Legacy);
    SetFormat(chosen);
}

void FormatBox::AddGroup(const QString& heading, FormatGroup group)
{
    addItem(heading);
    auto* const item = qobject_cast<QStandardItemModel*>(model())->item(count() - 1);
    item->setFlags(Qt::NoItemFlags);
    QFont bold = font();
    bold.setBold(true);
    item->setFont(bold);
    for (const FormatNameRow& row : FormatNameTable) {
        if (row.legacy != (group == FormatGroup::Legacy))
            continue;
        addItem(Engine::tr(row.displayName.data()), int(row.format));
        setItemData(count() - 1,
                    tr("Known as <b>%1</b> before Tavix V6.36.")
                        .arg(Engine::tr(row.formerDisplayName.data())),
                    Qt::ToolTipRole);
    }
}

FontFormat FormatBox::Format() const
{
    const QVariant format = currentData();
    return format.isValid() ? FontFormat(format.toInt()) : FontFormat::Standard;
}

// The first one where the list does not have it.
void FormatBox::SetFormat(FontFormat format)
{
    setCurrentIndex(std::max(1, findData(int(format))));
}

void EncodingBox::SetFormat(FontFormat format)
{
    const EncodingType chosen = Encoding();
    clear();
    addItem(tr("Unicode"), int(EncodingType::Unicode));
    if (IsLegacyFormat(format))
        addItem(tr("Shift JIS"), int(EncodingType::ShiftJis));
    SetEncoding(chosen);
}

void EncodingBox::SetEncoding(EncodingType encoding)
{
    setCurrentIndex(std::max(0, findData(int(encoding))));
}

FormatDialog::FormatDialog(QWidget* parent)
    : QDialog(parent), format_(new FormatBox), encoding_(new EncodingBox)
{
    setWindowTitle(tr("Select font format"));
    auto* const text = new QLabel(
        tr("Font format could not be read in file. Please select format and encoding manually."));
    text->setWordWrap(true);
    auto* const form = new QFormLayout;
    form->addRow(tr("&Format:"), format_);
    form->addRow(tr("&Encoding:"), encoding_);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addLayout(form);
    AddButtons(*this, *layout);
    connect(format_, &QComboBox::currentIndexChanged, this,
            [this] { encoding_->SetFormat(format_->Format()); });
}

} // namespace Glyphor
