#include "ui/dialogs/font_generation_dialog.h"

#include "app/critical_exception.h"
#include "app/file_name.h"
#include "app/file_system.h"
#include "app/settings.h"
#include "app/user_interface.h"
#include "app/version.h"
#include "cli/command_line_option.h"
#include "cli/feature_list.h"
#include "cli/written_options.h"
#include "render/font_file_scalable.h"
#include "ui/dialogs/character_selection.h"
#include "ui/dialogs/font_size_box.h"
#include "ui/dialogs/format_box.h"
#include "ui/dialogs/rendering_entries.h"
#include "ui/dialogs/source_entries.h"
#include "ui/preview/generation_preview.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// What was remembered, or nothing where it can't be read.
template <typename Value, typename Parse>
Value Parsed(const QString& text, Parse parse)
{
    try {
        return text.isEmpty() ? Value() : parse(text);
    } catch (const CriticalException&) {
        return {};
    }
}

} // namespace

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
      rendering_(new RenderingEntries),
      sources_(new SourceEntries),
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
    layout->addWidget(ScrollingContent(*Row({MakeEntries(), previewGroup}, previewGroup)), 1);
    QDialogButtonBox* const buttons = AddButtons(*this, *layout);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    copy_ = buttons->addButton(tr("Cop&y as command line"), QDialogButtonBox::ActionRole);
    copy_->setAutoDefault(false);
    copy_->setToolTip(tr("Copies a line for a shell that makes this font without a window."));
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

// What most fonts need comes first.
QWidget* FontGenerationDialog::MakeEntries()
{
    auto* const tabs = new QTabWidget;
    tabs->addTab(MakeFontPage(), tr("Font"));
    for (const auto& [page, title] :
         {std::pair<QWidget*, QString>(rendering_, tr("Rendering")), {sources_, tr("Mapping")}}) {
        QScrollArea* const area = ScrollAreaOf(*page);
        area->setFrameShape(QFrame::NoFrame);
        for (QWidget* const part : {area->viewport(), page})
            part->setAutoFillBackground(false); // the tab has one
        tabs->addTab(area, title);
    }
    return tabs;
}

QWidget* FontGenerationDialog::MakeFontPage()
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
    layout->addLayout(form);
    layout->addWidget(group, 1);
    return entries;
}

void FontGenerationDialog::LoadEntries()
{
    const FontGenerationDialogData record = Settings::Instance().fontGenerationDialog.load();
    size_->SetValue(args_.size.IsGiven() ? args_.size : SizeOf(record.size));
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
    RenderOptions options = args_.render;
    options.fitsInk = options.fitsInk || record.fitsInk;
    if (options.hinting == Hinting::Default)
        options.hinting = Hinting(record.hinting);
    if (options.gamma == 1)
        options.gamma = record.gamma;
    rendering_->SetFormat(format);
    rendering_->Load(options);
    ShowFace();
    LoadEntriesOfFile();
    preview_->SetSample(record.sample.isEmpty() ? tr("The quick brown fox 0123456789")
                                                : record.sample);
    ShowChosenText();
    resize(880, 560);
    RestoreGeometry(*this, record.geometry);
}

// Places on axes, mappings and sources belong to their file, and come back with it alone.
void FontGenerationDialog::LoadEntriesOfFile()
{
    const FontGenerationDialogData record = Settings::Instance().fontGenerationDialog.load();
    ActionOpenFontArgs args = args_;
    const bool isGiven = !args.render.axes.empty() || args.render.charmapIndex >= 0 ||
                         !args.render.features.empty() || !args.render.map.empty() ||
                         !args.sources.empty();
    const bool isRemembered = record.path == args.path && record.face == args.render.faceIndex;
    if (!isGiven && isRemembered) {
        args.render.axes = Parsed<std::vector<AxisPosition>>(record.axes, ParseAxes);
        args.render.features = Parsed<std::vector<FontFeature>>(record.features, ParseFeatures);
        args.render.charmapIndex = record.charmap;
        args.render.map = Parsed<CharacterMap>(record.map, ParseCharacterMap);
        args.sources = SourcesOf(record.sources);
    }
    rendering_->SetPositions(args.render.axes);
    rendering_->SetFeatures(args.render.features);
    sources_->Load(args);
}

void FontGenerationDialog::StoreEntriesOfFile(FontGenerationDialogData& record) const
{
    ActionOpenFontArgs args;
    sources_->ApplyTo(args);
    record.path = args_.path;
    record.face = std::max(0, face_->currentIndex());
    record.axes = TextOf(rendering_->Positions());
    record.features = rendering_->FeatureText();
    record.charmap = args.render.charmapIndex;
    record.map = TextOf(args.render.map);
    record.sources = DataOf(args.sources);
}

