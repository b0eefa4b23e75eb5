#include "ui/small_dialogs.h"

#include "app/settings.h"
#include "ui/dialog_parts.h"
#include "ui/format_box.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

RangeDialog::RangeDialog(const QString& title, int first, int last, QWidget* parent)
    : QDialog(parent),
      first_(new QLineEdit(CodeText(first))),
      last_(new QLineEdit(CodeText(last))),
      hint_(new QLabel(tr("A code (0x41 or 65), or a character.")))
{
    setWindowTitle(title);
    auto* const layout = new QVBoxLayout(this);
    auto* const form = new QFormLayout;
    form->addRow(tr("&First:"), first_);
    form->addRow(tr("&Last:"), last_);
    layout->addLayout(form);
    layout->addWidget(hint_);
    ok_ = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);
    for (QLineEdit* const field : {first_, last_})
        connect(field, &QLineEdit::textChanged, this, &RangeDialog::Validate);
    Validate();
    first_->selectAll();
}

void RangeDialog::Validate()
{
    ok_->setEnabled(ParseCode(first_->text()) && ParseCode(last_->text()) && First() <= Last());
}

quint16 RangeDialog::First() const
{
    return ParseCode(first_->text()).value_or(0);
}

quint16 RangeDialog::Last() const
{
    return ParseCode(last_->text()).value_or(0);
}

GenerationDialog::GenerationDialog(const ActionOpenFontArgs& args, const QStringList& faces,
                                   QWidget* parent)
    : QDialog(parent),
      args_(args),
      height_(new QSpinBox),
      unit_(new QComboBox),
      format_(new FormatBox),
      encoding_(new EncodingBox),
      face_(new QComboBox),
      bold_(new QCheckBox(tr("&Bold"))),
      italic_(new QCheckBox(tr("&Italic"))),
      first_(new QLineEdit(CodeText(0x20))),
      last_(new QLineEdit(CodeText(0xFFFF)))
{
    setWindowTitle(tr("Font generation"));
    height_->setRange(1, 1000);
    height_->setValue(args.size.value > 0 ? args.size.value : 16);
    unit_->addItems({tr("px"), tr("pt")});
    format_->Fill(!Settings::Instance().hideLegacy.value());
    format_->SetFormat(args.format.value_or(FontFormat::Standard));
    encoding_->SetFormat(format_->Format());
    encoding_->SetEncoding(args.encoding.value_or(EncodingType::Unicode));
    face_->addItems(faces);
    face_->setCurrentIndex(std::clamp(args.faceIndex, 0, std::max(0, int(faces.size()) - 1)));
    face_->setEnabled(faces.size() > 1);

    auto* const heightRow = new QHBoxLayout;
    heightRow->addWidget(height_, 1);
    heightRow->addWidget(unit_);
    auto* const rangeRow = new QHBoxLayout;
    rangeRow->addWidget(first_);
    rangeRow->addWidget(new QLabel(tr("to")));
    rangeRow->addWidget(last_);
    auto* const effectRow = new QHBoxLayout;
    effectRow->addWidget(bold_);
    effectRow->addWidget(italic_);
    effectRow->addStretch();
    auto* const form = new QFormLayout;
    form->addRow(LabelFor(*height_, tr("&Height:")), heightRow);
    form->addRow(tr("&Format:"), format_);
    form->addRow(tr("&Encoding:"), encoding_);
    form->addRow(tr("F&ace:"), face_);
    form->addRow(tr("Effects:"), effectRow);
    form->addRow(LabelFor(*first_, tr("&Characters:")), rangeRow);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    QPushButton* const ok = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);
    const auto validate = [this, ok] {
        ok->setEnabled(ParseCode(first_->text()) && ParseCode(last_->text()));
    };
    for (QLineEdit* const field : {first_, last_})
        connect(field, &QLineEdit::textChanged, this, validate);
    connect(format_, &QComboBox::currentIndexChanged, this,
            [this] { encoding_->SetFormat(format_->Format()); });
    height_->selectAll();
}

ActionOpenFontArgs GenerationDialog::Args() const
{
    ActionOpenFontArgs args = args_;
    args.size = {height_->value(), unit_->currentIndex() == 1};
    args.format = format_->Format();
    args.encoding = encoding_->Encoding();
    args.faceIndex = std::max(0, face_->currentIndex());
    args.effects =
        (bold_->isChecked() ? BoldEffect : 0U) | (italic_->isChecked() ? ItalicEffect : 0U);
    if (!args.selection) {
        const quint16 first = ParseCode(first_->text()).value_or(0);
        const quint16 last = ParseCode(last_->text()).value_or(0);
        args.selection.emplace();
        args.selection->SetRange(std::min(first, last), std::max(first, last), true);
    }
    return args;
}

int AskChoice(QWidget* parent, const QString& title, const QString& text,
              const QList<std::pair<QString, int>>& choices)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto* const layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(text));
    QButtonGroup group;
    for (const auto& [label, number] : choices) {
        auto* const button = new QRadioButton(label);
        group.addButton(button, number);
        layout->addWidget(button);
    }
    group.buttons().constFirst()->setChecked(true);
    AddButtons(dialog, *layout);
    return dialog.exec() == QDialog::Accepted ? group.checkedId() : -1;
}

} // namespace Glyphor
