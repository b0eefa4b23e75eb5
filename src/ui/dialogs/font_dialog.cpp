#include "ui/dialogs/font_dialog.h"

#include "actions/action_open_font.h"
#include "app/engine_texts.h"
#include "app/settings.h"
#include "ui/preview/face_sample.h"
#include "ui/support/dialog_parts.h"

#include <QComboBox>
#include <QCompleter>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace Glyphor {

namespace {

constexpr int UsualWeight = 400;
constexpr int UsualWidth = 5;

struct ScriptRow
{
    const char* name;
    int bit; // of the OS/2 table's Unicode ranges
};

constexpr std::array<ScriptRow, 28> Scripts = {{
    {QT_TRANSLATE_NOOP("Script", "Latin"), 0},
    {QT_TRANSLATE_NOOP("Script", "Greek"), 7},
    {QT_TRANSLATE_NOOP("Script", "Cyrillic"), 9},
    {QT_TRANSLATE_NOOP("Script", "Armenian"), 10},
    {QT_TRANSLATE_NOOP("Script", "Hebrew"), 11},
    {QT_TRANSLATE_NOOP("Script", "Arabic"), 13},
    {QT_TRANSLATE_NOOP("Script", "Devanagari"), 15},
    {QT_TRANSLATE_NOOP("Script", "Bengali"), 16},
    {QT_TRANSLATE_NOOP("Script", "Gurmukhi"), 17},
    {QT_TRANSLATE_NOOP("Script", "Gujarati"), 18},
    {QT_TRANSLATE_NOOP("Script", "Tamil"), 20},
    {QT_TRANSLATE_NOOP("Script", "Telugu"), 21},
    {QT_TRANSLATE_NOOP("Script", "Kannada"), 22},
    {QT_TRANSLATE_NOOP("Script", "Malayalam"), 23},
    {QT_TRANSLATE_NOOP("Script", "Thai"), 24},
    {QT_TRANSLATE_NOOP("Script", "Lao"), 25},
    {QT_TRANSLATE_NOOP("Script", "Georgian"), 26},
    {QT_TRANSLATE_NOOP("Script", "Mathematical operators"), 38},
    {QT_TRANSLATE_NOOP("Script", "Box drawing"), 43},
    {QT_TRANSLATE_NOOP("Script", "Hiragana"), 49},
    {QT_TRANSLATE_NOOP("Script", "Katakana"), 50},
    {QT_TRANSLATE_NOOP("Script", "Hangul"), 56},
    {QT_TRANSLATE_NOOP("Script", "CJK ideographs"), 59},
    {QT_TRANSLATE_NOOP("Script", "Tibetan"), 70},
    {QT_TRANSLATE_NOOP("Script", "Ethiopic"), 75},
    {QT_TRANSLATE_NOOP("Script", "Khmer"), 80},
    {QT_TRANSLATE_NOOP("Script", "Mongolian"), 81},
    {QT_TRANSLATE_NOOP("Script", "Braille"), 82},
}};

bool HasRange(const FontFamily& family, int bit)
{
    const QList<quint32>& words = family.UnicodeRanges();
    return bit / 32 < words.size() && (words[bit / 32] >> (bit % 32) & 1) != 0;
}

// Another width is farther off than any slant, and that farther than any weight.
int DistanceFromUsual(const FaceStyle& style)
{
    constexpr int slant = 1000;
    constexpr int width = 10 * slant;
    return std::abs(int(style.width) - UsualWidth) * width + (style.italic ? slant : 0) +
           std::min(slant - 1, std::abs(int(style.weight) - UsualWeight));
}

QString WidthName(quint32 width)
{
    static constexpr std::array names = {QT_TRANSLATE_NOOP("Width", "ultra-condensed"),
                                         QT_TRANSLATE_NOOP("Width", "extra-condensed"),
                                         QT_TRANSLATE_NOOP("Width", "condensed"),
                                         QT_TRANSLATE_NOOP("Width", "semi-condensed"),
                                         QT_TRANSLATE_NOOP("Width", "normal"),
                                         QT_TRANSLATE_NOOP("Width", "semi-expanded"),
                                         QT_TRANSLATE_NOOP("Width", "expanded"),
                                         QT_TRANSLATE_NOOP("Width", "extra-expanded"),
                                         QT_TRANSLATE_NOOP("Width", "ultra-expanded")};
    return width >= 1 && width <= names.size()
               ? QCoreApplication::translate("Width", names[width - 1])
               : QString();
}

} // namespace

