// Which sides of a face are shown, how, and with which texture coordinates.

#include "tessaline/faces/face_sides.h"

namespace {

constexpr std::string_view beam_glow_layer = "qlw_lamp_beam_glow";
constexpr std::string_view beam_helper_layers = "qlw_lamp_beams";

// A one-sided face that has a material on its back only shows that one.
bool back_shows(bool two_sided, int two_sided_setting, int front_number, int back_number) {
    return !two_sided && two_sided_setting <= 1 && front_number < first_material_number &&
           back_number >= first_material_number;
}

} // namespace

bool is_beam_glow_layer(std::string_view lower_layer_name) {
    return lower_layer_name == beam_glow_layer;
}

bool is_gated_by_beam(std::string_view lower_layer_name, bool lamp_block_open, bool beam_pass_running) {
    const bool is_beam = is_beam_glow_layer(lower_layer_name);
    return (lamp_block_open && !beam_pass_running && is_beam) || (!lamp_block_open && beam_pass_running && !is_beam);
}

bool is_beam_helper_layer(std::string_view lower_layer_name) {
    return lower_layer_name.find(beam_helper_layers) != std::string_view::npos;
}

void share_material(face_side& front, face_side& back, bool front_named, bool back_named) {
    if (!back_named)
        back.material = front.material;
    else if (!front_named)
        front.material = back.material;
}

bool wants_both_sides(int two_sided_setting, int front_number, int back_number) {
    if (two_sided_setting == 1)
        return front_number != back_number && front_number >= first_material_number &&
               back_number >= first_material_number;
    return two_sided_setting == 2;
}

face_plan plan_for(const face_side& front, const face_side& back, int two_sided_setting, bool may_be_two_sided) {
    face_plan plan{front, back};
    plan.two_sided = may_be_two_sided && wants_both_sides(two_sided_setting, front.number, back.number);
    plan.back_is_primary = back_shows(plan.two_sided, two_sided_setting, front.number, back.number);
    if (plan.back_is_primary) {
        plan.front.number = back.number;
        plan.front.textured = back.textured;
    }
    return plan;
}

uvq_source source_of_uvq(const face_plan& plan, face_pass pass) {
    const bool shows_back = pass == face_pass::back || plan.back_is_primary;
    const bool textured = !plan.two_sided ? plan.uses_uv() : shows_back ? plan.back.textured : plan.front.textured;
    if (!textured)
        return uvq_source::none;
    return shows_back ? uvq_source::back : uvq_source::front;
}
