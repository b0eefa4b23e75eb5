#include "ui/dialogs/character_selection.h"

#include "actions/pattern_file.h"
#include "app/critical_exception.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "cli/command_line_option.h"
#include "cli/written_options.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

namespace {

constexpr CharacterChoice Parts[] = {CharacterChoice::Blocks, CharacterChoice::Pattern,
                                     CharacterChoice::Text};

// How several choices are stored: a bit for each, above the numbers of single ones.
constexpr qint32 StoredBit(CharacterChoice choice)
{
    return 4 << qint32(choice);
}

} // namespace

CharacterSelection::CharacterSelection(QWidget* parent)
    : QWidget(parent),
      buttons_(new QGridLayout),
      blocks_(new QListWidget),
      showsEmpty_(new QCheckBox(tr("Show blocks that the font has nothing of"))),
      patternPath_(new QLineEdit),
      text_(new QPlainTextEdit),
      count_(PlainLabel())
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(buttons_);
    QWidget* const blocks = MakeBlocksPart();
    QWidget* const pattern = MakePatternPart();
    text_->setAccessibleName(tr("Text"));
    text_->setPlaceholderText(tr("Type or paste what the device has to show."));
    text_->setTabChangesFocus(true);
    text_->setMinimumHeight(60);
    QCheckBox* const all = AddChoice(CharacterChoice::All, tr("A&ll characters"), nullptr);
    AddChoice(CharacterChoice::Blocks, tr("&Unicode blocks"), blocks);
    AddChoice(CharacterChoice::Pattern, tr("&Pattern file"), pattern);
    AddChoice(CharacterChoice::Text, tr("Characters of a te&xt"), text_);
    all->setChecked(true);
    connect(choices_[CharacterChoice::Text], &QCheckBox::clicked, this, [this](bool isOn) {
        if (isOn)
            text_->setFocus(); // to be typed
    });
    layout->addWidget(blocks, 3);
    layout->addWidget(pattern);
    layout->addWidget(text_, 1);
    layout->addStretch();
    layout->addWidget(count_);
    connect(blocks_, &QListWidget::itemChanged, this, &CharacterSelection::TellChange);
    connect(patternPath_, &QLineEdit::textChanged, this, &CharacterSelection::TellChange);
    connect(text_, &QPlainTextEdit::textChanged, this, &CharacterSelection::TellChange);
    connect(showsEmpty_, &QCheckBox::toggled, this, &CharacterSelection::ShowBlocks);
}

QCheckBox* CharacterSelection::AddChoice(CharacterChoice choice, const QString& text, QWidget* part)
{
    auto* const button = new QCheckBox(text);
    choices_.insert(choice, button);
    const int index = int(choice);
    buttons_->addWidget(button, index / 2, index % 2);
    if (part != nullptr) {
        part->hide();
        connect(button, &QCheckBox::toggled, part, [this, part](bool isOn) {
            part->setVisible(isOn);
            // What scrolls around this has to know at once, or the parts are squeezed.
            for (QWidget* around = this; around != nullptr; around = around->parentWidget()) {
                if (around->layout() != nullptr)
                    around->layout()->activate();
                around->updateGeometry();
            }
        });
    }
    connect(button, &QCheckBox::toggled, this, [this, choice](bool isOn) { Choose(choice, isOn); });
    return button;
}

// All characters go with nothing else; there is nothing but all of them where nothing is chosen.
void CharacterSelection::Choose(CharacterChoice choice, bool isOn)
{
    if (choice == CharacterChoice::All) {
        for (const CharacterChoice part : Parts) {
            if (isOn)
                choices_[part]->setChecked(false);
        }
    } else if (isOn) {
        choices_[CharacterChoice::All]->setChecked(false);
    }
    const bool isNone =
        std::ranges::none_of(choices_, [](const QCheckBox* box) { return box->isChecked(); });
    if (!isNone)
        TellChange();
    else if (choice != CharacterChoice::All)
        choices_[CharacterChoice::All]->setChecked(true);
    else
        choices_[CharacterChoice::Blocks]->setChecked(true);
}

bool CharacterSelection::Has(CharacterChoice choice) const
{
    return choices_.value(choice)->isChecked();
}

bool CharacterSelection::HasOnly(CharacterChoice choice) const
{
    return std::ranges::all_of(Parts,
                               [&](CharacterChoice part) { return Has(part) == (part == choice); });
}

QWidget* CharacterSelection::MakeBlocksPart()
{
    for (const UnicodeBlock& block : UnicodeBlocks()) {
        auto* const item = new QListWidgetItem(block.name, blocks_);
        item->setData(Qt::UserRole, block.first);
        item->setCheckState(Qt::Unchecked);
        item->setToolTip(CodeText(block.first) + QChar(0x2013) + CodeText(block.last));
    }
    blocks_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    blocks_->setAccessibleName(tr("Unicode blocks"));
    blocks_->setMinimumHeight(100);
    return Column({blocks_, showsEmpty_}, blocks_);
}

QWidget* CharacterSelection::MakePatternPart()
{
    auto* const browse = new QPushButton(tr("Bro&wse..."));
    browse->setAutoDefault(false);
    patternPath_->setAccessibleName(tr("Pattern file"));
    const QString note = tr("A text file in UTF-16 LE with the characters.");
    patternPath_->setPlaceholderText(note);
    patternPath_->setToolTip(note);
    connect(browse, &QPushButton::clicked, this, &CharacterSelection::BrowsePattern);
    return Row({patternPath_, browse}, patternPath_);
}