void FontGenerationDialog::StoreEntries() const
{
    FontGenerationDialogData record = Settings::Instance().fontGenerationDialog.load();
    record.size = DataOf(size_->Value());
    record.bold = bold_->isChecked();
    record.italic = italic_->isChecked();
    if (!args_.format)
        record.format = qint32(format_->Format());
    if (!args_.encoding)
        record.encoding = qint32(encoding_->Encoding());
    selection_->Store(record);
    record.sample = preview_->Sample();
    RenderOptions options;
    rendering_->ApplyTo(options);
    record.fitsInk = options.fitsInk;
    record.hinting = qint32(options.hinting);
    record.gamma = rendering_->Gamma();
    StoreEntriesOfFile(record);
    Settings::Instance().fontGenerationDialog.save(record);
    FontDialogData choice = Settings::Instance().fontDialog.load(); // which asks for it before
    choice.size = record.size;
    Settings::Instance().fontDialog.save(choice);
}

void FontGenerationDialog::ConnectEntries()
{
    connect(format_, &QComboBox::currentIndexChanged, this, [this] {
        encoding_->SetFormat(format_->Format());
        rendering_->SetFormat(format_->Format());
    });
    connect(face_, &QComboBox::currentIndexChanged, this, &FontGenerationDialog::ShowFace);
    connect(size_, &FontSizeBox::Changed, this, &FontGenerationDialog::ShowEffect);
    for (QComboBox* const box : std::initializer_list<QComboBox*>{format_, encoding_, face_})
        connect(box, &QComboBox::currentIndexChanged, this, &FontGenerationDialog::ShowEffect);
    for (QCheckBox* const box : {bold_, italic_})
        connect(box, &QCheckBox::toggled, this, &FontGenerationDialog::ShowEffect);
    connect(selection_, &CharacterSelection::Changed, this, [this] {
        ShowChosenText();
        ShowEffect();
    });
    connect(rendering_, &RenderingEntries::Changed, this, &FontGenerationDialog::ShowEffect);
    connect(sources_, &SourceEntries::Changed, this, &FontGenerationDialog::ShowEffect);
    connect(copy_, &QPushButton::clicked, this, &FontGenerationDialog::CopyCommandLine);
}

// What there is to choose depends on the face.
void FontGenerationDialog::ShowFace()
{
    FaceTraits traits;
    UserInterface silent;
    const InterfaceScope scope(silent);
    try {
        traits = TraitsOf(args_.path, std::max(0, face_->currentIndex()));
    } catch (const CriticalException&) {
        traits = {}; // rendering it will tell what is wrong
    }
    rendering_->ShowAxes(traits.axes);
    selection_->ShowFace(traits.codes);
    sources_->ShowCharmaps(traits.charmaps, traits.hasOtherCharmaps);
}

// What the device has to show is the best sample.
void FontGenerationDialog::ShowChosenText()
{
    constexpr qsizetype most = 200;
    if (const QString text = ChosenText().simplified().left(most); !text.isEmpty())
        preview_->SetSample(text);
}

QString FontGenerationDialog::ChosenText() const
{
    return args_.selection ? QString() : selection_->ChosenText();
}

void FontGenerationDialog::ShowEffect()
{
    const QString fault = args_.selection ? QString() : selection_->Fault();
    for (QPushButton* const button : {ok_, copy_})
        button->setEnabled(fault.isEmpty());
    if (!fault.isEmpty()) {
        preview_->ShowFault(fault);
        return;
    }
    UserInterface silent; // until the choice is made
    const InterfaceScope scope(silent);
    try {
        preview_->ShowFor(Args(), args_.selection ? CodeSet() : selection_->ExactCodes());
    } catch (const CriticalException& error) {
        for (QPushButton* const button : {ok_, copy_})
            button->setEnabled(false);
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
    rendering_->ApplyTo(args.render);
    sources_->ApplyTo(args);
    if (!args.selection)
        args.selection = selection_->Codes();
    return args;
}

QString FontGenerationDialog::CommandLine() const
{
    ActionOpenFontArgs args = Args();
    args.path = AbsolutePathOf(args.path);
    for (FontSource& source : args.sources)
        source.path = AbsolutePathOf(source.path);
    QStringList words = WordsOf(args, args_.selection ? std::nullopt : selection_->Words());
    words.insert(1, u'-' + OptionOf(OptionId::Hide).longName);
    words.prepend(QString(Program::Name));
    words += PreferenceWords();
    const QString name = WithoutRawBytes(QFileInfo(args.path).completeBaseName(), u'_') + u".c"_s;
    words +=
        {u'-' + OptionOf(OptionId::Save).longName, name.startsWith(u'-') ? u"./"_s + name : name};
    return ShellLine(words);
}

void FontGenerationDialog::CopyCommandLine()
{
    try {
        QGuiApplication::clipboard()->setText(CommandLine());
        QToolTip::showText(copy_->mapToGlobal(QPoint()), tr("The line is in the clipboard."),
                           copy_);
    } catch (const CriticalException& error) {
        CurrentInterface().critical(error.Title(), error.Text());
    }
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
