#pragma once

#include <hb-ot.h>
#include <hb.h>

#include <QString>

#include <memory>
#include <type_traits>

namespace Glyphor {

// Every function of HarfBuzz that is called.
#define GLYPHOR_HARFBUZZ_FUNCTIONS(Function)                                                       \
    Function(hb_blob_create);                                                                      \
    Function(hb_blob_get_empty);                                                                   \
    Function(hb_buffer_add);                                                                       \
    Function(hb_buffer_clear_contents);                                                            \
    Function(hb_buffer_create);                                                                    \
    Function(hb_buffer_destroy);                                                                   \
    Function(hb_buffer_get_glyph_positions);                                                       \
    Function(hb_buffer_set_cluster_level);                                                         \
    Function(hb_buffer_set_content_type);                                                          \
    Function(hb_buffer_set_direction);                                                             \
    Function(hb_buffer_set_script);                                                                \
    Function(hb_buffer_set_unicode_funcs);                                                         \
    Function(hb_face_create_for_tables);                                                           \
    Function(hb_face_destroy);                                                                     \
    Function(hb_face_set_glyph_count);                                                             \
    Function(hb_face_set_upem);                                                                    \
    Function(hb_font_create);                                                                      \
    Function(hb_font_destroy);                                                                     \
    Function(hb_font_funcs_create);                                                                \
    Function(hb_font_funcs_destroy);                                                               \
    Function(hb_font_funcs_set_glyph_h_advances_func);                                             \
    Function(hb_font_funcs_set_nominal_glyph_func);                                                \
    Function(hb_font_get_var_coords_normalized);                                                   \
    Function(hb_font_set_funcs);                                                                   \
    Function(hb_font_set_scale);                                                                   \
    Function(hb_font_set_var_coords_design);                                                       \
    Function(hb_ot_layout_collect_lookups);                                                        \
    Function(hb_ot_layout_feature_with_variations_get_lookups);                                    \
    Function(hb_ot_layout_get_glyphs_in_class);                                                    \
    Function(hb_ot_layout_language_find_feature);                                                  \
    Function(hb_ot_layout_lookup_collect_glyphs);                                                  \
    Function(hb_ot_layout_lookup_get_glyph_alternates);                                            \
    Function(hb_ot_layout_lookup_substitute_closure);                                              \
    Function(hb_ot_layout_lookup_would_substitute);                                                \
    Function(hb_ot_layout_table_find_feature_variations);                                          \
    Function(hb_ot_layout_table_get_feature_tags);                                                 \
    Function(hb_ot_layout_table_get_script_tags);                                                  \
    Function(hb_script_get_horizontal_direction);                                                  \
    Function(hb_set_add);                                                                          \
    Function(hb_set_create);                                                                       \
    Function(hb_set_del);                                                                          \
    Function(hb_set_destroy);                                                                      \
    Function(hb_set_has);                                                                          \
    Function(hb_set_is_empty);                                                                     \
    Function(hb_set_next);                                                                         \
    Function(hb_shape);                                                                            \
    Function(hb_unicode_funcs_create);                                                             \
    Function(hb_unicode_funcs_destroy);                                                            \
    Function(hb_unicode_funcs_get_default);                                                        \
    Function(hb_unicode_funcs_set_general_category_func);                                          \
    Function(hb_unicode_general_category);                                                         \
    Function(hb_unicode_script)

// HarfBuzz, which most runs do without: it is loaded when it is first asked for.
class HarfBuzz
{
public:
    // Loads a library by its name without "lib" and suffix.
    explicit HarfBuzz(const QString& name);

    // The program's own. Null where it can't be loaded.
    [[nodiscard]] static const HarfBuzz* Loaded();

    [[nodiscard]] bool IsLoaded() const { return isLoaded_; }

// NOLINTNEXTLINE(bugprone-macro-parentheses): a name can't stand in them
#define GLYPHOR_POINTER(function) decltype(&::function) function = nullptr
    GLYPHOR_HARFBUZZ_FUNCTIONS(GLYPHOR_POINTER);
#undef GLYPHOR_POINTER

private:
    bool isLoaded_ = true;
};

// An object of HarfBuzz that is let go of by one of its functions.
template <typename Object>
using HarfBuzzOwner = std::unique_ptr<Object, void (*)(Object*)>;

} // namespace Glyphor
