#include "render/sfnt_table.h"

#include FT_TRUETYPE_TABLES_H

#include <QtEndian>

namespace Glyphor {

std::vector<quint8> SfntTable(FT_Face face, FT_ULong tag)
{
    FT_ULong length = 0;
    if (FT_Load_Sfnt_Table(face, tag, 0, nullptr, &length) != 0)
        return {};
    std::vector<quint8> table(length);
    if (FT_Load_Sfnt_Table(face, tag, 0, table.data(), &length) != 0)
        return {};
    return table;
}

bool HasSfntTable(const FreeTypeFace& face, FT_ULong tag)
{
    FT_ULong length = 0;
    return face.IsOpen() && FT_Load_Sfnt_Table(face.Handle(), tag, 0, nullptr, &length) == 0;
}

quint16 Number(std::span<const quint8> bytes, std::size_t offset)
{
    return qFromBigEndian<quint16>(bytes.data() + offset);
}

} // namespace Glyphor
