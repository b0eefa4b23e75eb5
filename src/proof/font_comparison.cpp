#include "proof/font_comparison.h"

#include "app/shown_text.h"
#include "files/c_file_text.h"
#include "files/kerning_file.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "proof/placed_pixels.h"

#include <algorithm>
#include <array>
#include <map>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

using CharactersByCode = std::map<int, const Character*>;

CharactersByCode CharactersOf(const Font& font, bool inUnicode)
{
    const Encoding& encoding = EncodingFor(font.Metrics().encoding);
    CharactersByCode characters;
    font.ForEachEnabled([&](quint16 code, const Character& character) {
        int key = code;
        if (inUnicode) {
            const auto converted = encoding.Converted(EncodingType::Unicode, code);
            key = converted ? *converted : FontComparison::NoUnicode + code;
        }
        characters.try_emplace(key, &character);
    });
    return characters;
}

CharMetrics ChangeOf(const CharInfo& before, const CharInfo& after)
{
    CharMetrics change;
    change.cursorDistance = after.cursorDistance - before.cursorDistance;
    if (IsLegacyFormat(before.font.format) != IsLegacyFormat(after.font.format))
        return change;
    change.width = after.width - before.width;
    if (IsLegacyFormat(before.font.format))
        return change;
    change.height = after.height - before.height;
    change.xPos = after.xPos - before.xPos;
    change.yPos = after.yPos - before.yPos;
    return change;
}

std::array<int, 5> Values(const CharMetrics& metrics)
{
    return {metrics.cursorDistance, metrics.width, metrics.height, metrics.xPos, metrics.yPos};
}

bool HasChange(const CharMetrics& change)
{
    return Values(change) != Values({});
}

// Characters stand on the baseline, wherever that is.
int DifferentPixels(const Character& before, const Character& after)
{
    const PlacedPixels first(before);
    const PlacedPixels second(after);
    const int shift = after.info.font.baseline - before.info.font.baseline;
    const bool comparesFrames = first.IsFramed() && second.IsFramed();
    const int right = std::max(first.Right(), second.Right());
    const int bottom = std::max(first.Bottom() + shift, second.Bottom());
    int count = 0;
    for (int y = std::min(first.Top() + shift, second.Top()); y < bottom; ++y) {
        for (int x = std::min(first.Left(), second.Left()); x < right; ++x) {
            const bool isEqual =
                first.InkAt(x, y - shift) == second.InkAt(x, y) &&
                (!comparesFrames || first.HasFrameAt(x, y - shift) == second.HasFrameAt(x, y));
            count += isEqual ? 0 : 1;
        }
    }
    return count;
}

// The two pixels are alike wherever the bytes are.
bool HasSameBytes(const Character& before, const Character& after)
{
    const FontMetrics& first = before.info.font;
    const FontMetrics& second = after.info.font;
    return first.format == second.format && first.baseline == second.baseline &&
           first.height == second.height &&
           Values(before.info.Metrics()) == Values(after.info.Metrics()) &&
           before.bitmap->DataAsList() == after.bitmap->DataAsList();
}

// By left code, as far as both fonts have the characters.
using KerningByCode = std::map<quint16, std::vector<KerningPair>>;

KerningByCode CommonKerning(const Font& font, const Font& other)
{
    KerningByCode kerning;
    for (const KerningEntry& entry : EnabledKerning(font)) {
        if (other.IsEnabled(entry.right))
            kerning[entry.left].push_back({entry.right, entry.distance});
    }
    for (auto& [left, pairs] : kerning)
        std::ranges::sort(pairs, {}, &KerningPair::right);
    return kerning;
}

class Comparer
{
public:
    Comparer(const Font& before, const Font& after) : before_(before), after_(after)
    {
        const bool sameEncoding = before.Metrics().encoding == after.Metrics().encoding;
        inUnicode_ = !sameEncoding;
        comparesKerning_ = sameEncoding && before.HasKerning() && after.HasKerning();
        if (comparesKerning_) {
            kerningBefore_ = CommonKerning(before, after);
            kerningAfter_ = CommonKerning(after, before);
        }
        result_.isUnicode = inUnicode_ || before.Metrics().encoding == EncodingType::Unicode;
    }