FontDialog::FontDialog(QWidget* parent)
    : QDialog(parent),
      search_(new QLineEdit),
      script_(new QComboBox),
      families_(new QListWidget),
      styles_(new QTreeWidget),
      size_(new FontSizeBox),
      sample_(new FaceSample),
      status_(PlainLabel()),
      index_(new QPushButton)
{
    setWindowTitle(tr("New font"));
    auto* const directories = new QPushButton(tr("Font &directories..."));
    for (QPushButton* const button : {index_, directories})
        button->setAutoDefault(false);
    auto* const layout = new QVBoxLayout(this);
    QWidget* const choices = MakeChoices();
    layout->addWidget(
        ScrollingContent(*Column(
            {choices, MakeSample(), Row({status_, index_, directories}, status_)}, choices)),
        1);
    ok_ = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);

    const FontDialogData stored = Settings::Instance().fontDialog.load();
    wantedFamily_ = stored.family;
    wantedStyle_ = stored.style;
    size_->SetValue(SizeOf(stored.size));
    script_->setCurrentIndex(std::max(0, script_->findData(stored.script, Qt::UserRole + 1)));
    resize(720, 560);
    RestoreGeometry(*this, stored.geometry);

    connect(index_, &QPushButton::clicked, this, [this] {
        if (isIndexing_)
            Q_EMIT StopRequested();
        else
            Q_EMIT IndexRequested();
    });
    connect(directories, &QPushButton::clicked, this, &FontDialog::DirectoriesRequested);
    connect(search_, &QLineEdit::textEdited, this, [this](const QString& text) {
        searched_ = text.trimmed(); // without what was completed
        ShowFamilies();
    });
    connect(script_, &QComboBox::currentIndexChanged, this, &FontDialog::ShowFamilies);
    connect(families_, &QListWidget::currentRowChanged, this, &FontDialog::ShowStyles);
    connect(styles_, &QTreeWidget::currentItemChanged, this, &FontDialog::ShowSample);
    connect(styles_, &QTreeWidget::itemActivated, this, [this] {
        if (ok_->isEnabled())
            accept();
    });
    connect(size_, &FontSizeBox::Changed, this, &FontDialog::ShowSample);
    ShowDatabase();
    search_->setFocus();
}

FontDialog::~FontDialog()
{
    FontDialogData record = Settings::Instance().fontDialog.load();
    record.geometry = saveGeometry();
    if (result() == Accepted) {
        record.family = wantedFamily_;
        record.style = wantedStyle_;
        record.size = DataOf(size_->Value());
        record.script = script_->currentData(Qt::UserRole + 1).toString();
    }
    Settings::Instance().fontDialog.save(record);
}

QWidget* FontDialog::MakeChoices()
{
    script_->addItem(tr("All scripts"), -1);
    for (const ScriptRow& row : Scripts) {
        script_->addItem(QCoreApplication::translate("Script", row.name), row.bit);
        script_->setItemData(script_->count() - 1, QString::fromLatin1(row.name), Qt::UserRole + 1);
    }
    search_->setClearButtonEnabled(true);
    search_->setPlaceholderText(tr("A part of the name"));
    styles_->setHeaderLabels({tr("Style"), tr("Weight"), tr("Width"), tr("Slant")});
    styles_->header()->setStretchLastSection(false);
    styles_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    styles_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    styles_->setRootIsDecorated(false);
    families_->setAccessibleName(tr("Families"));
    styles_->setAccessibleName(tr("Styles"));

    auto* const splitter = new QSplitter;
    splitter->addWidget(Column({LabelFor(*families_, tr("&Families:")), families_}, families_));
    splitter->addWidget(Column({LabelFor(*styles_, tr("S&tyles:")), styles_}, styles_));
    splitter->setChildrenCollapsible(false);
    QWidget* const searchRow = Row(
        {LabelFor(*search_, tr("&Search:")), search_, LabelFor(*script_, tr("S&cript:")), script_},
        search_);
    return Column({searchRow, splitter}, splitter);
}

