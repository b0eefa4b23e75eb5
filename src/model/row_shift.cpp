#include "model/row_shift.h"

#include <algorithm>

namespace Glyphor {

namespace {

// The rows that have ink, in any plane; the end lies behind the last.
struct InkRows
{
    int begin = 0;
    int end = 0;
};

InkRows InkRowsOf(const Character& character)
{
    const int length = character.info.bytesPerLine;
    const int rows = character.info.Rows();
    const QByteArray bytes = character.bitmap->DataAsList();
    InkRows ink;
    for (int row = 0; row < rows; ++row) {
        bool hasInk = false;
        for (qsizetype at = qsizetype(row) * length; at < bytes.size();
             at += qsizetype(rows) * length)
            hasInk = hasInk || bytes.mid(at, length).count('\0') != length;
        if (!hasInk)
            continue;
        if (ink.end == 0)
            ink.begin = row;
        ink.end = row + 1;
    }
    return ink;
}

void ShiftCell(Character& character, int rows)
{
    const QByteArray before = character.bitmap->DataAsList();
    const int room = character.info.Rows();
    const qsizetype length = character.info.bytesPerLine;
    const qsizetype moved = length * std::min(std::abs(rows), room);
    const QByteArray empty(moved, '\0');
    character.bitmap->AssignData(rows > 0 ? empty + before.chopped(moved)
                                          : before.sliced(moved) + empty);
}

bool ShiftOffset(Character& character, int rows)
{
    CharInfo& info = character.info;
    const int offset = info.yPos + rows;
    const int padding = std::max(0, offset - CharInfo::MaxOffset);
    const bool isEmpty = info.width == 0 || info.height == 0;
    if (isEmpty) {
        info.yPos =
            static_cast<qint8>(std::clamp(offset, CharInfo::MinOffset, CharInfo::MaxOffset));
        return true;
    }
    if (offset < CharInfo::MinOffset || info.height + padding > CharInfo::MaxSize)
        return false;
    info.yPos = static_cast<qint8>(offset - padding);
    for (int row = 0; row < padding; ++row) {
        character.bitmap->InsertRowTop(); // which moves it up
        ++info.yPos;
    }
    return true;
}

} // namespace

std::optional<InkOverflow> ShiftRows(Character& character, int rows)
{
    const FontMetrics& font = character.info.font;
    const bool isCell = IsLegacyFormat(font.format);
    const InkRows ink = InkRowsOf(character);
    const int top = (isCell ? 0 : character.info.yPos) + rows;
    InkOverflow beyond;
    if (ink.end > 0)
        beyond = {std::min(std::max(0, -(top + ink.begin)), ink.end - ink.begin),
                  std::min(std::max(0, top + ink.end - font.height), ink.end - ink.begin)};
    if (isCell)
        ShiftCell(character, rows);
    else if (!ShiftOffset(character, rows))
        return std::nullopt;
    return beyond;
}

} // namespace Glyphor