void CharacterSelection::ShowFace(const CodeSet& codes)
{
    face_ = codes;
    ShowBlocks();
    ShowCount();
}

// Chosen ones show in any case.
void CharacterSelection::ShowBlocks()
{
    const QSignalBlocker once(blocks_);
    for (int row = 0; row < blocks_->count(); ++row) {
        const UnicodeBlock& block = UnicodeBlocks()[std::size_t(row)];
        CodeSet codes;
        codes.SetRange(block.first, block.last, true);
        codes &= face_;
        QListWidgetItem* const item = blocks_->item(row);
        item->setText(tr("%1 (%L2)").arg(block.name).arg(codes.Count()));
        item->setHidden(codes.IsEmpty() && !showsEmpty_->isChecked() &&
                        item->checkState() == Qt::Unchecked);
    }
}

void CharacterSelection::ShowCount()
{
    CodeSet chosen;
    try {
        if (Fault().isEmpty())
            chosen = Codes().value_or(face_);
    } catch (const CriticalException&) {
        chosen = {}; // making the font will tell
    }
    const int wanted = chosen.Count();
    chosen &= face_;
    count_->setText(
        Has(CharacterChoice::All)
            ? tr("All %L1 characters of the font").arg(chosen.Count())
            : tr("Chosen: %L1 codes, of which the font has %L2").arg(wanted).arg(chosen.Count()));
}

void CharacterSelection::TellChange()
{
    ShowCount();
    Q_EMIT Changed();
}

void CharacterSelection::BrowsePattern()
{
    const QString path = ChosenPath(QFileDialog::getOpenFileUrl(
        this, tr("Read pattern file"), QUrl::fromLocalFile(patternPath_->text()),
        tr("Text files (*.txt)"), nullptr, {}, {QStringLiteral("file")}));
    if (!path.isEmpty())
        patternPath_->setText(path);
}

void CharacterSelection::Load(const FontGenerationDialogData& record)
{
    for (int row = 0; row < blocks_->count(); ++row) {
        QListWidgetItem* const item = blocks_->item(row);
        const bool isOn = record.blocks.contains(item->data(Qt::UserRole).toInt());
        item->setCheckState(isOn ? Qt::Checked : Qt::Unchecked);
    }
    patternPath_->setText(record.patternPath);
    text_->setPlainText(record.text);
    for (const CharacterChoice choice : Parts) {
        if (record.characters == qint32(choice) || (record.characters & StoredBit(choice)) != 0)
            choices_[choice]->setChecked(true);
    }
    ShowBlocks();
}

void CharacterSelection::Store(FontGenerationDialogData& record) const
{
    record.characters = qint32(CharacterChoice::All);
    for (const CharacterChoice choice : Parts) {
        if (HasOnly(choice))
            record.characters = qint32(choice);
        else if (Has(choice))
            record.characters |= StoredBit(choice);
    }
    record.blocks.clear();
    for (int row = 0; row < blocks_->count(); ++row) {
        if (blocks_->item(row)->checkState() == Qt::Checked)
            record.blocks.append(blocks_->item(row)->data(Qt::UserRole).toInt());
    }
    record.patternPath = patternPath_->text();
    record.text = text_->toPlainText();
}

CodeSet CharacterSelection::BlockCodes() const
{
    CodeSet codes;
    for (int row = 0; row < blocks_->count(); ++row) {
        const UnicodeBlock& block = UnicodeBlocks()[std::size_t(row)];
        if (blocks_->item(row)->checkState() == Qt::Checked)
            codes.SetRange(block.first, block.last, true);
    }
    return codes;
}

CodeSet CharacterSelection::TextCodes() const
{
    CodeSet codes;
    for (const QChar character : text_->toPlainText()) {
        if (character.isPrint())
            codes.Set(character.unicode(), true);
    }
    return codes;
}

std::optional<CodeSet> CharacterSelection::Codes() const
{
    if (Has(CharacterChoice::All))
        return std::nullopt;
    CodeSet codes = ExactCodes();
    if (Has(CharacterChoice::Blocks))
        codes |= BlockCodes();
    return codes;
}

CodeSet CharacterSelection::ExactCodes() const
{
    CodeSet codes;
    if (Has(CharacterChoice::Pattern))
        codes |= PatternFile(patternPath_->text()).Read();
    if (Has(CharacterChoice::Text))
        codes |= TextCodes();
    return codes;
}

std::optional<QStringList> CharacterSelection::Words() const
{
    if (HasOnly(CharacterChoice::Pattern))
        return QStringList{u'-' + OptionOf(OptionId::ReadPattern).longName,
                           AbsolutePathOf(patternPath_->text())};
    return HasOnly(CharacterChoice::Text) ? WordsOfText(TextCodes()) : std::nullopt;
}

QString CharacterSelection::ChosenText() const
{
    return Has(CharacterChoice::Text) ? text_->toPlainText() : QString();
}

QString CharacterSelection::Fault() const
{
    if (Has(CharacterChoice::Blocks) && BlockCodes().IsEmpty())
        return tr("Choose a block.");
    if (Has(CharacterChoice::Pattern)) {
        const QString path = patternPath_->text();
        if (path.isEmpty())
            return tr("Choose a pattern file.");
        if (KindOf(path) != FileKind::Ordinary)
            return tr("The file %1 does not exist.").arg(Shown(path));
    }
    if (Has(CharacterChoice::Text) && TextCodes().IsEmpty())
        return tr("Enter some characters.");
    return {};
}

} // namespace Glyphor