QWidget* FontDialog::MakeSample()
{
    QScrollArea* const area = ScrollAreaOf(*sample_);
    area->setMinimumHeight(90);
    return Column({Row({LabelFor(*size_, tr("&Height:")), size_}, nullptr), area}, area);
}

void FontDialog::ShowDatabase()
{
    database_ = FontDatabase::Current();
    UpdateCompleter();
    ShowFamilies();
}

void FontDialog::SetIndexing(bool isIndexing)
{
    isIndexing_ = isIndexing;
    index_->setText(isIndexing ? tr("Stop inde&xing") : tr("Inde&x again"));
    ShowStatus();
}

void FontDialog::ShowStatus()
{
    status_->setText(isIndexing_ ? Engine::tr("Indexing font files...")
                                 : tr("Families: %L1 of %L2")
                                       .arg(families_->count())
                                       .arg(qsizetype(database_->Families().size())));
}

void FontDialog::UpdateCompleter()
{
    QStringList names;
    for (const auto& family : database_->Families())
        names.append(family->Name());
    auto* const completer = new QCompleter(names, search_);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setCompletionMode(QCompleter::InlineCompletion); // the list below shows the others
    search_->setCompleter(completer);
}

void FontDialog::ShowFamilies()
{
    const int bit = script_->currentData().toInt();
    const QString wanted = wantedFamily_;
    const QSignalBlocker blocker(families_);
    families_->clear();
    for (const auto& family : database_->Families()) {
        if (family->Name().contains(searched_, Qt::CaseInsensitive) &&
            (bit < 0 || HasRange(*family, bit)))
            families_->addItem(family->Name());
    }
    const QList<QListWidgetItem*> found = families_->findItems(wanted, Qt::MatchFixedString);
    families_->setCurrentItem(found.isEmpty() ? families_->item(0) : found.constFirst());
    ShowStatus();
    ShowStyles();
}

const FontFamily* FontDialog::Family() const
{
    const QListWidgetItem* const item = families_->currentItem();
    return item != nullptr ? database_->Find(item->text()) : nullptr;
}

QString FontDialog::ChosenStyle() const
{
    const QTreeWidgetItem* const item = styles_->currentItem();
    return item != nullptr ? item->text(0) : QString();
}

// The style that was chosen in this family, or else its most usual one.
void FontDialog::ShowStyles()
{
    const FontFamily* const family = Family();
    const bool isSame = family != nullptr && family->Name() == wantedFamily_;
    const QString wanted = isSame ? wantedStyle_ : QString();
    const QSignalBlocker blocker(styles_);
    styles_->clear();
    int least = std::numeric_limits<int>::max();
    for (const QString& name : family != nullptr ? family->StyleNames() : QStringList()) {
        const FaceStyle style = family->Style(name);
        const QString weight = style.weight > 0 ? QString::number(style.weight) : QString();
        auto* const item = new QTreeWidgetItem(
            {name, weight, WidthName(style.width), style.italic ? tr("italic") : tr("upright")});
        styles_->addTopLevelItem(item);
        const int distance = name == wanted ? -1 : DistanceFromUsual(style);
        if (distance < least) {
            least = distance;
            styles_->setCurrentItem(item);
        }
    }
    if (family != nullptr)
        wantedFamily_ = family->Name();
    ShowSample();
}

void FontDialog::ShowSample()
{
    ok_->setEnabled(!Path().isEmpty());
    if (Path().isEmpty())
        return sample_->ShowNothing();
    wantedStyle_ = ChosenStyle();
    ActionOpenFontArgs args;
    args.path = Path();
    args.render.faceIndex = FaceIndex();
    RenderAt(size_->Value(), args);
    sample_->ShowFace(Family()->Face(ChosenStyle()), std::move(args));
}

QString FontDialog::Path() const
{
    const FontFamily* const family = Family();
    return family != nullptr ? family->Path(ChosenStyle()) : QString();
}

int FontDialog::FaceIndex() const
{
    const FontFamily* const family = Family();
    return family != nullptr ? family->FaceIndex(ChosenStyle()) : 0;
}

} // namespace Glyphor
