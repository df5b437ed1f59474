// Camera, scenes, sun and rendering options in the classic container.

#include "sketchup/skp/writer/classic_bodies.h"

#include "sketchup/skp/classic/option_fields.h"
#include "sketchup/skp/writer/blank_preview.h"
#include "sketchup/skp/writer/written_cameras.h"
#include "sketchup/skp/writer/written_lists.h"
#include "sketchup/skp/writer/written_sun.h"

namespace skp {

using sketchup::index;
using sketchup::no_index;

namespace {

void write_scene(classic_output& c, const sketchup::scene& scene) {
    object_archive& out = c.out;
    const int layout = out.number("CViewPage");
    const std::uint32_t flags = written_flags(scene);
    write_entity(c, scene);
    out.str(scene.name);
    out.str(scene.description);
    out.u32(flags);
    if (scene.camera != no_index)
        out.object("CCamera", [&] { write_camera(c, c.model.cameras[scene.camera]); });
    if (scene.rendering_options) {
        write_rendering_options(c, *scene.rendering_options, scene.shadow_info.value_or(sketchup::shadow_info()));
        mention_style(c);
    }
    if (scene.shadow_info) {
        write_shadow_info(c, *scene.shadow_info);
        out.boolean(scene.shadow_info->display_shadows);
    }
    if ((flags & scene_keeps_axes) != 0) {
        write_axes(c);
        out.boolean(true); // shows them
    }
    if ((flags & scene_keeps_hidden_entities) != 0)
        out.size(0); // which they are is not kept
    if ((flags & scene_keeps_hidden_layers) != 0) {
        out.size(scene.hidden_layers.size());
        for (const index layer : scene.hidden_layers)
            out.object("CLayer", &c.model.layers[layer], [] {});
    }
    if ((flags & scene_keeps_section_planes) != 0) {
        out.size(scene.active_section_planes.size());
        for (const index plane : scene.active_section_planes)
            out.object("CSectionPlane", &c.model.section_planes[plane], [] {});
    }
    out.boolean(scene.in_slide_show);
    out.f64(-1); // transition time: the default
    out.f64(-1); // delay: the default
    out.null();  // background
    if (layout >= 12) {
        out.boolean(true); // shows the background
        out.boolean(true); // has a picture
        out.boolean(true); // whose bytes follow
        out.size(blank_preview().size());
        out.raw(blank_preview());
    }
}

template<class T>
T option_value(const sketchup::rendering_options& options, const char* name) {
    const sketchup::typed_value* value = name == nullptr ? nullptr : written_option(options, name);
    const T* held = value == nullptr ? nullptr : std::get_if<T>(&value->data);
    return held == nullptr ? T() : *held;
}

} // namespace

void write_option(object_archive& out, option_type type, const char* name, const sketchup::rendering_options& options,
                  const sketchup::shadow_info& shadows) {
    switch (type) {
    case option_type::integer:
        out.u32(static_cast<std::uint32_t>(option_value<std::int64_t>(options, name)));
        break;
    case option_type::boolean:
        out.boolean(option_value<bool>(options, name));
        break;
    case option_type::color:
        out.rgba(option_value<sketchup::rgba>(options, name));
        break;
    case option_type::real:
        out.f64(option_value<double>(options, name));
        break;
    case option_type::shadows:
        out.boolean(shadows.display_shadows);
        break;
    case option_type::section_display:
        out.u32((option_value<bool>(options, "DisplaySectionPlanes") ? section_planes_bit : 0) |
                (option_value<bool>(options, "DisplaySectionCuts") ? section_cuts_bit : 0));
        break;
    }
}

void write_camera(classic_output& c, const sketchup::camera& of_model) {
    object_archive& out = c.out;
    const sketchup::camera camera = written_camera(of_model);
    out.v3(camera.eye);
    out.v3(camera.target);
    out.v3(camera.up);
    out.f64(1);    // near
    out.f64(1000); // far
    out.boolean(camera.perspective);
    out.f64(camera.field_of_view);
    out.f64(camera.height);
    out.v3({});
    out.f64(camera.aspect);
    out.boolean(camera.fov_is_vertical);
    out.boolean(false);
    out.str({});
    out.f64(0); // image width
    out.boolean(camera.two_dimensional);
    out.f64(1); // scale and centre of the two-dimensional view
    out.f64(0);
    out.f64(0);
}

void write_rendering_options(classic_output& c, const sketchup::rendering_options& options,
                             const sketchup::shadow_info& shadows) {
    object_archive& out = c.out;
    write_entity(c, options);
    const int layout = out.number("CRenderingOptions");
    for (const option_field& field : option_fields())
        if (field.is_in(layout))
            write_option(out, field.type, field.name != nullptr ? field.name : field.setting, options, shadows);
}

void write_shadow_info(classic_output& c, const sketchup::shadow_info& of_model) {
    object_archive& out = c.out;
    const sketchup::shadow_info info = written_sun(of_model);
    write_entity(c, info);
    out.u32(static_cast<std::uint32_t>(info.time));
    out.boolean(info.daylight_saving);
    out.str(info.city);
    out.str(info.country);
    out.f64(info.longitude);
    out.f64(info.latitude);
    out.f64(info.time_zone);
    out.v3(info.north);
    out.boolean(info.display_north);
    out.boolean(info.display_on_all_faces);
    out.boolean(info.display_on_ground);
    out.boolean(info.edges_cast_shadows);
    out.i32(info.light);
    out.i32(info.dark);
    out.boolean(info.use_sun_for_all_shading);
}

void write_axes(classic_output& c) {
    object_archive& out = c.out;
    write_drawing_element(c, sketchup::drawing_element(sketchup::entity_kind::entities));
    out.v3({0, 0, 0});
    out.v3({1, 0, 0});
    out.v3({0, 1, 0});
    out.v3({0, 0, 1});
}

void write_scenes(classic_output& c) {
    object_archive& out = c.out;
    const auto& scenes = c.model.scenes;
    write_plain_entity(c);
    out.size(scenes.size());
    for (const sketchup::scene& scene : scenes)
        out.object("CViewPage", &scene, [&] { write_scene(c, scene); });
    const sketchup::scene* active = c.model.active_scene == no_index ? nullptr : &scenes[c.model.active_scene];
    out.object("CViewPage", active, [] {});
}

} // namespace skp
