#include "ui/window/info_panel.h"

#include "actions/edit_table.h"
#include "app/engine_texts.h"
#include "files/font_file_c.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "model/unicode_table.h"
#include "ui/support/dialog_parts.h"
#include "ui/support/value_fields.h"

#include <QFormLayout>
#include <QLabel>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

int RowsOf(const CharInfo& info)
{
    return info.Rows();
}

} // namespace

InfoPanel::InfoPanel(QWidget* parent) : QWidget(parent), name_(new NameField)
{
    setAccessibleName(tr("Information"));
    auto* const form = new QFormLayout(this);
    form->setLabelAlignment(Qt::AlignLeft);
    form->setVerticalSpacing(2);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    heading_ = AddHeading(*form, tr("Character"));
    for (const QString& caption :
         {tr("Code"), tr("Character"), tr("Name"), tr("Block"), tr("Enabled")})
        AddRow(*form, caption);
    AddField(*form, tr("Width"), ActionType::SetWidth, 1, CharInfo::MaxSize,
             [](const CharInfo& info) -> int { return info.width; });
    AddField(*form, tr("Height"), ActionType::SetHeight, 1, CharInfo::MaxSize, &RowsOf);
    FieldOf(ActionType::SetHeight).setAccessibleName(tr("Height of the character"));
    AddField(*form, tr("Left edge"), ActionType::SetXPos, CharInfo::MinOffset, CharInfo::MaxOffset,
             [](const CharInfo& info) -> int { return info.xPos; });
    AddField(*form, tr("Top row"), ActionType::SetYPos, CharInfo::MinOffset, CharInfo::MaxOffset,
             [](const CharInfo& info) -> int { return info.yPos; });
    AddField(*form, tr("Cursor distance"), ActionType::SetCursorDistance, 0, CharInfo::MaxSize,
             [](const CharInfo& info) -> int { return info.cursorDistance; });
    for (const QString& caption : {tr("Data"), tr("Kerning pairs")})
        AddRow(*form, caption);
    AddHeading(*form, tr("Font"));
    form->addRow(tr("Font name") + u':', name_);
    connect(name_, &NameField::NameSet, this, &InfoPanel::FontNameSet);
    for (const QString& caption : {tr("Format"), tr("Encoding")})
        AddRow(*form, caption);
    AddField(*form, tr("Height"), FontMetric::Height);
    FieldOf(FontMetric::Height).setAccessibleName(tr("Height of the font"));
    AddField(*form, tr("Baseline"), FontMetric::Baseline);
    AddField(*form, tr("Lowercase height"), FontMetric::LowercaseHeight);
    AddField(*form, tr("Capital height"), FontMetric::CapitalHeight);
    for (const QString& caption : {tr("Enabled characters"), tr("Flash")})
        AddRow(*form, caption);
    AlignFields();
    ShowCode(nullptr, -1);
}

void InfoPanel::AlignFields()
{
    const QList<NumberField*> fields = findChildren<NumberField*>();
    int width = 0;
    for (const NumberField* const field : fields)
        width = std::max(width, field->sizeHint().width());
    for (NumberField* const field : fields)
        field->setFixedWidth(width);
}

