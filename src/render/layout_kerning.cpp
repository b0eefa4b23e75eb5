#include "render/layout_kerning.h"

#include "app/engine_texts.h"
#include "app/progress.h"
#include "model/code_range.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <numeric>
#include <tuple>

namespace Glyphor {

namespace {

// HarfBuzz gets glyphs as characters for private use, of which it knows nothing that would make it
// treat them in other ways than one by one. Marks are told apart, for fonts that don't name theirs.
constexpr hb_codepoint_t PlainCodes = 0xF0000;
constexpr hb_codepoint_t MarkCodes = 0x100000;
constexpr hb_codepoint_t MaxGlyph = 0xFFFF;

// What stands between the pairs of a buffer: no table reaches its glyph, and the feature is off for
// it, so nothing gets across.
constexpr hb_codepoint_t Separator = 0xE000;
constexpr hb_codepoint_t SeparatorGlyph = 0x7FFFFFFE;
constexpr unsigned KernedCluster = 0;
constexpr unsigned SeparatorCluster = 1;

constexpr hb_tag_t KernTag = HB_TAG('k', 'e', 'r', 'n');

// Shaping costs a little for each buffer, and long buffers no more than short ones.
constexpr std::size_t PairsOfBuffer = 2048;

// A pair takes about as long as a look into so many subtables.
constexpr qint64 CostOfPair = 8;

hb_bool_t GlyphOfCode(hb_font_t*, void*, hb_codepoint_t code, hb_codepoint_t* glyph, void*)
{
    if (code != Separator && code < PlainCodes)
        return 0;
    *glyph = code == Separator ? SeparatorGlyph : code & MaxGlyph;
    return 1;
}

// So that the advances that come out are what kerning adds.
void NoAdvances(hb_font_t*, void*, unsigned count, const hb_codepoint_t*, unsigned,
                hb_position_t* advances, unsigned stride, void*)
{
    for (unsigned index = 0; index < count; ++index) {
        *advances = 0;
        advances = reinterpret_cast<hb_position_t*>(reinterpret_cast<char*>(advances) + stride);
    }
}

hb_unicode_general_category_t CategoryOfCode(hb_unicode_funcs_t*, hb_codepoint_t code, void*)
{
    return code >= MarkCodes ? HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK
                             : HB_UNICODE_GENERAL_CATEGORY_OTHER_LETTER;
}

// As FreeType rounds distances.
int Rounded(hb_position_t position)
{
    return (position + 32) >> 6;
}

// Characters that shaping hides and passes over, such as the soft hyphen.
bool IsPassedOver(quint16 code)
{
    constexpr std::array<CodeRange, 11> ranges = {{{0x00AD, 0x00AD},
                                                   {0x034F, 0x034F},
                                                   {0x061C, 0x061C},
                                                   {0x17B4, 0x17B5},
                                                   {0x180B, 0x180E},
                                                   {0x200B, 0x200F},
                                                   {0x202A, 0x202E},
                                                   {0x2060, 0x206F},
                                                   {0xFE00, 0xFE0F},
                                                   {0xFEFF, 0xFEFF},
                                                   {0xFFF0, 0xFFF8}}};
    return std::ranges::any_of(ranges, [code](const CodeRange& range) {
        return range.first <= code && code <= range.last;
    });
}

} // namespace

LayoutKerning::LayoutKerning(const FreeTypeFace& face, const HarfBuzz& harfBuzz)
    : face_(face, HB_OT_TAG_GPOS, harfBuzz),
      harfBuzz_(harfBuzz),
      touched_(harfBuzz.hb_set_create(), harfBuzz.hb_set_destroy),
      buffer_(harfBuzz.hb_buffer_create(), harfBuzz.hb_buffer_destroy),
      unicode_(harfBuzz.hb_unicode_funcs_create(harfBuzz.hb_unicode_funcs_get_default()),
               harfBuzz.hb_unicode_funcs_destroy)
{
    const HarfBuzzOwner<hb_font_funcs_t> functions(harfBuzz.hb_font_funcs_create(),
                                                   harfBuzz.hb_font_funcs_destroy);
    harfBuzz.hb_font_funcs_set_nominal_glyph_func(functions.get(), GlyphOfCode, nullptr, nullptr);
    harfBuzz.hb_font_funcs_set_glyph_h_advances_func(functions.get(), NoAdvances, nullptr, nullptr);
    harfBuzz.hb_font_set_funcs(face_.Font(), functions.get(), nullptr, nullptr);
    harfBuzz.hb_unicode_funcs_set_general_category_func(unicode_.get(), CategoryOfCode, nullptr,
                                                        nullptr);
    harfBuzz.hb_buffer_set_unicode_funcs(buffer_.get(), unicode_.get());
    harfBuzz.hb_buffer_set_cluster_level(buffer_.get(), HB_BUFFER_CLUSTER_LEVEL_CHARACTERS);
    const auto add = [this](hb_tag_t tag, quint32 value, unsigned first, unsigned end) {
        features_.push_back({tag, value, first, end});
    };
    for (const hb_tag_t tag : face_.Features())
        add(tag, 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END);
    add(KernTag, 1, KernedCluster, SeparatorCluster);
    ReadLookups();
}

void LayoutKerning::ReadLookups()
{
    const HarfBuzzOwner<hb_set_t> lookups(harfBuzz_.hb_set_create(), harfBuzz_.hb_set_destroy);
    constexpr std::array features = {KernTag, HB_TAG_NONE};
    constexpr int context = 7;
    constexpr int chainedContext = 8;
    harfBuzz_.hb_ot_layout_collect_lookups(face_.Face(), HB_OT_TAG_GPOS, nullptr, nullptr,
                                           features.data(), lookups.get());
    for (hb_codepoint_t lookup = HB_SET_VALUE_INVALID;
         harfBuzz_.hb_set_next(lookups.get(), &lookup) != 0;) {
        harfBuzz_.hb_ot_layout_lookup_collect_glyphs(face_.Face(), HB_OT_TAG_GPOS, lookup, nullptr,
                                                     touched_.get(), nullptr, nullptr);
        const LookupHead head = face_.HeadOf(lookup);
        hasContexts_ = hasContexts_ || head.type == LookupHead::Unknown || head.type == context ||
                       head.type == chainedContext;
        subtables_ += head.subtables;
    }
}

bool LayoutKerning::HasKerning() const
{
    return harfBuzz_.hb_set_is_empty(touched_.get()) == 0;
}

// GDEF may give a glyph any number as its class: shaping knows these alone.
std::array<HarfBuzzOwner<hb_set_t>, LayoutKerning::ClassCount> LayoutKerning::GlyphClasses() const
{
    const auto glyphsOf = [this](hb_ot_layout_glyph_class_t glyphClass) {
        HarfBuzzOwner<hb_set_t> glyphs(harfBuzz_.hb_set_create(), harfBuzz_.hb_set_destroy);
        harfBuzz_.hb_ot_layout_get_glyphs_in_class(face_.Face(), glyphClass, glyphs.get());
        return glyphs;
    };
    return {glyphsOf(HB_OT_LAYOUT_GLYPH_CLASS_BASE_GLYPH),
            glyphsOf(HB_OT_LAYOUT_GLYPH_CLASS_LIGATURE), glyphsOf(HB_OT_LAYOUT_GLYPH_CLASS_MARK)};
}

// Where no context counts, glyphs that kerning does not begin at and that no class of a pair lists
// kern alike, unless they are marks: lookups can skip some of those.
std::vector<LayoutKerning::Kind>
LayoutKerning::KindsOf(std::span<const ShownGlyph> characters) const
{
    hb_unicode_funcs_t* const unicode = harfBuzz_.hb_unicode_funcs_get_default();
    const auto classes = GlyphClasses();
    std::map<std::tuple<hb_script_t, bool, hb_codepoint_t>, Kind> kinds;
    for (quint32 index = 0; index < characters.size(); ++index) {
        const auto& [character, glyph] = characters[index];
        if (glyph > MaxGlyph || IsPassedOver(character))
            continue;
        hb_script_t script = harfBuzz_.hb_unicode_script(unicode, character);
        if (script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED ||
            script == HB_SCRIPT_UNKNOWN)
            script = HB_SCRIPT_INVALID;
        const bool isMark = harfBuzz_.hb_unicode_general_category(unicode, character) ==
                            HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK;
        const bool isTouched = harfBuzz_.hb_set_has(touched_.get(), glyph) != 0;
        const auto glyphClass =
            std::ranges::find_if(classes, [this, shown = glyph](const auto& glyphs) {
                return harfBuzz_.hb_set_has(glyphs.get(), shown) != 0;
            });
        const bool isAlone =
            isTouched || hasContexts_ || isMark || glyphClass == classes.begin() + MarkClass;
        const hb_codepoint_t code = (isMark ? MarkCodes : PlainCodes) + glyph;
        const auto key = std::make_tuple(
            script, isAlone, isAlone ? code : hb_codepoint_t(glyphClass - classes.begin()));
        kinds.try_emplace(key, Kind{code, script, isTouched, {}})
            .first->second.members.push_back(index);
    }
    std::vector<Kind> list; // by script
    list.reserve(kinds.size());
    for (auto& [key, kind] : kinds)
        list.push_back(std::move(kind));
    return list;
}

bool LayoutKerning::FindPairs(std::span<const ShownGlyph> characters, const Take& take,
                              qint64 maxWork)
{
    const std::vector<Kind> kinds = KindsOf(characters);
    std::vector<std::size_t> all(kinds.size());
    std::iota(all.begin(), all.end(), std::size_t(0));
    std::vector<std::size_t> touched;
    std::ranges::copy_if(all, std::back_inserter(touched),
                         [&kinds](std::size_t kind) { return kinds[kind].isTouched; });

    Progress progress(Engine::tr("Finding kerning pairs..."), int(kinds.size()));
    qint64 work = 0;
    std::vector<Found> found;
    for (const Kind& left : kinds) {
        const std::vector<std::size_t>& rights = left.isTouched ? all : touched;
        work += qint64(rights.size() + features_.size()) * (CostOfPair + subtables_);
        if (work > maxWork)
            return false;
        found.clear();
        AskAll(left, rights, kinds, progress, found);
        progress.Advance();
        if (found.empty())
            continue;
        const std::vector<KerningPair> pairs = PairsOf(found, kinds, characters);
        for (const quint32 member : left.members) {
            if (!take(member, pairs))
                return true;
        }
    }
    return true;
}

std::vector<KerningPair> LayoutKerning::PairsOf(std::span<const Found> found,
                                                std::span<const Kind> kinds,
                                                std::span<const ShownGlyph> characters)
{
    std::vector<std::pair<quint32, int>> places; // among the characters, with the distance
    for (const auto& [right, distance] : found) {
        for (const quint32 member : kinds[right].members)
            places.emplace_back(member, distance);
    }
    std::ranges::sort(places);
    std::vector<KerningPair> pairs;
    pairs.reserve(places.size());
    for (const auto& [place, distance] : places)
        pairs.push_back({characters[place].code, distance});
    return pairs;
}

// The first one of two characters that is of a script tells that of the pair.
void LayoutKerning::AskAll(const Kind& left, std::span<const std::size_t> rights,
                           std::span<const Kind> kinds, Progress& progress,
                           std::vector<Found>& found)
{
    const std::size_t most = hasContexts_ ? 1 : PairsOfBuffer;
    const auto scriptOf = [&](std::size_t right) {
        return left.script != HB_SCRIPT_INVALID ? left.script : kinds[right].script;
    };
    while (!rights.empty()) {
        const hb_script_t script = scriptOf(rights.front());
        const auto end = std::find_if(
            rights.begin(), rights.begin() + std::ptrdiff_t(std::min(most, rights.size())),
            [&](std::size_t right) { return scriptOf(right) != script; });
        const auto count = std::size_t(end - rights.begin());
        Ask(left, rights.first(count), script, kinds, found);
        rights = rights.subspan(count);
        progress.LookedAt();
    }
}

void LayoutKerning::Ask(const Kind& left, std::span<const std::size_t> rights, hb_script_t script,
                        std::span<const Kind> kinds, std::vector<Found>& found)
{
    hb_buffer_t* const buffer = buffer_.get();
    harfBuzz_.hb_buffer_clear_contents(buffer);
    for (const std::size_t right : rights) {
        harfBuzz_.hb_buffer_add(buffer, left.code, KernedCluster);
        harfBuzz_.hb_buffer_add(buffer, kinds[right].code, KernedCluster);
        if (!hasContexts_)
            harfBuzz_.hb_buffer_add(buffer, Separator, SeparatorCluster);
    }
    const hb_direction_t direction = harfBuzz_.hb_script_get_horizontal_direction(script);
    const bool isBackward = direction == HB_DIRECTION_RTL;
    harfBuzz_.hb_buffer_set_content_type(buffer, HB_BUFFER_CONTENT_TYPE_UNICODE);
    harfBuzz_.hb_buffer_set_script(buffer, script);
    harfBuzz_.hb_buffer_set_direction(buffer, isBackward ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    harfBuzz_.hb_shape(face_.Font(), buffer, features_.data(),
                       static_cast<unsigned>(features_.size()));

    unsigned length = 0;
    const hb_glyph_position_t* const positions =
        harfBuzz_.hb_buffer_get_glyph_positions(buffer, &length);
    const std::size_t step = hasContexts_ ? 2 : 3;
    if (length != rights.size() * step)
        return;
    for (std::size_t index = 0; index < rights.size(); ++index) {
        const std::size_t first = index * step;
        const auto& [leading, trailing] =
            isBackward ? std::tie(positions[length - 2 - first], positions[length - 1 - first])
                       : std::tie(positions[first], positions[first + 1]);
        const int distance = Rounded(leading.x_advance + trailing.x_offset);
        if (distance != 0)
            found.push_back({rights[index], distance});
    }
}

} // namespace Glyphor
