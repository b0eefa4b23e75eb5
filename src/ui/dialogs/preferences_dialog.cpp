#include "ui/dialogs/preferences_dialog.h"

#include "app/settings.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

PreferencesDialog::PreferencesDialog(QWidget* parent)
    : QDialog(parent),
      pages_(new QTabWidget),
      numeralSystem_(new QComboBox),
      hideLegacy_(new QCheckBox(tr("&Hide legacy font formats"))),
      logActions_(new QCheckBox(tr("&Log actions in C files"))),
      createLogFile_(new QCheckBox(tr("Create a log &file beside a saved font"))),
      useSystemEndings_(new QCheckBox(tr("Use the s&ystem's line endings"))),
      lineEndings_(new QComboBox),
      directories_(new QListWidget),
      recursively_(new QCheckBox(tr("Search additional directories &recursively"))),
      useBitmaps_(new QCheckBox(tr("&Use included bitmap sizes")))
{
    setWindowTitle(tr("Preferences"));
    pages_->addTab(MakeGeneralPage(), tr("General"));
    pages_->addTab(MakeFilesPage(), tr("Generated files"));
    pages_->addTab(MakeFontsPage(), tr("Installed fonts"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(pages_, 1);
    AddButtons(*this, *layout);
    const PreferencesDialogData stored = Settings::Instance().preferencesDialog.load();
    pages_->setCurrentIndex(std::clamp(stored.page, 0, pages_->count() - 1));
    RestoreGeometry(*this, stored.geometry);
}

PreferencesDialog::~PreferencesDialog()
{
    Settings::Instance().preferencesDialog.save({saveGeometry(), pages_->currentIndex()});
}

void PreferencesDialog::ShowPage(Page page)
{
    pages_->setCurrentIndex(page);
}

QWidget* PreferencesDialog::MakeGeneralPage()
{
    const Settings& settings = Settings::Instance();
    numeralSystem_->addItems({tr("Decimal"), tr("Hexadecimal")});
    numeralSystem_->setCurrentIndex(settings.numeralSystem.value());
    hideLegacy_->setChecked(settings.hideLegacy.value());
    hideLegacy_->setToolTip(
        tr("The choice of a format then has the formats for new firmware only."));
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    form->addRow(tr("&Numeral system of codes:"), numeralSystem_);
    form->addRow(hideLegacy_);
    return page;
}

QWidget* PreferencesDialog::MakeFilesPage()
{
    const Settings& settings = Settings::Instance();
    logActions_->setChecked(settings.logActions.value());
    createLogFile_->setChecked(settings.createLogFile.value());
    useSystemEndings_->setToolTip(tr("CR LF, which the tools for firmware expect"));
    useSystemEndings_->setChecked(settings.useSysLineEndings.value());
    lineEndings_->addItems({tr("CR LF"), tr("CR"), tr("LF")});
    lineEndings_->setCurrentIndex(settings.lineEndings.value());
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    form->addRow(logActions_);
    form->addRow(createLogFile_);
    form->addRow(useSystemEndings_);
    form->addRow(tr("Line &endings:"), lineEndings_);
    const auto update = [this] { lineEndings_->setEnabled(!useSystemEndings_->isChecked()); };
    connect(useSystemEndings_, &QCheckBox::toggled, this, update);
    update();
    return page;
}

QWidget* PreferencesDialog::MakeFontsPage()
{
    const Settings& settings = Settings::Instance();
    useBitmaps_->setChecked(settings.useIncludedBitmaps.value());
    useBitmaps_->setToolTip(
        tr("A font that has bitmaps of the wanted height then gives these instead of outlines."));
    recursively_->setChecked(settings.searchDirsRecursively.value());
    for (const QString& path : settings.additionalFontDirs.value())
        AddDirectory(path);
    auto* const add = new QPushButton(tr("&Add..."));
    auto* const remove = new QPushButton(tr("Re&move"));
    auto* const buttons = new QVBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addStretch();
    auto* const row = new QHBoxLayout;
    directories_->setAccessibleName(tr("Additional font directories"));
    row->addWidget(directories_, 1);
    row->addLayout(buttons);
    auto* const note = new QLabel(tr("System directories are always searched recursively.<br>"
                                     "<b>Note:</b> Maximum depth is limited to 10."));
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    layout->addWidget(useBitmaps_);
    layout->addWidget(LabelFor(*directories_, tr("Additional font &directories:")));
    layout->addLayout(row, 1);
    layout->addWidget(recursively_);
    layout->addWidget(note);
    connect(add, &QPushButton::clicked, this, [this] {
        AddDirectory(QFileDialog::getExistingDirectory(this, tr("Additional font directory")));
    });
    connect(remove, &QPushButton::clicked, this,
            [this] { delete directories_->takeItem(directories_->currentRow()); });
    const auto update = [this, remove] { remove->setEnabled(directories_->currentRow() >= 0); };
    connect(directories_, &QListWidget::currentRowChanged, this, update);
    update();
    return page;
}

void PreferencesDialog::AddDirectory(const QString& path)
{
    if (path.isEmpty() || Directories().contains(path))
        return;
    directories_->addItem(path);
    if (!QDir(path).exists()) {
        QListWidgetItem* const item = directories_->item(directories_->count() - 1);
        item->setForeground(palette().color(QPalette::Disabled, QPalette::Text));
        item->setToolTip(tr("There is no such directory now."));
    }
}

QStringList PreferencesDialog::Directories() const
{
    QStringList paths;
    for (int row = 0; row < directories_->count(); ++row)
        paths.append(directories_->item(row)->text());
    return paths;
}

void PreferencesDialog::accept()
{
    Settings& settings = Settings::Instance();
    settings.numeralSystem.setValue(numeralSystem_->currentIndex());
    settings.hideLegacy.setValue(hideLegacy_->isChecked());
    settings.logActions.setValue(logActions_->isChecked());
    settings.createLogFile.setValue(createLogFile_->isChecked());
    settings.useSysLineEndings.setValue(useSystemEndings_->isChecked());
    settings.lineEndings.setValue(lineEndings_->currentIndex());
    settings.useIncludedBitmaps.setValue(useBitmaps_->isChecked());
    settings.searchDirsRecursively.setValue(recursively_->isChecked());
    settings.additionalFontDirs.setValue(Directories());
    QDialog::accept();
}

} // namespace Glyphor
