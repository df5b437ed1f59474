// Cameras, the sun, the axes.

#include "sketchup/skp/classic/model_reader.h"

namespace skp {

// CCamera. It has no entity base. It becomes a camera of the model when the model or a scene claims it.
void model_reader::read_camera(std::uint32_t slot) {
    sketchup::camera c;
    c.eye = in_.v3();
    c.target = in_.v3();
    c.up = in_.v3();
    skip_doubles(2); // near, far
    c.perspective = in_.boolean();
    c.field_of_view = in_.f64();
    c.height = in_.f64();
    in_.v3();
    c.aspect = in_.f64();
    c.fov_is_vertical = in_.boolean();
    if (layout_.camera >= 2)
        in_.boolean();
    if (layout_.camera >= 3)
        in_.text(); // name
    if (layout_.camera >= 4)
        skip_doubles(1); // width of the image
    if (layout_.camera >= 5) {
        c.two_dimensional = in_.boolean();
        skip_doubles(3); // scale and centre of the two-point perspective
    }
    in_.set_place(slot, static_cast<index>(cameras_.size()));
    cameras_.push_back(c);
}

// The camera of files that have no class for it. It stores a direction where later ones store the target.
sketchup::camera model_reader::read_old_camera() {
    sketchup::camera c;
    c.eye = in_.v3();
    const sketchup::vec3 direction = in_.v3();
    c.target = {c.eye.x + direction.x, c.eye.y + direction.y, c.eye.z + direction.z};
    c.up = in_.v3();
    skip_doubles(2); // near, far
    c.perspective = in_.boolean();
    c.field_of_view = in_.f64();
    c.height = in_.f64();
    in_.v3();
    return c;
}

// The camera behind a tag, as a new element of the model; the default camera for the null tag.
sketchup::camera model_reader::camera_ref() {
    const object found = ref(object_class::camera);
    sketchup::camera c = found.is_null() ? sketchup::camera() : cameras_[found.place];
    c.id = m_.give_id();
    return c;
}

// CThumbnail
void model_reader::read_thumbnail(std::uint32_t) {
    skip_entity();
    if (layout_.thumbnail >= 1)
        ref(object_class::camera);
    else
        read_old_camera();
    ref(object_class::dib);
}

// CShadowInfo
sketchup::shadow_info model_reader::read_shadow_info() {
    const reading here(in_, "CShadowInfo");
    sketchup::shadow_info s;
    s.id = m_.give_id();
    read_entity(s);
    s.time = in_.u32();
    s.daylight_saving = in_.boolean();
    s.city = in_.text();
    s.country = in_.text();
    s.longitude = in_.f64();
    s.latitude = in_.f64();
    s.time_zone = in_.f64();
    s.north = in_.v3();
    s.display_north = in_.boolean();
    s.display_on_all_faces = in_.boolean();
    s.display_on_ground = in_.boolean();
    s.edges_cast_shadows = in_.boolean();
    s.light = in_.i32();
    s.dark = in_.i32();
    s.use_sun_for_all_shading = in_.boolean();
    return s;
}

// CSketchCS
void model_reader::skip_axes() {
    const reading here(in_, "CSketchCS");
    sketchup::drawing_element unused(sketchup::entity_kind::entities);
    read_drawing(unused);
    skip_doubles(12); // origin, x, y, z
}

} // namespace skp
