// Scenes: what each keeps of the view, and their order.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

#include <utility>

namespace skp::modern {

// 28000
void model_data_reader::read_scenes(byte_cursor manager) {
    const byte_cursor list = descend(manager, {tag::scene_list}).value_or(byte_cursor({}));
    scenes_.reset(count_of(list, tag::scene));
    for (const record& r : records(list))
        if (r.tag == tag::scene)
            read_scene(r.payload);
    if (const auto active = descend(manager, {tag::scene_active}))
        m_.active_scene = scenes_.find(id_in(*active));
}

// 29000. A property that the scene does not keep has no record. One without an id is left out.
void model_data_reader::read_scene(byte_cursor in) {
    in.set_where("scene");
    if (!descend(in, {tag::scene_base, tag::entity, tag::entity_id}))
        return;
    sketchup::scene s;
    s.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        switch (r.tag) {
        case tag::scene_base:
            read_scene_base(value, s);
            break;
        case tag::scene_flags:
            s.flags = value.u32();
            break;
        case tag::scene_camera:
            if (const auto camera = descend(value, {tag::camera})) {
                s.camera = static_cast<index>(m_.cameras.size());
                m_.cameras.push_back(read_camera(*camera));
            }
            break;
        case tag::scene_rendering_options:
            if (const auto options = descend(value, {tag::rendering_options}))
                s.rendering_options = read_rendering_options(*options);
            break;
        case tag::scene_shadow_info:
            if (const auto shadows = descend(value, {tag::shadow_info}))
                s.shadow_info = read_shadow_info(*shadows);
            break;
        case tag::scene_hidden_layers:
            for_each_id(value, [this, &s](std::uint64_t id) {
                if (const index layer = layers_.find(id); layer != sketchup::no_index)
                    s.hidden_layers.push_back(layer);
            });
            break;
        case tag::scene_section_planes:
            for_each_id(value, [this, &s](std::uint64_t id) {
                if (const auto plane = section_planes_.find(id); plane != section_planes_.end())
                    s.active_section_planes.push_back(plane->second);
            });
            break;
        case tag::scene_in_slide_show:
            s.in_slide_show = value.boolean();
            break;
        }
    }
    scenes_.insert(static_cast<std::uint64_t>(s.persistent_id), static_cast<index>(m_.scenes.size()));
    m_.scenes.push_back(std::move(s));
}

// 28500
void model_data_reader::read_scene_base(byte_cursor in, sketchup::scene& s) {
    for (const record& r : records(in)) {
        if (r.tag == tag::entity)
            read_entity(r.payload, s);
        else if (r.tag == tag::scene_name)
            s.name = text_in(r.payload);
        else if (r.tag == tag::scene_description)
            s.description = text_in(r.payload);
    }
}

} // namespace skp::modern
