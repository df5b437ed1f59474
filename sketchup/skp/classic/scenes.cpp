// Scenes: what each keeps of the view, and their order.

#include "sketchup/skp/classic/model_reader.h"

namespace skp {
namespace {

// What a scene keeps, as bits of its flags. Higher bits occur and store nothing.
enum kept : std::uint32_t {
    kept_camera = 1,
    kept_rendering_options = 2,
    kept_shadow_info = 4,
    kept_axes = 8,
    kept_hidden_entities = 16,
    kept_hidden_layers = 32,
    kept_section_planes = 64,
};

} // namespace

// CPageList
void model_reader::read_page_list() {
    const reading here(in_, "CPageList");
    constexpr int first_with_active_page = 12;
    if (layout_.model >= first_with_active_page)
        skip_entity();
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i)
        introduced_here(object_class::view_page);
    if (layout_.model >= first_with_active_page)
        m_.active_scene = ref(object_class::view_page).place;
}

// CViewPage
void model_reader::read_view_page(std::uint32_t slot) {
    sketchup::scene s = begin(m_.scenes, slot);
    read_entity(s);
    s.name = in_.text();
    s.description = in_.text();
    s.flags = in_.u32();
    read_kept_settings(s);
    read_kept_lists(s);
    read_page_rest(s);
    keep(m_.scenes, slot, s);
}

void model_reader::read_kept_settings(sketchup::scene& s) {
    bool display_shadows = false;
    if ((s.flags & kept_camera) != 0) {
        s.camera = static_cast<index>(m_.cameras.size());
        m_.cameras.push_back(layout_.view_page >= 7 ? camera_ref() : read_old_camera());
    }
    if ((s.flags & kept_rendering_options) != 0) {
        s.rendering_options = read_rendering_options(display_shadows);
        if (layout_.view_page >= 10)
            ref(object_class::style);
    }
    if ((s.flags & kept_shadow_info) != 0) {
        s.shadow_info = read_shadow_info();
        s.shadow_info->display_shadows = in_.boolean();
    }
    if ((s.flags & kept_axes) != 0) {
        skip_axes();
        in_.boolean(); // shows them
    }
}

void model_reader::read_kept_lists(sketchup::scene& s) {
    if ((s.flags & kept_hidden_entities) != 0)
        skip_list(pointed_classes);
    if ((s.flags & kept_hidden_layers) != 0) {
        const std::uint32_t count = list_count();
        for (std::uint32_t i = 0; i < count; ++i) {
            const index layer = ref(object_class::layer).place;
            if (layer != sketchup::no_index)
                s.hidden_layers.push_back(layer);
        }
    }
    if ((s.flags & kept_section_planes) != 0) {
        const std::uint32_t count = list_count();
        for (std::uint32_t i = 0; i < count; ++i) {
            const index plane = ref(object_class::section_plane).place;
            if (plane != sketchup::no_index)
                s.active_section_planes.push_back(plane);
        }
    }
}

void model_reader::read_page_rest(sketchup::scene& s) {
    const int number = layout_.view_page;
    s.in_slide_show = in_.boolean();
    if (number <= 10)
        in_.boolean();
    if (number >= 8)
        skip_doubles(1); // transition time
    if (number >= 9)
        skip_doubles(1); // delay
    if (number >= 10)
        ref(object_class::background_image);
    if (number < 12)
        return;
    in_.boolean(); // shows the background
    const bool has_picture = in_.boolean();
    if (has_picture && in_.boolean())
        in_.skip(in_.u32());
}

} // namespace skp