    FontComparison Compare(bool comparesNames)
    {
        CompareValues(comparesNames);
        const CharactersByCode before = CharactersOf(before_, inUnicode_);
        const CharactersByCode after = CharactersOf(after_, inUnicode_);
        auto first = before.begin();
        auto second = after.begin();
        while (first != before.end() || second != after.end()) {
            const bool isAdded =
                first == before.end() || (second != after.end() && second->first < first->first);
            const bool isGone = !isAdded && (second == after.end() || first->first < second->first);
            if (isAdded) {
                Add({.code = second->first, .after = second->second});
                ++second;
            } else if (isGone) {
                Add({.code = first->first, .before = first->second});
                ++first;
            } else {
                CompareCharacters(first->first, *first->second, *second->second);
                ++first;
                ++second;
            }
        }
        return std::move(result_);
    }

private:
    void Add(const CharacterDifference& difference) { result_.characters.push_back(difference); }

    void CompareCharacters(int code, const Character& before, const Character& after)
    {
        CharacterDifference difference{.code = code, .before = &before, .after = &after};
        if (!HasSameBytes(before, after)) {
            difference.change = ChangeOf(before.info, after.info);
            difference.pixels = DifferentPixels(before, after);
        }
        difference.hasOtherKerning = HasOtherKerning(code);
        if (HasChange(difference.change) || difference.pixels > 0 || difference.hasOtherKerning)
            Add(difference);
        else
            ++result_.sameCharacters;
    }

    [[nodiscard]] bool HasOtherKerning(int code) const
    {
        if (!comparesKerning_)
            return false;
        const auto pairsOf = [code](const KerningByCode& kerning) {
            const auto found = kerning.find(quint16(code));
            return found == kerning.end() ? std::vector<KerningPair>() : found->second;
        };
        return pairsOf(kerningBefore_) != pairsOf(kerningAfter_);
    }

    void CompareValue(const QString& what, const QString& before, const QString& after)
    {
        if (before != after)
            result_.values.push_back({what, before, after});
    }

    void CompareValue(const QString& what, int before, int after)
    {
        CompareValue(what, QString::number(before), QString::number(after));
    }

    void CompareValues(bool comparesNames)
    {
        const FontMetrics& before = before_.Metrics();
        const FontMetrics& after = after_.Metrics();
        const auto name = [](const Font& font) { return QString::fromLatin1(CName(font.Name())); };
        const auto encoding = [](EncodingType type) {
            return type == EncodingType::Unicode ? u"Unicode"_s : u"Shift JIS"_s;
        };
        if (comparesNames)
            CompareValue(u"name"_s, name(before_), name(after_));
        CompareValue(u"format"_s, FormatDisplayName(before.format),
                     FormatDisplayName(after.format));
        CompareValue(u"encoding"_s, encoding(before.encoding), encoding(after.encoding));
        CompareValue(u"height"_s, before.height, after.height);
        CompareValue(u"line distance"_s, before.verticalSpace, after.verticalSpace);
        CompareValue(u"baseline"_s, before.baseline, after.baseline);
        CompareValue(u"lowercase height"_s, before.lowercaseHeight, after.lowercaseHeight);
        CompareValue(u"capital height"_s, before.capitalHeight, after.capitalHeight);
    }

    const Font& before_;
    const Font& after_;
    bool inUnicode_ = false;
    bool comparesKerning_ = false;
    KerningByCode kerningBefore_;
    KerningByCode kerningAfter_;
    FontComparison result_;
};

// Lines of a comparison have one for neighbours that differ in the same way.
bool ContinuesRun(const CharacterDifference& last, const CharacterDifference& next)
{
    return next.code == last.code + 1 && next.code != FontComparison::NoUnicode &&
           (next.before == nullptr) == (last.before == nullptr) &&
           (next.after == nullptr) == (last.after == nullptr) &&
           Values(next.change) == Values(last.change) && (next.pixels > 0) == (last.pixels > 0) &&
           next.hasOtherKerning == last.hasOtherKerning;
}

QString Counted(int count, const QString& one, const QString& more)
{
    return u"%1 %2"_s.arg(count).arg(count == 1 ? one : more);
}

