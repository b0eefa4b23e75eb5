#include "ui/dialogs/character_selection.h"

#include "actions/pattern_file.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "cli/command_line_option.h"
#include "cli/written_options.h"
#include "ui/support/dialog_parts.h"

#include <QButtonGroup>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QUrl>

namespace Glyphor {

CharacterSelection::CharacterSelection(QWidget* parent)
    : QWidget(parent),
      choices_(new QButtonGroup(this)),
      pages_(new QStackedWidget),
      blocks_(new QListWidget),
      patternPath_(new QLineEdit),
      text_(new QPlainTextEdit)
{
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const UnicodeBlock& block : UnicodeBlocks()) {
        auto* const item = new QListWidgetItem(block.name, blocks_);
        item->setData(Qt::UserRole, block.first);
        item->setCheckState(Qt::Unchecked);
        item->setToolTip(CodeText(block.first) + QChar(0x2013) + CodeText(block.last));
    }
    blocks_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    blocks_->setAccessibleName(tr("Unicode blocks"));
    patternPath_->setAccessibleName(tr("Pattern file"));
    text_->setAccessibleName(tr("Text"));
    text_->setPlaceholderText(tr("Type or paste what the device has to show."));
    text_->setTabChangesFocus(true);
    auto* const all = new QLabel(tr("Every character that the font file has."));
    all->setAlignment(Qt::AlignTop);
    AddChoice(CharacterChoice::All, tr("A&ll characters"), all);
    AddChoice(CharacterChoice::Blocks, tr("&Unicode blocks"), blocks_);
    AddChoice(CharacterChoice::Pattern, tr("&Pattern file"), MakePatternPage());
    AddChoice(CharacterChoice::Text, tr("Characters of a te&xt"), text_);
    pages_->setMinimumHeight(110);
    layout->addWidget(pages_, 2, 0, 1, 2);
    layout->setRowStretch(2, 1);
    choices_->button(int(CharacterChoice::All))->setChecked(true);
    connect(choices_, &QButtonGroup::idToggled, this, [this](int id, bool isOn) {
        if (!isOn)
            return;
        pages_->setCurrentIndex(id);
        Q_EMIT Changed();
    });
    connect(blocks_, &QListWidget::itemChanged, this, &CharacterSelection::Changed);
    connect(patternPath_, &QLineEdit::textChanged, this, &CharacterSelection::Changed);
    connect(text_, &QPlainTextEdit::textChanged, this, &CharacterSelection::Changed);
}

void CharacterSelection::AddChoice(CharacterChoice choice, const QString& text, QWidget* page)
{
    auto* const button = new QRadioButton(text);
    choices_->addButton(button, int(choice));
    const int index = int(choice);
    qobject_cast<QGridLayout*>(layout())->addWidget(button, index / 2, index % 2);
    pages_->addWidget(page);
}

QWidget* CharacterSelection::MakePatternPage()
{
    auto* const page = new QWidget;
    auto* const browse = new QPushButton(tr("Bro&wse..."));
    auto* const layout = new QGridLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(patternPath_, 0, 0);
    layout->addWidget(browse, 0, 1);
    layout->addWidget(new QLabel(tr("A text file in UTF-16 LE with the characters.")), 1, 0, 1, 2);
    layout->setRowStretch(2, 1);
    connect(browse, &QPushButton::clicked, this, &CharacterSelection::BrowsePattern);
    return page;
}

void CharacterSelection::BrowsePattern()
{
    const QString path = ChosenPath(QFileDialog::getOpenFileUrl(
        this, tr("Read pattern file"), QUrl::fromLocalFile(patternPath_->text()),
        tr("Text files (*.txt)"), nullptr, {}, {QStringLiteral("file")}));
    if (!path.isEmpty())
        patternPath_->setText(path);
}

CharacterChoice CharacterSelection::Choice() const
{
    return CharacterChoice(choices_->checkedId());
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
    if (QAbstractButton* const button = choices_->button(record.characters))
        button->setChecked(true);
}

void CharacterSelection::Store(FontGenerationDialogData& record) const
{
    record.characters = qint32(Choice());
    record.blocks.clear();
    for (int row = 0; row < blocks_->count(); ++row) {
        if (blocks_->item(row)->checkState() == Qt::Checked)
            record.blocks.append(blocks_->item(row)->data(Qt::UserRole).toInt());
    }
    record.patternPath = patternPath_->text();
    record.text = text_->toPlainText();
}

std::optional<CodeSet> CharacterSelection::Codes() const
{
    CodeSet codes;
    switch (Choice()) {
    case CharacterChoice::All:
        return std::nullopt;
    case CharacterChoice::Blocks:
        for (int row = 0; row < blocks_->count(); ++row) {
            const UnicodeBlock& block = UnicodeBlocks()[std::size_t(row)];
            if (blocks_->item(row)->checkState() == Qt::Checked)
                codes.SetRange(block.first, block.last, true);
        }
        return codes;
    case CharacterChoice::Pattern:
        return PatternFile(patternPath_->text()).Read();
    case CharacterChoice::Text:
        for (const QChar character : text_->toPlainText()) {
            if (character.isPrint())
                codes.Set(character.unicode(), true);
        }
        return codes;
    }
    return std::nullopt;
}

std::optional<QStringList> CharacterSelection::Words() const
{
    if (Choice() == CharacterChoice::Pattern)
        return QStringList{u'-' + OptionOf(OptionId::ReadPattern).longName,
                           AbsolutePathOf(patternPath_->text())};
    return Choice() == CharacterChoice::Text ? WordsOfText(*Codes()) : std::nullopt;
}

bool CharacterSelection::IsExact() const
{
    return Choice() == CharacterChoice::Pattern || Choice() == CharacterChoice::Text;
}

QString CharacterSelection::Fault() const
{
    FontGenerationDialogData record;
    Store(record);
    switch (Choice()) {
    case CharacterChoice::Blocks:
        return record.blocks.isEmpty() ? tr("Choose a block.") : QString();
    case CharacterChoice::Pattern:
        if (record.patternPath.isEmpty())
            return tr("Choose a pattern file.");
        return KindOf(record.patternPath) == FileKind::Ordinary
                   ? QString()
                   : tr("The file %1 does not exist.").arg(Shown(record.patternPath));
    case CharacterChoice::Text:
        return Codes() == CodeSet() ? tr("Enter some characters.") : QString();
    default:
        return {};
    }
}

} // namespace Glyphor
