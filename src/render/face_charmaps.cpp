#include "render/face_charmaps.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"

#include FT_TRUETYPE_IDS_H

#include <algorithm>
#include <span>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QString CharmapName(const FT_CharMapRec& charmap)
{
    switch (charmap.encoding) {
    case FT_ENCODING_UNICODE:
        return u"Unicode"_s;
    case FT_ENCODING_MS_SYMBOL:
        return Engine::tr("symbols");
    case FT_ENCODING_APPLE_ROMAN:
        return u"Mac Roman"_s;
    case FT_ENCODING_SJIS:
        return u"Shift JIS"_s;
    case FT_ENCODING_PRC:
        return u"GB 18030"_s;
    case FT_ENCODING_BIG5:
        return u"Big5"_s;
    case FT_ENCODING_WANSUNG:
        return u"Wansung"_s;
    case FT_ENCODING_JOHAB:
        return u"Johab"_s;
    case FT_ENCODING_ADOBE_LATIN_1:
        return u"Latin 1"_s;
    case FT_ENCODING_ADOBE_STANDARD:
    case FT_ENCODING_ADOBE_EXPERT:
    case FT_ENCODING_ADOBE_CUSTOM:
        return Engine::tr("one of the font's own");
    default:
        return Engine::tr("platform %1, encoding %2")
            .arg(charmap.platform_id)
            .arg(charmap.encoding_id);
    }
}

[[noreturn]] void RefuseCharmaps(FT_Face face, const QString& reason)
{
    const QString charmaps = CharmapNames(face).join(u", "_s);
    throw CriticalException(
        Engine::tr("Font creation failed!"),
        charmaps.isEmpty()
            ? Engine::tr("%1: it has none, so nothing tells which glyph is which character.")
                  .arg(reason)
            : Engine::tr("%1: it has %2. -charmap chooses one by its index.")
                  .arg(reason, charmaps));
}

} // namespace

QStringList CharmapNames(FT_Face face)
{
    QStringList names;
    for (FT_Int index = 0; index < face->num_charmaps; ++index)
        names.append(u"%1: %2"_s.arg(QString::number(index), CharmapName(*face->charmaps[index])));
    return names;
}

bool HasOtherCharmaps(FT_Face face)
{
    const std::span charmaps(face->charmaps, std::size_t(std::max(0, face->num_charmaps)));
    return !std::ranges::all_of(charmaps, [](const FT_CharMapRec* charmap) {
        return charmap->encoding == FT_ENCODING_UNICODE;
    });
}

void SelectCharmap(FT_Face face, int index)
{
    if (index >= 0) {
        if (index >= face->num_charmaps || FT_Set_Charmap(face, face->charmaps[index]) != 0)
            RefuseCharmaps(
                face, Engine::tr("The face has no usable charmap with the index %1").arg(index));
        return;
    }
    const bool isUsable = face->charmap != nullptr; // FreeType chose Unicode's
    if (!isUsable && FT_Select_Charmap(face, FT_ENCODING_MS_SYMBOL) != 0)
        RefuseCharmaps(face, Engine::tr("The face has no charmap of Unicode"));
}

} // namespace Glyphor