QString CodeOf(int code)
{
    return u"0x"_s + Hex4Text(quint16(code));
}

// "advance 16 -> 17" of a character, "advance +1" of several.
QStringList ChangesOf(std::span<const CharacterDifference> run)
{
    static const std::array names = {u"advance"_s, u"width"_s, u"height"_s, u"x"_s, u"y"_s};
    const CharacterDifference& first = run.front();
    const auto change = Values(first.change);
    const auto before = Values(first.before->info.Metrics());
    const auto after = Values(first.after->info.Metrics());
    QStringList changes;
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (change[index] == 0)
            continue;
        if (run.size() == 1)
            changes.append(u"%1 %2 -> %3"_s.arg(names[index]).arg(before[index]).arg(after[index]));
        else
            changes.append(u"%1 %2%3"_s.arg(names[index], change[index] > 0 ? u"+"_s : QString())
                               .arg(change[index]));
    }
    qint64 pixels = 0;
    for (const CharacterDifference& difference : run)
        pixels += difference.pixels;
    if (pixels > 0)
        changes.append(u"%1 %2"_s.arg(pixels).arg(pixels == 1 ? u"pixel"_s : u"pixels"_s));
    if (first.hasOtherKerning)
        changes.append(u"kerning"_s);
    return changes;
}

QString LineOf(std::span<const CharacterDifference> run, bool isUnicode)
{
    const CharacterDifference& first = run.front();
    const bool isForeign = first.code >= FontComparison::NoUnicode;
    const bool inUnicode = isUnicode && !isForeign;
    const EncodingType type = inUnicode ? EncodingType::Unicode : EncodingType::ShiftJis;
    QString line = first.before == nullptr ? u"+ "_s : first.after == nullptr ? u"- "_s : u"! "_s;
    line += CodeOf(first.code);
    if (run.size() > 1) {
        line += u'-' + CodeOf(run.back().code);
    } else {
        const QString name = EncodingFor(type).CharName(quint16(first.code));
        line += name.isEmpty() ? name : u' ' + name;
    }
    if (isForeign)
        line += u" (Shift JIS)"_s;
    QStringList what;
    if (run.size() > 1)
        what.append(u"%1 characters"_s.arg(run.size()));
    if (first.IsChange())
        what += ChangesOf(run);
    return what.isEmpty() ? line : line + u": "_s + what.join(u", "_s);
}

QString SummaryOf(const FontComparison& comparison, const QString& name)
{
    int added = 0;
    int gone = 0;
    for (const CharacterDifference& difference : comparison.characters) {
        added += difference.before == nullptr ? 1 : 0;
        gone += difference.after == nullptr ? 1 : 0;
    }
    const int changed = int(comparison.characters.size()) - added - gone;
    const QString same = Counted(comparison.sameCharacters, u"character"_s, u"characters"_s);
    if (comparison.IsEqual())
        return u"No differences from %1: %2 the same."_s.arg(Shown(name), same);
    return u"Differences from %1: %2 of the font, %3 added, %4 gone, %5 changed, %6 the same."_s
        .arg(Shown(name), QString::number(comparison.values.size()),
             Counted(added, u"character"_s, u"characters"_s), QString::number(gone),
             QString::number(changed), QString::number(comparison.sameCharacters));
}

} // namespace

FontComparison CompareFonts(const Font& before, const Font& after, bool comparesNames)
{
    return Comparer(before, after).Compare(comparesNames);
}

QString ComparisonText(const FontComparison& comparison, const QString& name)
{
    QString text;
    for (const ValueDifference& value : comparison.values)
        text += u"%1: %2 -> %3\n"_s.arg(value.what, value.before, value.after);
    const std::span<const CharacterDifference> all = comparison.characters;
    for (std::size_t begin = 0, end = 0; begin < all.size(); begin = end) {
        for (end = begin + 1; end < all.size() && ContinuesRun(all[end - 1], all[end]);)
            ++end;
        text += LineOf(all.subspan(begin, end - begin), comparison.isUnicode) + u'\n';
    }
    return text + SummaryOf(comparison, name) + u'\n';
}

} // namespace Glyphor