QLabel* InfoPanel::AddHeading(QFormLayout& form, const QString& text)
{
    auto* const label = new QLabel(u"<b>%1</b>"_s.arg(text));
    form.addRow(label);
    return label;
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

void InfoPanel::AddField(QFormLayout& form, const QString& caption, ActionType edit, int least,
                         int most, int (*value)(const CharInfo& info))
{
    auto* const field = new NumberField;
    field->SetLimits(least, most);
    field->setSuffix(tr(" px"));
    form.addRow(caption + u':', field);
    characterFields_.push_back({edit, value, field});
    connect(field, &NumberField::ValueSet, this, [this, edit](int number, bool isSpinning) {
        Q_EMIT CharacterMetricSet(edit, number, isSpinning);
    });
}

void InfoPanel::AddField(QFormLayout& form, const QString& caption, FontMetric metric)
{
    auto* const field = new NumberField;
    field->setSuffix(tr(" px"));
    form.addRow(caption + u':', field);
    fontFields_.push_back({metric, field});
    connect(field, &NumberField::ValueSet, this, [this, metric](int number, bool isSpinning) {
        Q_EMIT FontMetricSet(metric, number, isSpinning);
    });
}

NumberField& InfoPanel::FieldOf(ActionType edit) const
{
    return *std::ranges::find(characterFields_, edit, &CharacterField::edit)->field;
}

NumberField& InfoPanel::FieldOf(FontMetric metric) const
{
    return *std::ranges::find(fontFields_, metric, &FontField::metric)->field;
}

void InfoPanel::TakeTyped()
{
    for (const CharacterField& row : characterFields_)
        row.field->interpretText();
    for (const FontField& row : fontFields_)
        row.field->interpretText();
    if (name_->isModified())
        name_->TakeTyped();
}

QString InfoPanel::Value(const QString& caption) const
{
    const QLabel* const label = values_.value(caption);
    return label != nullptr ? label->text().remove(QChar(0x200B)) : QString();
}

void InfoPanel::ShowCode(const Font* font, int code, const CodeSet& selected)
{
    for (const QString& caption : values_.keys())
        Set(caption, {});
    font_ = font;
    code_ = code;
    if (font != nullptr) {
        ShowFont(*font);
        if (code >= 0)
            ShowCharacter(*font, quint16(code));
    }
    name_->setEnabled(font != nullptr);
    name_->ShowName(font != nullptr ? font->Name() : QString());
    for (const FontField& row : fontFields_) {
        row.field->setEnabled(font != nullptr);
        if (font == nullptr) {
            row.field->ShowNone();
            continue;
        }
        row.field->SetLimits(LeastOf(*font, row.metric), CharInfo::MaxSize);
        row.field->ShowValue(MetricOf(*font, row.metric), 0);
    }
    ShowTips();
    ShowSelection(selected);
}

// The current character where no other is selected.
void InfoPanel::ShowSelection(const CodeSet& selected)
{
    CodeSet codes = selected;
    if (codes.IsEmpty() && code_ >= 0)
        codes.Set(quint16(code_), true);
    if (font_ == nullptr)
        codes = {};
    else
        codes &= font_->ExistingCodes();
    const int count = codes.Count();
    heading_->setText(
        u"<b>%1</b>"_s.arg(count > 1 ? tr("Character (%1 selected)").arg(count) : tr("Character")));
    for (const CharacterField& row : characterFields_)
        ShowMetric(row, codes);
}

// Spinning over several values goes on from that of the current character.
void InfoPanel::ShowMetric(const CharacterField& row, const CodeSet& codes)
{
    const bool isRefused = font_ != nullptr && IsLegacyFormat(font_->Metrics().format) &&
                           EditOf(row.edit)->notForLegacy;
    row.field->setEnabled(!codes.IsEmpty() && !isRefused);
    if (codes.IsEmpty())
        return row.field->ShowNone();
    const auto valueOf = [&](int code) { return row.value(font_->FindChar(quint16(code))->info); };
    const bool hasCurrent = code_ >= 0 && codes.Test(quint16(code_));
    const int one = valueOf(hasCurrent ? code_ : codes.Next(0));
    bool areSame = true;
    for (int code = codes.Next(0); code < CodeSet::Limit && areSame; code = codes.Next(code + 1))
        areSame = valueOf(code) == one;
    row.field->ShowValue(areSame ? std::optional(one) : std::nullopt, one);
}

// What a field means, or why it can't be edited.
void InfoPanel::ShowTips()
{
    const bool isLegacy = font_ != nullptr && IsLegacyFormat(font_->Metrics().format);
    const auto tip = [this](ActionType edit, const QString& text) {
        FieldOf(edit).setToolTip(text);
        FieldOf(edit).setAccessibleDescription(text);
    };
    const QString noOffset = tr("In legacy formats characters have no offset.");
    tip(ActionType::SetWidth, tr("Columns come and go at the right"));
    tip(ActionType::SetHeight, isLegacy ? tr("In legacy formats all characters have the height of "
                                             "the font.")
                                        : tr("Rows come and go at the bottom"));
    tip(ActionType::SetXPos, isLegacy ? noOffset : tr("From the cursor position"));
    tip(ActionType::SetYPos, isLegacy ? noOffset : tr("From the top of the font"));
    tip(ActionType::SetCursorDistance, tr("From one character to the next"));
    NumberField& height = FieldOf(FontMetric::Height);
    height.setToolTip(isLegacy
                          ? tr("In legacy formats the characters get or lose rows at the bottom.")
                          : tr("The distance between lines changes as much"));
    FieldOf(FontMetric::Baseline).setToolTip(tr("From the top of the font"));
    name_->setToolTip(
        tr("Names the font in C files; XBF and SIF files are called by their own name"));
}

void InfoPanel::ShowFont(const Font& font)
{
    const FontMetrics& metrics = font.Metrics();
    CodeSet enabled = font.EnabledCodes();
    enabled &= font.ExistingCodes();
    Set(tr("Format"), Engine::tr(FormatDisplayName(metrics.format).data()));
    Set(tr("Encoding"),
        metrics.encoding == EncodingType::Unicode ? tr("Unicode") : tr("Shift JIS"));
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
    Set(tr("Data"), tr("%1 B a line, %2 B in all").arg(info.bytesPerLine).arg(bytes));
    Set(tr("Kerning pairs"), QString::number(character->kerning.size()));
}

} // namespace Glyphor
