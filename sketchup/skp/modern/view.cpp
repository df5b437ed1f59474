// Cameras and the sun.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

namespace skp::modern {

// 13500
sketchup::camera model_data_reader::read_camera(byte_cursor in) {
    in.set_where("camera");
    sketchup::camera c;
    c.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        switch (r.tag) {
        case tag::camera_eye:
            c.eye = value.v3();
            break;
        case tag::camera_target:
            c.target = value.v3();
            break;
        case tag::camera_up:
            c.up = value.v3();
            break;
        case tag::camera_perspective:
            c.perspective = value.boolean();
            break;
        case tag::camera_height:
            c.height = value.f64();
            break;
        case tag::camera_field_of_view:
            c.field_of_view = value.f64();
            break;
        case tag::camera_aspect:
            c.aspect = value.f64();
            break;
        case tag::camera_fov_is_vertical:
            c.fov_is_vertical = value.boolean();
            break;
        case tag::camera_two_dimensional:
            c.two_dimensional = value.boolean();
            break;
        }
    }
    return c;
}

// 26000
sketchup::shadow_info model_data_reader::read_shadow_info(byte_cursor in) {
    in.set_where("shadow info");
    sketchup::shadow_info s;
    s.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        switch (r.tag) {
        case tag::entity:
            read_entity(value, s);
            break;
        case tag::shadow_time:
            s.time = value.u32();
            break;
        case tag::shadow_daylight_saving:
            s.daylight_saving = value.boolean();
            break;
        case tag::shadow_city:
            s.city = text_in(value);
            break;
        case tag::shadow_country:
            s.country = text_in(value);
            break;
        case tag::shadow_longitude:
            s.longitude = value.f64();
            break;
        case tag::shadow_latitude:
            s.latitude = value.f64();
            break;
        case tag::shadow_time_zone:
            s.time_zone = value.f64();
            break;
        case tag::shadow_north:
            s.north = value.v3();
            break;
        case tag::shadow_display:
            s.display_shadows = value.boolean();
            break;
        case tag::shadow_display_north:
            s.display_north = value.boolean();
            break;
        case tag::shadow_on_all_faces:
            s.display_on_all_faces = value.boolean();
            break;
        case tag::shadow_on_ground:
            s.display_on_ground = value.boolean();
            break;
        case tag::shadow_from_edges:
            s.edges_cast_shadows = value.boolean();
            break;
        case tag::shadow_light:
            s.light = value.i32();
            break;
        case tag::shadow_dark:
            s.dark = value.i32();
            break;
        case tag::shadow_sun_for_all:
            s.use_sun_for_all_shading = value.boolean();
            break;
        }
    }
    return s;
}

} // namespace skp::modern
