#include "ui/dialogs/preferences_dialog.h"

#include "app/file_system.h"
#include "app/shown_text.h"
#include "ui/support/contrast.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

PreferencesDialog::PreferencesDialog(QWidget* parent)
    : QDialog(parent), pages_(new QTabWidget), directories_(new QListWidget)
{
    setWindowTitle(tr("Preferences"));
    pages_->addTab(MakeGeneralPage(), tr("General"));
    pages_->addTab(MakeFilesPage(), tr("Generated files"));
    pages_->addTab(MakeFontsPage(), tr("Installed fonts"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(ScrollingContent(*pages_), 1);
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

QCheckBox* PreferencesDialog::MakeBox(OptionByRef<bool>& option, const QString& text,
                                      const QString& toolTip)
{
    auto* const box = new QCheckBox(text);
    box->setChecked(option.value());
    box->setToolTip(toolTip);
    connect(this, &QDialog::accepted, box, [box, &option] { option.setValue(box->isChecked()); });
    return box;
}

QComboBox* PreferencesDialog::MakeList(OptionByRef<int>& option, const QStringList& choices)
{
    auto* const list = new QComboBox;
    list->addItems(choices);
    list->setCurrentIndex(option.value());
    connect(this, &QDialog::accepted, list,
            [list, &option] { option.setValue(list->currentIndex()); });
    return list;
}

QWidget* PreferencesDialog::MakeGeneralPage()
{
    Settings& settings = Settings::Instance();
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    form->addRow(tr("&Numeral system of codes:"),
                 MakeList(settings.numeralSystem, {tr("Decimal"), tr("Hexadecimal")}));
    form->addRow(MakeBox(settings.hideLegacy, tr("&Hide legacy font formats"),
                         tr("The choice of a format then has the formats for new firmware only.")));
    return page;
}

QWidget* PreferencesDialog::MakeFilesPage()
{
    Settings& settings = Settings::Instance();
    QCheckBox* const useSystemEndings =
        MakeBox(settings.useSysLineEndings, tr("Use the s&ystem's line endings"),
                tr("CR LF, which the tools for firmware expect"));
    QComboBox* const lineEndings =
        MakeList(settings.lineEndings, {tr("CR LF"), tr("CR"), tr("LF")});
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    form->addRow(MakeBox(settings.logActions, tr("&Log actions in C files")));
    form->addRow(MakeBox(settings.createLogFile, tr("Create a log &file beside a saved font")));
    form->addRow(MakeBox(settings.writePaths, tr("&Write the folders of files into both"),
                         tr("Without them, a font is the same wherever it is made.")));
    form->addRow(useSystemEndings);
    form->addRow(tr("Line &endings:"), lineEndings);
    connect(useSystemEndings, &QCheckBox::toggled, lineEndings, &QWidget::setDisabled);
    lineEndings->setDisabled(useSystemEndings->isChecked());
    return page;
}

QWidget* PreferencesDialog::MakeFontsPage()
{
    Settings& settings = Settings::Instance();
    directories_->setAccessibleName(tr("Additional font directories"));
    for (const QString& path : settings.additionalFontDirs.value())
        AddDirectory(path);
    connect(this, &QDialog::accepted, directories_,
            [this, &settings] { settings.additionalFontDirs.setValue(Directories()); });
    auto* const add = new QPushButton(tr("&Add..."));
    auto* const remove = new QPushButton(tr("Re&move"));
    auto* const note = new QLabel(tr("System directories are always searched recursively.<br>"
                                     "<b>Note:</b> Maximum depth is limited to 10."));
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    layout->addWidget(MakeBox(
        settings.useIncludedBitmaps, tr("&Use included bitmap sizes"),
        tr("A font that has bitmaps of the wanted height then gives these instead of outlines.")));
    layout->addWidget(LabelFor(*directories_, tr("Additional font &directories:")));
    layout->addWidget(Row({directories_, Column({add, remove}, nullptr)}, directories_), 1);
    layout->addWidget(
        MakeBox(settings.searchDirsRecursively, tr("Search additional directories &recursively")));
    layout->addWidget(note);
    connect(add, &QPushButton::clicked, this, [this] {
        AddDirectory(ChosenPath(QFileDialog::getExistingDirectoryUrl(
            this, tr("Additional font directory"), {}, QFileDialog::ShowDirsOnly,
            {QStringLiteral("file")})));
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
    auto* const item = new QListWidgetItem(Shown(path), directories_);
    item->setData(Qt::UserRole, path);
    if (KindOf(path) != FileKind::Directory) {
        item->setForeground(LegibleInk(palette().color(QPalette::Disabled, QPalette::Text),
                                       palette().color(QPalette::Base)));
        item->setToolTip(tr("There is no such directory now."));
    }
}

QStringList PreferencesDialog::Directories() const
{
    QStringList paths;
    for (int row = 0; row < directories_->count(); ++row)
        paths.append(directories_->item(row)->data(Qt::UserRole).toString());
    return paths;
}

} // namespace Glyphor
