// Camera, scenes, sun and rendering options in the archive container.

#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/modern/option_fields.h"
#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_option_values.h"
#include "sketchup/skp/writer/modern_tags.h"
#include "sketchup/skp/writer/written_cameras.h"
#include "sketchup/skp/writer/written_lists.h"
#include "sketchup/skp/writer/written_sun.h"

#include <vector>

namespace skp {

namespace tag = modern::tag;

using sketchup::index;
using sketchup::no_index;

namespace {

void write_scene_base(modern_output& o, const sketchup::scene& s) {
    o.out.record(tag::scene_base, [&] {
        write_entity(o, s, o.ids.of(&s));
        o.out.text(tag::scene_name, s.name);
        o.out.text(tag::scene_description, s.description);
    });
}

// The settings that the scene keeps.
void write_kept_settings(modern_output& o, const sketchup::scene& s, std::uint32_t flags) {
    record_sink& out = o.out;
    if (s.camera != no_index)
        out.record(tag::scene_camera, [&] { write_camera(o, o.model.cameras[s.camera]); });
    if ((flags & scene_keeps_hidden_entities) != 0)
        out.empty(29003); // which they are is not kept
    if (s.rendering_options)
        out.record(tag::scene_rendering_options, [&] { write_rendering_options(o, *s.rendering_options); });
    if (s.shadow_info)
        out.record(tag::scene_shadow_info, [&] { write_shadow_info(o, *s.shadow_info); });
    if ((flags & scene_keeps_axes) != 0)
        out.record(tag::scene_axes, [&] { write_axes(o); });
}

template<class T>
std::vector<std::uint64_t> ids_of(const modern_output& o, const std::vector<T>& array,
                                  const std::vector<index>& elements) {
    std::vector<std::uint64_t> ids;
    for (const index one : elements)
        ids.push_back(o.ids.of(&array[one]));
    return ids;
}

void write_scene(modern_output& o, const sketchup::scene& s) {
    record_sink& out = o.out;
    const std::uint32_t flags = written_flags(s);
    out.record(tag::scene, [&] {
        write_scene_base(o, s);
        out.u32(tag::scene_flags, flags);
        write_kept_settings(o, s, flags);
        if ((flags & scene_keeps_hidden_layers) != 0) {
            out.ids(tag::scene_hidden_layers, ids_of(o, o.model.layers, s.hidden_layers));
            out.empty(29017);
        }
        if ((flags & scene_keeps_section_planes) != 0)
            out.ids(tag::scene_section_planes, ids_of(o, o.model.section_planes, s.active_section_planes));
        if ((flags & scene_keeps_axes) != 0)
            out.boolean(tag::scene_shows_axes, true);
        out.text(tag::scene_label, {});
        out.f64(tag::scene_transition_time, -1); // the default
        out.f64(tag::scene_delay, -1);           // the default
        out.boolean(tag::scene_in_slide_show, s.in_slide_show);
    });
}

} // namespace

void write_camera(modern_output& o, const sketchup::camera& view) {
    record_sink& out = o.out;
    const sketchup::camera camera = written_camera(view);
    out.record(tag::camera, [&] {
        out.v3(tag::camera_eye, camera.eye);
        out.v3(tag::camera_target, camera.target);
        out.v3(tag::camera_up, camera.up);
        out.f64(tag::camera_near, 1);
        out.f64(tag::camera_far, 1000);
        out.boolean(tag::camera_perspective, camera.perspective);
        out.f64(tag::camera_field_of_view, camera.field_of_view);
        out.f64(tag::camera_height, camera.height);
        out.f64(tag::camera_aspect, camera.aspect);
        out.boolean(tag::camera_fov_is_vertical, camera.fov_is_vertical);
        out.boolean(13511, false);
        out.text(tag::camera_description, {});
        out.f64(tag::camera_image_width, 0);
        out.boolean(tag::camera_two_dimensional, camera.two_dimensional);
        out.f64(tag::camera_scale, 1);
        out.f64(tag::camera_center_x, 0);
        out.f64(tag::camera_center_y, 0);
        if (o.format >= modern::format_2023)
            out.boolean(13518, false);
    });
}

void write_rendering_options(modern_output& o, const sketchup::rendering_options& options) {
    o.out.record(tag::rendering_options, [&] {
        if (options.dictionaries.count > 0)
            write_entity(o, options, 0);
        for (const modern::option_field& field : modern::option_fields())
            if (o.format >= field.first_format && o.format <= field.last_format)
                write_value(o.out, field.tag, written_field(field, options));
    });
}

void write_shadow_info(modern_output& o, const sketchup::shadow_info& sun) {
    record_sink& out = o.out;
    const sketchup::shadow_info info = written_sun(sun);
    out.record(tag::shadow_info, [&] {
        if (info.dictionaries.count > 0)
            write_entity(o, info, 0);
        out.u32(tag::shadow_time, static_cast<std::uint32_t>(info.time));
        out.boolean(tag::shadow_daylight_saving, info.daylight_saving);
        out.text(tag::shadow_city, info.city);
        out.text(tag::shadow_country, info.country);
        out.f64(tag::shadow_longitude, info.longitude);
        out.f64(tag::shadow_latitude, info.latitude);
        out.f64(tag::shadow_time_zone, info.time_zone);
        out.v3(tag::shadow_north, info.north);
        out.boolean(tag::shadow_display, info.display_shadows);
        out.boolean(tag::shadow_display_north, info.display_north);
        out.boolean(tag::shadow_on_all_faces, info.display_on_all_faces);
        out.boolean(tag::shadow_on_ground, info.display_on_ground);
        out.boolean(tag::shadow_from_edges, info.edges_cast_shadows);
        out.i32(tag::shadow_light, info.light);
        out.i32(tag::shadow_dark, info.dark);
        out.boolean(tag::shadow_sun_for_all, info.use_sun_for_all_shading);
    });
}

void write_axes(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::axes, [&] {
        write_drawing_element(o, sketchup::drawing_element(sketchup::entity_kind::entities), 0);
        out.v3(tag::axes_origin, {0, 0, 0});
        out.v3(tag::axes_x, {1, 0, 0});
        out.v3(tag::axes_y, {0, 1, 0});
        out.v3(tag::axes_z, {0, 0, 1});
    });
}

void write_scenes(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::scene_manager, [&] {
        out.record(tag::scene_list, [&] {
            for (const sketchup::scene& s : o.model.scenes)
                write_scene(o, s);
        });
        if (o.model.active_scene != no_index)
            out.id(tag::scene_active, o.ids.of(&o.model.scenes[o.model.active_scene]));
    });
}

} // namespace skp
