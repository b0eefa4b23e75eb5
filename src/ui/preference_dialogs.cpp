#include "ui/preference_dialogs.h"

#include "app/settings.h"
#include "render/font_database.h"
#include "ui/dialog_parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QInputDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QCheckBox* Box(const QString& text, bool isOn)
{
    auto* const box = new QCheckBox(text);
    box->setChecked(isOn);
    return box;
}

} // namespace

PreferencesDialog::PreferencesDialog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Preferences"));
    const Settings& settings = Settings::Instance();
    hideLegacy_ = Box(tr("&Hide legacy font formats"), settings.hideLegacy.value());
    numeralSystem_ = new QComboBox;
    numeralSystem_->addItems({tr("Decimal"), tr("Hexadecimal")});
    numeralSystem_->setCurrentIndex(settings.numeralSystem.value() != 0 ? 1 : 0);
    logActions_ = Box(tr("&Log actions in C files"), settings.logActions.value());
    createLogFile_ = Box(tr("&Create a log file"), settings.createLogFile.value());
    useSystemEndings_ =
        Box(tr("Use the &system's line endings"), settings.useSysLineEndings.value());
    lineEndings_ = new QComboBox;
    lineEndings_->addItems({tr("CR LF"), tr("CR"), tr("LF")});
    lineEndings_->setCurrentIndex(std::clamp(settings.lineEndings.value(), 0, 2));
    directories_ = new QPlainTextEdit(settings.additionalFontDirs.value().join(u'\n'));
    directories_->setMaximumHeight(90);
    directories_->setTabChangesFocus(true);
    recursively_ =
        Box(tr("Search directories &recursively"), settings.searchDirsRecursively.value());
    useBitmaps_ = Box(tr("Use &bitmaps included in fonts"), settings.useIncludedBitmaps.value());

    auto* const form = new QFormLayout;
    form->addRow(hideLegacy_);
    form->addRow(tr("&Numeral system:"), numeralSystem_);
    form->addRow(logActions_);
    form->addRow(createLogFile_);
    form->addRow(useSystemEndings_);
    form->addRow(tr("Line &endings:"), lineEndings_);
    form->addRow(tr("&Font directories:"), directories_);
    form->addRow(recursively_);
    form->addRow(useBitmaps_);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    AddButtons(*this, *layout, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    const auto update = [this] { lineEndings_->setEnabled(!useSystemEndings_->isChecked()); };
    connect(useSystemEndings_, &QCheckBox::toggled, this, update);
    update();
}

void PreferencesDialog::accept()
{
    Settings& settings = Settings::Instance();
    settings.hideLegacy.setValue(hideLegacy_->isChecked());
    settings.numeralSystem.setValue(numeralSystem_->currentIndex());
    settings.logActions.setValue(logActions_->isChecked());
    settings.createLogFile.setValue(createLogFile_->isChecked());
    settings.useSysLineEndings.setValue(useSystemEndings_->isChecked());
    settings.lineEndings.setValue(lineEndings_->currentIndex());
    settings.additionalFontDirs.setValue(
        directories_->toPlainText().split(u'\n', Qt::SkipEmptyParts));
    settings.searchDirsRecursively.setValue(recursively_->isChecked());
    settings.useIncludedBitmaps.setValue(useBitmaps_->isChecked());
    QDialog::accept();
}

FontDialog::FontDialog(QWidget* parent)
    : QDialog(parent), family_(new QComboBox), style_(new QComboBox)
{
    setWindowTitle(tr("New font"));
    family_->setEditable(true);
    family_->setInsertPolicy(QComboBox::NoInsert);
    for (const auto& family : FontDatabase::Current()->Families())
        family_->addItem(family->Name());
    family_->completer()->setCompletionMode(QCompleter::PopupCompletion);
    family_->completer()->setFilterMode(Qt::MatchContains);
    auto* const form = new QFormLayout;
    form->addRow(tr("&Family:"), family_);
    form->addRow(tr("&Style:"), style_);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    ok_ = AddButtons(*this, *layout, QDialogButtonBox::Ok | QDialogButtonBox::Cancel)
              ->button(QDialogButtonBox::Ok);
    connect(family_, &QComboBox::currentTextChanged, this, &FontDialog::ShowStyles);
    ShowStyles();
}

void FontDialog::ShowStyles()
{
    style_->clear();
    const FontFamily* const family = FontDatabase::Current()->Find(family_->currentText());
    if (family != nullptr)
        style_->addItems(family->StyleNames());
    ok_->setEnabled(style_->count() > 0);
}

QString FontDialog::Path() const
{
    const FontFamily* const family = FontDatabase::Current()->Find(family_->currentText());
    return family != nullptr ? family->Path(style_->currentText()) : QString();
}

int FontDialog::FaceIndex() const
{
    const FontFamily* const family = FontDatabase::Current()->Find(family_->currentText());
    return family != nullptr ? family->FaceIndex(style_->currentText()) : 0;
}

std::optional<quint16> AskCode(QWidget* parent, const QString& title)
{
    bool isGiven = false;
    const QString text =
        QInputDialog::getText(parent, title, FontDialog::tr("A code (0x41 or 65), or a character:"),
                              QLineEdit::Normal, {}, &isGiven);
    return isGiven ? ParseCode(text) : std::nullopt;
}

} // namespace Glyphor
