#include "cli/feature_list.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"

#include <QStringList>

#include <algorithm>

namespace Glyphor {

namespace {

constexpr int MaxAlternate = 0xFFFF;

bool IsTag(const QString& text)
{
    return text.size() == 4 && std::ranges::all_of(text, [](QChar letter) {
               return letter < u'\x80' && letter.isLetterOrNumber();
           });
}

// Nothing for a text that is no feature.
std::optional<FontFeature> FeatureOf(const QString& text)
{
    const qsizetype equals = text.indexOf(u'=');
    FontFeature feature{equals < 0 ? text : text.first(equals)};
    if (!IsTag(feature.tag))
        return std::nullopt;
    if (equals < 0)
        return feature;
    const QString number = text.sliced(equals + 1);
    const bool hasDigits =
        std::ranges::all_of(number, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    feature.alternate = hasDigits ? number.toInt() : 0;
    if (feature.alternate < 1 || feature.alternate > MaxAlternate)
        return std::nullopt;
    return feature;
}

} // namespace

std::vector<FontFeature> ParseFeatures(const QString& list)
{
    std::vector<FontFeature> features;
    for (const QString& text : list.split(u',')) {
        const std::optional<FontFeature> feature = FeatureOf(text);
        if (!feature)
            throw CriticalException(
                Engine::tr("The features %1 are not usable: the option is %2, with tags of four "
                           "letters or digits (e.g. tnum,zero,ss01) and numbers from 1 to %3.")
                    .arg(Shown(list), OptionOf(OptionId::Features).Form(),
                         QString::number(MaxAlternate)));
        features.push_back(*feature);
    }
    return features;
}

QString TextOf(const std::vector<FontFeature>& features)
{
    QStringList texts;
    for (const FontFeature& feature : features)
        texts.append(feature.alternate == 1
                         ? feature.tag
                         : QStringLiteral("%1=%2").arg(feature.tag).arg(feature.alternate));
    return texts.join(u',');
}

} // namespace Glyphor
