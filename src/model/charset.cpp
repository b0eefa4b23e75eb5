#include "model/charset.h"

#include <algorithm>

namespace Glyphor {

std::span<const Charset> Charsets()
{
    return CharacterData::Charsets;
}

const Charset* FindCharset(QStringView name)
{
    const QString wanted = name.toString().replace(u'_', u'-');
    const auto found = std::ranges::find_if(Charsets(), [&wanted](const Charset& charset) {
        return wanted.compare(CharsetName(charset), Qt::CaseInsensitive) == 0;
    });
    return found == Charsets().end() ? nullptr : &*found;
}

QLatin1StringView CharsetName(const Charset& charset)
{
    return QLatin1StringView(CharacterData::Names + charset.name);
}

QString CharsetDescription(const Charset& charset)
{
    return QString::fromUtf8(CharacterData::Names + charset.description);
}

CodeSet CodesOf(const Charset& charset)
{
    const std::span<const CodeRange> ranges(CharacterData::CharsetRanges);
    CodeSet codes;
    for (const CodeRange& range : ranges.subspan(charset.firstRange, charset.rangeCount))
        codes.SetRange(range.first, range.last, true);
    return codes;
}

} // namespace Glyphor
