#include "ui/table/character_model.h"

#include "model/code_text.h"
#include "model/encoding.h"
#include "ui/support/char_picture.h"

#include <algorithm>
#include <array>

namespace Glyphor {

using namespace Qt::StringLiterals;

void CharacterModel::ShowFont(const Font* font)
{
    beginResetModel();
    font_ = font;
    rows_ = FindRows();
    usualWidth_ = FindUsualWidth();
    endResetModel();
}

bool CharacterModel::Refresh()
{
    usualWidth_ = FindUsualWidth();
    std::vector<int> rows = FindRows();
    if (rows == rows_) {
        if (!rows_.empty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
        return false;
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
    return true;
}

bool CharacterModel::ShowAll(bool isOn)
{
    showsAll_ = isOn;
    return Refresh();
}

void CharacterModel::ShowHexadecimal(bool isOn)
{
    isHexadecimal_ = isOn;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, Columns - 1);
    if (!rows_.empty())
        Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

std::vector<int> CharacterModel::FindRows() const
{
    std::vector<int> rows;
    if (font_ == nullptr)
        return rows;
    CodeSet codes = font_->ExistingCodes();
    if (!showsAll_)
        codes &= font_->EnabledCodes();
    for (int code = codes.Next(0); code < CodeSet::Limit;
         code = codes.Next((rows.back() + 1) * Columns))
        rows.push_back(code / Columns);
    return rows;
}

int CharacterModel::FindUsualWidth() const
{
    if (font_ == nullptr)
        return 1;
    std::array<int, CharInfo::MaxSize + 1> counts{};
    int count = 0;
    CodeSet codes = font_->ExistingCodes();
    if (!showsAll_)
        codes &= font_->EnabledCodes();
    for (const quint16 code : codes) {
        const int width = font_->FindChar(code)->info.width;
        if (width > 1) { // or characters without pixels would decide
            ++counts[std::size_t(width)];
            ++count;
        }
    }
    int usual = 1;
    int narrower = 0;
    for (int width = 0; width <= CharInfo::MaxSize && narrower < count * 9 / 10; ++width) {
        narrower += counts[std::size_t(width)];
        usual = std::max(1, width);
    }
    return usual;
}

quint16 CharacterModel::CodeOf(const QModelIndex& index) const
{
    return quint16(rows_[std::size_t(index.row())] * Columns + index.column());
}

QModelIndex CharacterModel::IndexOf(int code) const
{
    const auto row = std::ranges::lower_bound(rows_, code / Columns);
    if (code < 0 || row == rows_.end() || *row != code / Columns)
        return {};
    return index(int(row - rows_.begin()), code % Columns);
}

const Character* CharacterModel::CharacterAt(quint16 code) const
{
    return showsAll_ || font_->IsEnabled(code) ? font_->FindChar(code) : nullptr;
}

// Few ranges, whatever the number of codes: whole rows are taken together.
QItemSelection CharacterModel::Cells(const CodeSet& codes) const
{
    QItemSelection cells;
    int wholeRows = 0; // before this one
    const auto addWholeRows = [&](int end) {
        if (wholeRows > 0)
            cells.append(
                QItemSelectionRange(index(end - wholeRows, 0), index(end - 1, Columns - 1)));
        wholeRows = 0;
    };
    for (int row = 0; row < rowCount(); ++row) {
        const int begin = rows_[std::size_t(row)] * Columns;
        const int end = begin + Columns;
        if (codes.Next(begin, false) >= end) {
            ++wholeRows;
            continue;
        }
        addWholeRows(row);
        for (int first = codes.Next(begin); first < end;) {
            const int last = std::min(codes.Next(first, false), end) - 1;
            cells.append(QItemSelectionRange(index(row, first - begin), index(row, last - begin)));
            first = codes.Next(last + 1);
        }
    }
    addWholeRows(rowCount());
    return cells;
}

int CharacterModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(rows_.size());
}

int CharacterModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

// What can't be seen is not to be edited.
Qt::ItemFlags CharacterModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool isHidden = !showsAll_ && !font_->IsEnabled(CodeOf(index));
    return isHidden ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

QVariant CharacterModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const quint16 code = CodeOf(index);
    switch (role) {
    case CodeRole:
        return code;
    case NameRole:
        return QString(EncodingFor(font_->Metrics().encoding).CharName(code));
    case EnabledRole:
        return font_->IsEnabled(code);
    case PictureRole: {
        const Character* const character = CharacterAt(code);
        return character != nullptr ? CharPicture(*character, Qt::black, Qt::cyan) : QVariant();
    }
    case Qt::ToolTipRole:
        return Description(code);
    case Qt::AccessibleTextRole:
        return AccessibleText(code);
    default:
        return {};
    }
}

QVariant CharacterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return NumberText(rows_[std::size_t(section)] * Columns);
    return isHexadecimal_ ? QString::number(section, 16).toUpper() : u"+%1"_s.arg(section);
}

QString CharacterModel::NumberText(int code) const
{
    return ShownCode(quint16(code), isHexadecimal_);
}

QString CharacterModel::Description(quint16 code) const
{
    const QLatin1StringView name = EncodingFor(font_->Metrics().encoding).CharName(code);
    return name.isEmpty() ? NumberText(code) : NumberText(code) + u' ' + name;
}

QString CharacterModel::AccessibleText(quint16 code) const
{
    if (CharacterAt(code) == nullptr)
        return tr("%1, no character").arg(Description(code));
    return (font_->IsEnabled(code) ? tr("%1, enabled") : tr("%1, disabled")).arg(Description(code));
}

} // namespace Glyphor
