#include "ui/dialogs/source_entries.h"

#include "app/critical_exception.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "cli/font_height.h"
#include "files/file_types.h"
#include "ui/dialogs/font_size_box.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// "*.ttf *.bdf": the kinds that can be sources.
QString SourcePatterns()
{
    QStringList patterns;
    for (const FileTypeRow& row : FileTypeTable) {
        for (const QLatin1StringView suffix : row.suffixes) {
            if (row.isScalable || row.type == FileType::Bdf)
                patterns.append(u'*' + suffix);
        }
    }
    return patterns.join(u' ');
}

} // namespace

SourceDialog::SourceDialog(const FontSource& source, QWidget* parent)
    : QDialog(parent),
      path_(new QLineEdit(source.path)),
      map_(new QLineEdit(TextOf(source.map))),
      hasSize_(new QCheckBox(tr("&Own height:"))),
      size_(new FontSizeBox)
{
    setWindowTitle(tr("Source of characters"));
    auto* const browse = new QPushButton(tr("&Browse..."));
    browse->setAutoDefault(false);
    map_->setPlaceholderText(u"0x20-0x7E, 0xF02D1=0xE001"_s);
    auto* const hint = new QLabel(tr("Codes or ranges, with = and the code where they go; behind a "
                                     "? those that only fill gaps."));
    hint->setWordWrap(true);
    hasSize_->setChecked(source.size.has_value());
    size_->setEnabled(source.size.has_value());
    if (source.size)
        size_->SetValue(*source.size);
    auto* const form = new QFormLayout;
    form->addRow(LabelFor(*path_, tr("&File:")), ::Glyphor::Row({path_, browse}, path_));
    form->addRow(tr("&Characters:"), map_);
    form->addRow(QString(), hint);
    form->addRow(hasSize_, size_);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    ok_ = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);
    connect(browse, &QPushButton::clicked, this, &SourceDialog::Browse);
    connect(hasSize_, &QCheckBox::toggled, size_, &QWidget::setEnabled);
    for (const QLineEdit* const field : {path_, map_})
        connect(field, &QLineEdit::textChanged, this, &SourceDialog::EnableOk);
    resize(520, sizeHint().height());
    EnableOk();
}

void SourceDialog::EnableOk()
{
    ok_->setEnabled(!path_->text().isEmpty() && !map_->text().isEmpty());
}

void SourceDialog::Browse()
{
    const QString path = ChosenPath(QFileDialog::getOpenFileUrl(
        this, tr("Source of characters"), QUrl::fromLocalFile(path_->text()),
        tr("Font files (%1)").arg(SourcePatterns()), nullptr, {}, {u"file"_s}));
    if (!path.isEmpty())
        path_->setText(path);
}

FontSource SourceDialog::Source() const
{
    FontSource source{path_->text(), ParseCharacterMap(map_->text()), std::nullopt};
    if (hasSize_->isChecked())
        source.size = size_->Value();
    return source;
}

// A mapping that is none keeps the dialog open.
void SourceDialog::done(int result)
{
    if (result == Accepted) {
        try {
            (void)Source();
        } catch (const CriticalException& error) {
            CurrentInterface().critical(error.Title(), error.Text());
            return;
        }
    }
    QDialog::done(result);
}

