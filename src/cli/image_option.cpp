#include "cli/image_option.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "cli/command_line_parser.h"
#include "render/character_map.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Further than any line reaches.
constexpr int MostRows = 0xFF;

quint16 CodeOf(const QString& text, const QString& whole)
{
    CharacterMap map;
    try {
        map = ParseCharacterMap(text);
    } catch (const CriticalException&) {
        map.clear(); // the text speaks of mappings
    }
    const bool isOne = map.size() == 1 && map[0].first == map[0].last && !text.contains(u'=') &&
                       !map[0].onlyMissing;
    if (!isOne)
        throw CriticalException(
            Engine::tr("The code %1 is not usable: -image takes one up to 0xFFFF, decimal or "
                       "hexadecimal, and a name behind a colon (e.g. 0xE001:heart).")
                .arg(Shown(whole)));
    return map[0].target;
}

} // namespace

FontImage ImageOf(const OptionOccurrence& occurrence)
{
    FontImage image;
    image.path = occurrence.Get<QString>(0);
    const QString& target = occurrence.Get<QString>(1);
    const qsizetype colon = target.indexOf(u':');
    image.code = CodeOf(colon < 0 ? target : target.left(colon), target);
    if (colon >= 0)
        image.name = target.mid(colon + 1);
    if (colon >= 0 && !IsCharacterName(image.name))
        throw CriticalException(
            Engine::tr("The name in %1 is not usable: names have letters of ASCII, digits and "
                       "underscores.")
                .arg(Shown(target)));
    if (std::holds_alternative<int>(occurrence.values[2]))
        image.rows = occurrence.Get<int>(2);
    if (image.rows < -MostRows || image.rows > MostRows)
        throw CriticalException(
            Engine::tr("The rows of -image have to be from -%1 to %1.").arg(MostRows));
    return image;
}

int ThresholdOf(const OptionOccurrence& occurrence)
{
    constexpr int largest = 255;
    const int threshold = occurrence.Get<int>(0);
    if (threshold < 1 || threshold > largest)
        throw CriticalException(
            Engine::tr("The threshold %1 is not usable: -threshold takes 1 to 255.")
                .arg(threshold));
    return threshold;
}

} // namespace Glyphor
