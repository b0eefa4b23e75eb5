#include "ui/window/kerning_panel.h"

#include "model/encoding.h"
#include "ui/support/dialog_parts.h"
#include "ui/support/value_fields.h"

#include <QFormLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// What the 16 bits of a kerning file hold.
constexpr int MinDistance = -32768;
constexpr int MaxDistance = 32767;

class DistanceDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override
    {
        auto* const editor = new QSpinBox(parent);
        editor->setRange(MinDistance, MaxDistance);
        editor->setFrame(false);
        return editor;
    }
};

// A character and its code, as far as it can be shown.
QString TextOf(quint16 code, EncodingType encoding)
{
    const auto unicode = EncodingFor(encoding).Converted(EncodingType::Unicode, code);
    const QString text = CodeText(code);
    return unicode && QChar(*unicode).isPrint() && !QChar(*unicode).isSpace()
               ? u"%1  %2"_s.arg(QChar(*unicode)).arg(text)
               : text;
}

} // namespace

void KerningModel::Show(const Font* font, const Character* character)
{
    const std::vector<KerningPair> pairs =
        character != nullptr ? character->kerning : std::vector<KerningPair>();
    encoding_ = font != nullptr ? font->Metrics().encoding : EncodingType::Unicode;
    saved_ = font != nullptr ? font->SavedCodes() : CodeSet();
    if (std::ranges::equal(pairs, pairs_, {}, &KerningPair::right, &KerningPair::right)) {
        pairs_ = pairs;
        if (!pairs_.empty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Distance));
        return;
    }
    beginResetModel();
    pairs_ = pairs;
    endResetModel();
}

int KerningModel::RowOf(quint16 next) const
{
    const auto found = std::ranges::find(pairs_, next, &KerningPair::right);
    return found != pairs_.end() ? int(found - pairs_.begin()) : -1;
}

int KerningModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(pairs_.size());
}

int KerningModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant KerningModel::data(const QModelIndex& index, int role) const
{
    const KerningPair& pair = pairs_[std::size_t(index.row())];
    const bool isNext = index.column() == Next;
    const bool isSaved = saved_.Test(pair.right);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return isNext ? QVariant(TextOf(pair.right, encoding_)) : QVariant(pair.distance);
    case Qt::ToolTipRole:
        return isSaved ? EncodingFor(encoding_).CharName(pair.right)
                       : tr("The character is not enabled, so the pair is not saved.");
    case Qt::ForegroundRole:
        return isSaved ? QVariant()
                       : QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    case Qt::TextAlignmentRole:
        return isNext ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant KerningModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Next ? tr("Next character") : tr("Distance");
}

Qt::ItemFlags KerningModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == Distance ? flags | Qt::ItemIsEditable : flags;
}

// The font is changed by others; the model then hears of it.
bool KerningModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || index.column() != Distance)
        return false;
    const KerningPair pair = pairs_[std::size_t(index.row())];
    if (value.toInt() != pair.distance)
        Q_EMIT DistanceSet(pair.right, value.toInt());
    return true;
}

KerningPanel::KerningPanel(QWidget* parent)
    : QWidget(parent),
      model_(new KerningModel(this)),
      title_(PlainLabel()),
      table_(new QTableView),
      next_(new QLineEdit),
      distance_(new QSpinBox),
      add_(new QPushButton(tr("Add"))),
      remove_(new QPushButton(tr("Remove")))
{
    setAccessibleName(tr("Kerning"));
    setToolTip(
        tr("Font files hold no kerning: File > Save kerning table... writes the pairs of all "
           "characters."));
    table_->setModel(model_);
    table_->setItemDelegate(new DistanceDelegate(table_));
    table_->setAccessibleName(tr("Kerning pairs"));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    table_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                            QAbstractItemView::AnyKeyPressed);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->verticalHeader()->hide();
    table_->installEventFilter(this);
    next_->installEventFilter(this);
    next_->setToolTip(tr("A code (0x41, U+0041 or 65), or a character that is no digit"));
    distance_->setRange(MinDistance, MaxDistance);
    distance_->setValue(-1);
    distance_->setToolTip(tr("Pixels; negative ones bring the characters closer together"));
    auto* const form = new QFormLayout;
    form->addRow(tr("Next character") + u':', next_);
    form->addRow(tr("Distance") + u':', distance_);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(title_);
    layout->addWidget(table_, 1);
    layout->addLayout(form);
    layout->addWidget(Row({add_, remove_}, nullptr));
    connect(model_, &KerningModel::DistanceSet, this,
            [this](quint16 next, int distance) { Q_EMIT PairSet(quint16(code_), next, distance); });
    connect(add_, &QPushButton::clicked, this, &KerningPanel::Add);
    connect(next_, &QLineEdit::returnPressed, this, &KerningPanel::Add);
    connect(next_, &QLineEdit::textChanged, this, &KerningPanel::EnablePossible);
    connect(remove_, &QPushButton::clicked, this, &KerningPanel::RemoveSelected);
    const auto* const selection = table_->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &KerningPanel::EnablePossible);
    connect(model_, &QAbstractItemModel::modelReset, this, &KerningPanel::EnablePossible);
    ShowCode(nullptr, -1);
}

void KerningPanel::ShowCode(const Font* font, int code)
{
    const Character* const character =
        font != nullptr && code >= 0 ? font->FindChar(quint16(code)) : nullptr;
    code_ = character != nullptr ? code : -1;
    encoding_ = font != nullptr ? font->Metrics().encoding : EncodingType::Unicode;
    existing_ = font != nullptr ? font->ExistingCodes() : CodeSet();
    model_->Show(font, character);
    title_->setText(character != nullptr ? tr("Behind %1").arg(TextOf(quint16(code), encoding_))
                                         : tr("No character"));
    EnablePossible();
}

void KerningPanel::EnablePossible()
{
    for (QWidget* const part : std::initializer_list<QWidget*>{table_, next_, distance_})
        part->setEnabled(code_ >= 0);
    add_->setEnabled(TypedCode().has_value());
    remove_->setEnabled(code_ >= 0 && table_->selectionModel()->hasSelection());
}

std::optional<quint16> KerningPanel::TypedCode() const
{
    const auto code = ParseCode(next_->text(), encoding_);
    return code_ >= 0 && code && existing_.Test(*code) ? code : std::nullopt;
}

// Ready for the next one.
void KerningPanel::Add()
{
    const auto next = TypedCode();
    if (!next)
        return;
    distance_->interpretText();
    next_->setText({}); // and nothing to undo in it
    next_->setFocus();
    Q_EMIT PairSet(quint16(code_), *next, distance_->value());
    if (const int row = model_->RowOf(*next); row >= 0)
        table_->selectRow(row);
}

void KerningPanel::RemoveSelected()
{
    CodeSet next;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows())
        next.Set(model_->NextOf(index.row()), true);
    if (!next.IsEmpty())
        Q_EMIT PairsRemoved(quint16(code_), next);
}

bool KerningPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == next_ && LeavesToWindow(*event, *next_)) {
        event->ignore();
        return true;
    }
    if (watched != table_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Delete) {
        RemoveSelected();
        return true;
    }
    // Wherever a number is typed, it is a distance.
    const QString text = key.text();
    const bool isNumber = text.size() == 1 && (text[0].isDigit() || text[0] == u'-');
    const QModelIndex current = table_->currentIndex();
    if (current.isValid() && (isNumber || key.key() == Qt::Key_F2))
        table_->setCurrentIndex(current.siblingAtColumn(KerningModel::Distance));
    return QWidget::eventFilter(watched, event);
}

} // namespace Glyphor
