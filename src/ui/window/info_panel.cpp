#include "ui/window/info_panel.h"

#include "app/engine_texts.h"
#include "files/font_file_c.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "model/unicode_table.h"
#include "ui/support/dialog_parts.h"

#include <QFormLayout>
#include <QLabel>

namespace Glyphor {

using namespace Qt::StringLiterals;

InfoPanel::InfoPanel(QWidget* parent) : QWidget(parent)
{
    setAccessibleName(tr("Information"));
    auto* const form = new QFormLayout(this);
    form->setLabelAlignment(Qt::AlignLeft);
    form->setVerticalSpacing(2);
    AddHeading(*form, tr("Character"));
    for (const QString& caption :
         {tr("Code"), tr("Character"), tr("Name"), tr("Block"), tr("Enabled"), tr("Size"),
          tr("Offset"), tr("Cursor distance"), tr("Data"), tr("Kerning pairs")})
        AddRow(*form, caption);
    AddHeading(*form, tr("Font"));
    for (const QString& caption :
         {tr("Font name"), tr("Format"), tr("Encoding"), tr("Height"), tr("Baseline"),
          tr("Lowercase height"), tr("Capital height"), tr("Enabled characters"), tr("Flash")})
        AddRow(*form, caption);
}

void InfoPanel::AddHeading(QFormLayout& form, const QString& text)
{
    auto* const label = new QLabel(u"<b>%1</b>"_s.arg(text));
    form.addRow(label);
}

void InfoPanel::AddRow(QFormLayout& form, const QString& caption)
{
    auto* const value = PlainLabel();
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    values_.insert(caption, value);
    form.addRow(caption + u':', value);
}

void InfoPanel::Set(const QString& caption, const QString& value)
{
    QLabel* const label = values_.value(caption);
    QString shown = value;
    // A place to break lines of long names.
    label->setText(shown.replace(u'_', u"_\u200B"_s));
    label->setAccessibleName(value); // the caption is its label
}

QString InfoPanel::Value(const QString& caption) const
{
    const QLabel* const label = values_.value(caption);
    return label != nullptr ? label->text().remove(QChar(0x200B)) : QString();
}

void InfoPanel::ShowCode(const Font* font, int code)
{
    for (const QString& caption : values_.keys())
        Set(caption, {});
    if (font == nullptr)
        return;
    ShowFont(*font);
    if (code >= 0)
        ShowCharacter(*font, quint16(code));
}

void InfoPanel::ShowFont(const Font& font)
{
    const FontMetrics& metrics = font.Metrics();
    const auto pixels = [](int value) { return tr("%1 px").arg(value); };
    CodeSet enabled = font.EnabledCodes();
    enabled &= font.ExistingCodes();
    Set(tr("Font name"), font.Name());
    Set(tr("Format"), Engine::tr(FormatDisplayName(metrics.format).data()));
    Set(tr("Encoding"),
        metrics.encoding == EncodingType::Unicode ? tr("Unicode") : tr("Shift JIS"));
    Set(tr("Height"), pixels(metrics.height));
    Set(tr("Baseline"), pixels(metrics.baseline));
    Set(tr("Lowercase height"), pixels(metrics.lowercaseHeight));
    Set(tr("Capital height"), pixels(metrics.capitalHeight));
    Set(tr("Enabled characters"),
        tr("%1 of %2").arg(enabled.Count()).arg(font.ExistingCodes().Count()));
    Set(tr("Flash"), tr("%L1 bytes").arg(FlashSize(font)));
}

void InfoPanel::ShowCharacter(const Font& font, quint16 code)
{
    const Encoding& encoding = EncodingFor(font.Metrics().encoding);
    Set(tr("Code"), ShownCode(code, hexadecimal_));
    const auto unicode = encoding.Converted(EncodingType::Unicode, code);
    if (unicode && QChar(*unicode).isPrint())
        Set(tr("Character"), QChar(*unicode));
    Set(tr("Name"), encoding.CharName(code));
    Set(tr("Block"), encoding.BlockName(code));
    const Character* const character = font.FindChar(code);
    if (character == nullptr) {
        Set(tr("Enabled"), tr("no character"));
        return;
    }
    const CharInfo& info = character->info;
    const qsizetype bytes = character->bitmap->DataAsList().size();
    Set(tr("Enabled"), font.IsEnabled(code) ? tr("yes") : tr("no"));
    Set(tr("Size"), tr("%1 × %2 px").arg(info.width).arg(info.Rows()));
    Set(tr("Offset"), u"%1, %2"_s.arg(info.xPos).arg(info.yPos));
    Set(tr("Cursor distance"), tr("%1 px").arg(info.cursorDistance));
    Set(tr("Data"), tr("%1 B a line, %2 B in all").arg(info.bytesPerLine).arg(bytes));
    Set(tr("Kerning pairs"), QString::number(character->kerning.size()));
}

} // namespace Glyphor
