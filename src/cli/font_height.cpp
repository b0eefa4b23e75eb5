#include "cli/font_height.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/user_interface.h"

#include <QLatin1StringView>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// FreeType counts pixels per em in 16 bits.
constexpr int MaxHeight = 0xFFFF;

struct HeightPrefixRow
{
    QLatin1StringView text;
    HeightUnit unit;
};

constexpr std::array HeightPrefixes = {
    HeightPrefixRow{"cap:"_L1, HeightUnit::Capital},
    HeightPrefixRow{"x:"_L1, HeightUnit::LowercaseX},
    HeightPrefixRow{"line:"_L1, HeightUnit::Line},
    HeightPrefixRow{"em:"_L1, HeightUnit::Em},
};

const HeightPrefixRow* PrefixOf(const QString& text)
{
    const auto* const row = std::ranges::find_if(HeightPrefixes, [&text](const auto& candidate) {
        return text.startsWith(candidate.text, Qt::CaseInsensitive);
    });
    return row != HeightPrefixes.end() ? row : nullptr;
}

// In 64ths, rounded; nothing for what is no number of digits, with a fraction only where that is
// allowed.
std::optional<qint64> FineNumber(const QString& text, bool mayHaveFraction)
{
    const bool isPlain = std::ranges::all_of(text, [mayHaveFraction](QChar character) {
        return (character >= u'0' && character <= u'9') || (mayHaveFraction && character == u'.');
    });
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isPlain || !isNumber || number > MaxHeight)
        return std::nullopt;
    return std::llround(number * 64);
}

[[noreturn]] void RefuseHeight(const QString& text, HeightUnit unit)
{
    const QString reason =
        unit == HeightUnit::Em
            ? Engine::tr("The font height %1 is not usable: em: takes a number from 1/64 to %2, "
                         "followed by px or pt (e.g. em:16.5px).")
            : Engine::tr("The font height %1 is not usable: -height takes a whole number "
                         "from 1 to %2, followed "
                         "by px or pt (e.g. 24px).");
    throw CriticalException(reason.arg(text, QString::number(MaxHeight)));
}

} // namespace

QString TextOf(const FontSize& size)
{
    const auto* const prefix = std::ranges::find(HeightPrefixes, size.unit, &HeightPrefixRow::unit);
    const QString number =
        QString::number(size.value + size.sixtyFourths / 64.0, 'f', QLocale::FloatingPointShortest);
    return (prefix != HeightPrefixes.end() ? QString(prefix->text) : QString()) + number +
           (size.inPoints ? u"pt"_s : u"px"_s);
}

FontSize ParseHeight(const QString& text)
{
    const HeightPrefixRow* const prefix = PrefixOf(text);
    const QString rest = prefix != nullptr ? text.mid(prefix->text.size()) : text;
    const bool inPoints = rest.endsWith(u"pt", Qt::CaseInsensitive);
    const bool inPixels = rest.endsWith(u"px", Qt::CaseInsensitive);
    const QString number = inPoints || inPixels ? rest.chopped(2) : rest;
    const HeightUnit unit = prefix != nullptr ? prefix->unit : HeightUnit::Box;
    const auto fine = FineNumber(number, unit == HeightUnit::Em);
    if (!fine || *fine == 0 || *fine > qint64(MaxHeight) * 64)
        RefuseHeight(text, unit);
    if (!inPoints && !inPixels)
        CurrentInterface().warning(Engine::tr("Height"),
                                   Engine::tr("Invalid measuring format, assuming px."));
    return {static_cast<int>(*fine / 64), inPoints, unit, static_cast<int>(*fine % 64)};
}

} // namespace Glyphor
