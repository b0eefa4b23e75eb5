#include "texts/text_collector.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "texts/utf8.h"

#include <algorithm>

namespace Glyphor {

int TextCollector::AddUtf8(QByteArrayView utf8, int line)
{
    for (qsizetype at = 0; at < utf8.size();) {
        const Utf8Character character = FirstCharacter(utf8.sliced(at));
        if (character.code < ' ' && EndsLine(utf8, at))
            ++line;
        else
            Add(character.code, line);
        at += std::max(character.size, 1);
    }
    return line;
}

void TextCollector::AddNew(char32_t code, int line)
{
    seen_[code] = true;
    const bool isControl = code < 0x20 || (code >= 0x7F && code <= 0x9F);
    if (!isControl && code != QChar::ByteOrderMark)
        characters_.push_back({code, line});
}

void TextCollector::Fail(const QString& reason, int line) const
{
    throw CriticalException(
        Engine::tr("Error opening file!"),
        Engine::tr("The file %1 could not be read: %2").arg(Shown(path_), reason),
        {path_, line, {}});
}

} // namespace Glyphor
