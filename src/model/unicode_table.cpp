#include "model/unicode_table.h"

#include <algorithm>

namespace Glyphor {

using CharacterData::BlockRecord;
using CharacterData::CharacterRecord;

namespace {

// Blocks ascend and do not overlap, so the last one that starts at or before the code is the only
// one that can hold it.
const BlockRecord* FindBlock(quint16 code)
{
    const std::span<const BlockRecord> blocks(CharacterData::Blocks);
    const auto next = std::ranges::upper_bound(blocks, code, {}, &BlockRecord::first);
    if (next == blocks.begin())
        return nullptr;
    const BlockRecord& candidate = *std::prev(next);
    return code <= candidate.last ? &candidate : nullptr;
}

} // namespace

std::span<const CharacterRecord> CharacterRecords()
{
    return CharacterData::Characters;
}

QLatin1StringView CharacterName(quint16 code)
{
    const auto table = CharacterRecords();
    const auto record = std::ranges::lower_bound(table, code, {}, &CharacterRecord::code);
    if (record == table.end() || record->code != code)
        return {};
    return QLatin1StringView(CharacterData::Names + record->name);
}

const CharacterRecord* FirstOfCategory(CharacterCategory category)
{
    const auto table = CharacterRecords();
    const auto record =
        std::ranges::find(table, static_cast<quint8>(category), &CharacterRecord::category);
    return record == table.end() ? nullptr : &*record;
}

QLatin1StringView BlockName(quint16 code)
{
    const BlockRecord* block = FindBlock(code);
    return block != nullptr ? QLatin1StringView(CharacterData::Names + block->name)
                            : QLatin1StringView();
}

int BlockIndex(quint16 code)
{
    const BlockRecord* block = FindBlock(code);
    return block != nullptr ? static_cast<int>(block - CharacterData::Blocks) : -1;
}

std::pair<quint16, quint16> BlockRange(quint16 code)
{
    const BlockRecord* block = FindBlock(code);
    return block != nullptr ? std::pair(block->first, block->last) : std::pair<quint16, quint16>();
}

} // namespace Glyphor
