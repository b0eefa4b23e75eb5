#include "render/glyph_substitution.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/user_interface.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

const HarfBuzz& NeededHarfBuzz()
{
    const HarfBuzz* const library = HarfBuzz::Loaded();
    if (library == nullptr)
        throw CriticalException(
            Engine::tr("Font creation failed!"),
            Engine::tr("Features of a font need HarfBuzz, which could not be loaded."));
    return *library;
}

hb_tag_t TagOf(const FontFeature& feature)
{
    hb_tag_t tag = 0;
    for (const QChar letter : feature.tag)
        tag = tag << 8 | static_cast<uchar>(letter.toLatin1());
    return tag;
}

// Fonts may have tags of any bytes.
QString TextOf(hb_tag_t tag)
{
    QString text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const QChar letter(static_cast<char16_t>(tag >> shift & 0xFF));
        text += letter > u' ' && letter < u'\x7F' ? letter : u'?';
    }
    return text;
}

[[noreturn]] void RefuseFeature(const FontFeature& feature, const std::vector<hb_tag_t>& known)
{
    QStringList texts;
    for (const hb_tag_t tag : known)
        texts.append(TextOf(tag));
    const QString title = Engine::tr("Font creation failed!");
    if (texts.isEmpty())
        throw CriticalException(
            title, Engine::tr("The font has no feature %1: it has none.").arg(feature.tag));
    throw CriticalException(
        title,
        Engine::tr("The font has no feature %1: it has %2.").arg(feature.tag, texts.join(u", "_s)));
}

} // namespace

GlyphSubstitution::GlyphSubstitution(const FreeTypeFace& face,
                                     std::span<const FontFeature> features)
    : face_(face, HB_OT_TAG_GSUB, NeededHarfBuzz()),
      harfBuzz_(face_.Library()),
      features_(features.begin(), features.end()),
      isUsed_(features.size())
{
    const std::vector<hb_tag_t> known = face_.Features();
    for (const FontFeature& feature : features_) {
        if (!std::ranges::binary_search(known, TagOf(feature)))
            RefuseFeature(feature, known);
    }
    unsigned axes = 0;
    unsigned variations = HB_OT_LAYOUT_NO_VARIATIONS_INDEX;
    const int* const places = harfBuzz_.hb_font_get_var_coords_normalized(face_.Font(), &axes);
    harfBuzz_.hb_ot_layout_table_find_feature_variations(face_.Face(), HB_OT_TAG_GSUB, places, axes,
                                                         &variations);
    for (std::size_t feature = 0; feature < features_.size(); ++feature)
        AddSteps(feature, variations);
    std::ranges::sort(steps_);
    steps_.erase(std::unique(steps_.begin(), steps_.end()), steps_.end());
}

void GlyphSubstitution::AddSteps(std::size_t feature, unsigned variations)
{
    unsigned none = 0;
    const unsigned scripts = harfBuzz_.hb_ot_layout_table_get_script_tags(
        face_.Face(), HB_OT_TAG_GSUB, 0, &none, nullptr);
    for (unsigned script = 0; script < scripts; ++script) {
        unsigned index = 0;
        if (harfBuzz_.hb_ot_layout_language_find_feature(face_.Face(), HB_OT_TAG_GSUB, script,
                                                         HB_OT_LAYOUT_DEFAULT_LANGUAGE_INDEX,
                                                         TagOf(features_[feature]), &index) != 0)
            AddLookups(index, feature, variations);
    }
}

void GlyphSubstitution::AddLookups(unsigned featureIndex, std::size_t feature, unsigned variations)
{
    const auto read = [&](unsigned& count, unsigned* lookups) {
        return harfBuzz_.hb_ot_layout_feature_with_variations_get_lookups(
            face_.Face(), HB_OT_TAG_GSUB, featureIndex, variations, 0, &count, lookups);
    };
    constexpr int single = 1;
    constexpr int alternate = 3;
    unsigned none = 0;
    unsigned count = read(none, nullptr);
    std::vector<unsigned> lookups(count);
    read(count, lookups.data());
    lookups.resize(count);
    for (const unsigned lookup : lookups) {
        const int type = face_.HeadOf(lookup).type;
        if (type == single || type == alternate)
            steps_.push_back({lookup, feature, type == alternate});
    }
}

// A lookup of several features is applied for the first one of them.
FT_UInt GlyphSubstitution::Replacement(FT_UInt glyph)
{
    const Step* applied = nullptr;
    for (const Step& step : steps_) {
        const bool isDone = applied != nullptr && applied->lookup == step.lookup;
        const auto other = isDone ? std::optional(glyph) : OtherGlyph(step, glyph);
        if (!other)
            continue;
        glyph = *other;
        applied = &step;
        isUsed_[step.feature] = true;
    }
    return glyph;
}

// The glyph that a lookup has for another one; nothing where it has none.
std::optional<FT_UInt> GlyphSubstitution::OtherGlyph(const Step& step, FT_UInt glyph) const
{
    hb_face_t* const face = face_.Face();
    if (step.isAlternate) {
        hb_codepoint_t other = 0;
        unsigned count = 1;
        const int number = features_[step.feature].alternate;
        harfBuzz_.hb_ot_layout_lookup_get_glyph_alternates(face, step.lookup, glyph,
                                                           unsigned(number - 1), &count, &other);
        return count != 0 ? std::optional<FT_UInt>(other) : std::nullopt;
    }
    const hb_codepoint_t alone = glyph;
    if (harfBuzz_.hb_ot_layout_lookup_would_substitute(face, step.lookup, &alone, 1, 1) == 0)
        return std::nullopt;
    const HarfBuzzOwner<hb_set_t> glyphs(harfBuzz_.hb_set_create(), harfBuzz_.hb_set_destroy);
    harfBuzz_.hb_set_add(glyphs.get(), glyph);
    harfBuzz_.hb_ot_layout_lookup_substitute_closure(face, step.lookup, glyphs.get());
    harfBuzz_.hb_set_del(glyphs.get(), glyph);
    hb_codepoint_t other = HB_SET_VALUE_INVALID;
    return harfBuzz_.hb_set_next(glyphs.get(), &other) != 0 ? std::optional<FT_UInt>(other)
                                                            : std::nullopt;
}

void GlyphSubstitution::WarnOfUnused() const
{
    for (std::size_t feature = 0; feature < features_.size(); ++feature) {
        if (!isUsed_[feature])
            CurrentInterface().warning(
                Engine::tr("Feature without effect"),
                Engine::tr("The feature %1 replaces none of the characters with one other.")
                    .arg(features_[feature].tag));
    }
}

} // namespace Glyphor