SourceEntries::SourceEntries(QWidget* parent)
    : QWidget(parent),
      form_(new QFormLayout),
      charmap_(new QComboBox),
      map_(new QLineEdit),
      list_(new QTreeWidget)
{
    map_->setPlaceholderText(tr("every character to its own code"));
    map_->setToolTip(tr("Which characters of the file to take, and where they go: codes or ranges, "
                        "decimal or hexadecimal, with = and the code where the first one goes "
                        "(e.g. 0x20-0x7E, 0xF02D1=0xE001)."));
    charmap_->setToolTip(tr("The table of the face that tells its codes."));
    form_->addRow(tr("&Charmap:"), charmap_);
    form_->addRow(tr("&Mapping:"), map_);
    list_->setHeaderLabels({tr("File"), tr("Characters"), tr("Height")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setTabKeyNavigation(false);
    list_->setMinimumHeight(80);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form_);
    layout->addWidget(LabelFor(*list_, tr("Characters of &other files:")));
    layout->addWidget(list_, 1);
    layout->addWidget(MakeButtons());
    connect(charmap_, &QComboBox::currentIndexChanged, this, &SourceEntries::Changed);
    connect(map_, &QLineEdit::textChanged, this, &SourceEntries::Changed);
    connect(list_, &QTreeWidget::itemActivated, this, [this] { Edit(Row()); });
    ShowCharmaps({}, false);
    ShowSources(-1);
}

QWidget* SourceEntries::MakeButtons()
{
    auto* const add = new QPushButton(tr("A&dd..."));
    edit_ = new QPushButton(tr("Edi&t..."));
    remove_ = new QPushButton(tr("&Remove"));
    for (QPushButton* const button : {add, edit_, remove_})
        button->setAutoDefault(false);
    connect(add, &QPushButton::clicked, this, [this] { Edit(int(sources_.size())); });
    connect(edit_, &QPushButton::clicked, this, [this] { Edit(Row()); });
    connect(remove_, &QPushButton::clicked, this, &SourceEntries::Remove);
    return ::Glyphor::Row({add, edit_, remove_}, nullptr);
}

int SourceEntries::Row() const
{
    return list_->indexOfTopLevelItem(list_->currentItem());
}

void SourceEntries::ShowSources(int current)
{
    list_->clear();
    for (const FontSource& source : sources_) {
        auto* const item =
            new QTreeWidgetItem({Shown(QFileInfo(source.path).fileName()), TextOf(source.map),
                                 source.size ? TextOf(*source.size) : tr("as above")});
        item->setToolTip(0, Qt::convertFromPlainText(Shown(source.path)));
        item->setToolTip(1, item->text(1));
        list_->addTopLevelItem(item);
    }
    list_->setCurrentItem(list_->topLevelItem(current));
    for (QPushButton* const button : {edit_, remove_})
        button->setEnabled(!sources_.empty());
}

void SourceEntries::Edit(int row)
{
    if (row < 0)
        return;
    const auto index = std::size_t(row);
    const bool isNew = index == sources_.size();
    SourceDialog dialog(isNew ? FontSource() : sources_[index], window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (isNew)
        sources_.emplace_back();
    sources_[index] = dialog.Source();
    ShowSources(row);
    Q_EMIT Changed();
}

void SourceEntries::Remove()
{
    const int row = Row();
    if (row < 0)
        return;
    sources_.erase(sources_.begin() + row);
    ShowSources(std::min(row, int(sources_.size()) - 1));
    Q_EMIT Changed();
}

void SourceEntries::ShowCharmaps(const QStringList& names, bool isChoice)
{
    const QSignalBlocker once(charmap_);
    charmap_->clear();
    charmap_->addItem(tr("The one of Unicode"));
    charmap_->addItems(names);
    form_->setRowVisible(charmap_, isChoice);
}

void SourceEntries::Load(const ActionOpenFontArgs& args)
{
    const int charmap = args.render.charmapIndex + 1;
    charmap_->setCurrentIndex(charmap < charmap_->count() ? charmap : 0);
    map_->setText(TextOf(args.render.map));
    sources_ = args.sources;
    ShowSources(0);
}

void SourceEntries::ApplyTo(ActionOpenFontArgs& args) const
{
    args.render.charmapIndex = std::max(0, charmap_->currentIndex()) - 1;
    args.render.map = MapText().isEmpty() ? CharacterMap() : ParseCharacterMap(MapText());
    args.sources = sources_;
}

QString SourceEntries::MapText() const
{
    return map_->text().trimmed();
}

QStringList DataOf(const std::vector<FontSource>& sources)
{
    QStringList data;
    for (const FontSource& source : sources)
        data += {source.path, TextOf(source.map), source.size ? TextOf(*source.size) : QString()};
    return data;
}

std::vector<FontSource> SourcesOf(const QStringList& data)
{
    std::vector<FontSource> sources;
    for (qsizetype index = 0; index + 2 < data.size(); index += 3) {
        try {
            FontSource source{data[index], ParseCharacterMap(data[index + 1]), std::nullopt};
            if (!data[index + 2].isEmpty())
                source.size = ParseHeight(data[index + 2]);
            sources.push_back(source);
        } catch (const CriticalException&) {
            continue;
        }
    }
    return sources;
}

} // namespace Glyphor
