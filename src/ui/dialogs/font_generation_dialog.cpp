#include "ui/dialogs/font_generation_dialog.h"

#include "app/critical_exception.h"
#include "app/settings.h"
#include "app/user_interface.h"
#include "ui/dialogs/character_selection.h"
#include "ui/dialogs/font_size_box.h"
#include "ui/dialogs/format_box.h"
#include "ui/preview/generation_preview.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

FontGenerationDialog::FontGenerationDialog(const ActionOpenFontArgs& args, const QStringList& faces,
                                           QWidget* parent)
    : QDialog(parent),
      args_(args),
      size_(new FontSizeBox),
      format_(new FormatBox),
      encoding_(new EncodingBox),
      face_(new QComboBox),
      bold_(new QCheckBox(tr("&Bold"))),
      italic_(new QCheckBox(tr("&Italic"))),
      selection_(new CharacterSelection),
      preview_(new GenerationPreview)
{
    setWindowTitle(tr("Font generation: %1").arg(TitlePart(QFileInfo(args.path).fileName())));
    face_->addItems(faces);
    face_->setCurrentIndex(
        std::clamp(args.render.faceIndex, 0, std::max(0, int(faces.size()) - 1)));
    face_->setEnabled(faces.size() > 1);

    auto* const previewGroup = new QGroupBox(tr("Preview"));
    auto* const previewLayout = new QVBoxLayout(previewGroup);
    previewLayout->addWidget(preview_);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(Row({MakeEntries(), previewGroup}, previewGroup), 1);
    ok_ = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);
    LoadEntries();
    ConnectEntries();
    ShowEffect();
    size_->setFocus();
}

FontGenerationDialog::~FontGenerationDialog()
{
    FontGenerationDialogData record = Settings::Instance().fontGenerationDialog.load();
    record.geometry = saveGeometry();
    Settings::Instance().fontGenerationDialog.save(record);
}

QWidget* FontGenerationDialog::MakeEntries()
{
    auto* const form = new QFormLayout;
    form->addRow(tr("&Height:"), size_);
    form->addRow(tr("&Format:"), format_);
    form->addRow(tr("&Encoding:"), encoding_);
    form->addRow(tr("F&ace:"), face_);
    form->addRow(tr("Effects:"), Row({bold_, italic_}, nullptr));
    auto* const group = new QGroupBox(tr("Characters"));
    auto* const groupLayout = new QVBoxLayout(group);
    groupLayout->addWidget(selection_);
    group->setVisible(!args_.selection); // what options chose stays
    auto* const entries = new QWidget;
    auto* const layout = new QVBoxLayout(entries);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addWidget(group, 1);
    return entries;
}

void FontGenerationDialog::LoadEntries()
{
    const FontGenerationDialogData record = Settings::Instance().fontGenerationDialog.load();
    size_->SetValue(args_.size.IsGiven() ? args_.size : FontSize{record.size, record.inPoints});
    FontFormat format = args_.format.value_or(FontFormat(record.format));
    if (args_.encoding == EncodingType::ShiftJis && !args_.format && !IsLegacyFormat(format))
        format = FontFormat::Legacy; // the others have no such encoding
    const bool needsLegacy = !Settings::Instance().hideLegacy.value() || IsLegacyFormat(format);
    format_->OfferFormats(needsLegacy ? LegacyFormats::Offered : LegacyFormats::Hidden);
    format_->SetFormat(format);
    format_->setEnabled(!args_.format);
    encoding_->SetFormat(format_->Format());
    encoding_->SetEncoding(args_.encoding.value_or(EncodingType(record.encoding)));
    encoding_->setEnabled(!args_.encoding);
    bold_->setChecked(record.bold || (args_.render.effects & BoldEffect) != 0);
    italic_->setChecked(record.italic || (args_.render.effects & ItalicEffect) != 0);
    selection_->Load(record);
    preview_->SetSample(record.sample.isEmpty() ? tr("The quick brown fox 0123456789")
                                                : record.sample);
    resize(880, 560);
    RestoreGeometry(*this, record.geometry);
}

void FontGenerationDialog::StoreEntries() const
{
    FontGenerationDialogData record = Settings::Instance().fontGenerationDialog.load();
    record.size = size_->Value().value;
    record.inPoints = size_->Value().inPoints;
    record.bold = bold_->isChecked();
    record.italic = italic_->isChecked();
    if (!args_.format)
        record.format = qint32(format_->Format());
    if (!args_.encoding)
        record.encoding = qint32(encoding_->Encoding());
    selection_->Store(record);
    record.sample = preview_->Sample();
    Settings::Instance().fontGenerationDialog.save(record);
}

void FontGenerationDialog::ConnectEntries()
{
    connect(format_, &QComboBox::currentIndexChanged, this,
            [this] { encoding_->SetFormat(format_->Format()); });
    connect(size_, &FontSizeBox::Changed, this, &FontGenerationDialog::ShowEffect);
    for (QComboBox* const box : std::initializer_list<QComboBox*>{format_, encoding_, face_})
        connect(box, &QComboBox::currentIndexChanged, this, &FontGenerationDialog::ShowEffect);
    for (QCheckBox* const box : {bold_, italic_})
        connect(box, &QCheckBox::toggled, this, &FontGenerationDialog::ShowEffect);
    connect(selection_, &CharacterSelection::Changed, this, &FontGenerationDialog::ShowEffect);
}

void FontGenerationDialog::ShowEffect()
{
    const QString fault = args_.selection ? QString() : selection_->Fault();
    ok_->setEnabled(fault.isEmpty());
    if (!fault.isEmpty()) {
        preview_->ShowFault(fault);
        return;
    }
    UserInterface silent; // until the choice is made
    const InterfaceScope scope(silent);
    try {
        const bool isWanted = !args_.selection && selection_->IsExact();
        preview_->ShowFor(Args(), isWanted ? MissingCharacters::Named : MissingCharacters::Ignored);
    } catch (const CriticalException& error) {
        ok_->setEnabled(false);
        preview_->ShowFault(error.Text());
    }
}

ActionOpenFontArgs FontGenerationDialog::Args() const
{
    ActionOpenFontArgs args = args_;
    RenderAt(size_->Value(), args);
    args.format = format_->Format();
    args.encoding = encoding_->Encoding();
    args.render.faceIndex = std::max(0, face_->currentIndex());
    args.render.effects =
        (bold_->isChecked() ? BoldEffect : 0U) | (italic_->isChecked() ? ItalicEffect : 0U);
    if (!args.selection)
        args.selection = selection_->Codes();
    return args;
}

// A choice that can't be used keeps the dialog open.
void FontGenerationDialog::done(int result)
{
    preview_->Stop();
    if (result == Accepted) {
        try {
            (void)Args();
        } catch (const CriticalException& error) {
            CurrentInterface().critical(error.Title(), error.Text());
            return;
        }
        StoreEntries();
    }
    QDialog::done(result);
}

} // namespace Glyphor
