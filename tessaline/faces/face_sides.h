#pragma once

// Which sides of a face are shown, how, and with which texture coordinates. Decisions only: nothing here writes.

#include "sketchup/SketchUpAPI.h"

#include <string_view>

enum class face_pass { front, back };

// The first number that a material record can have; below it stand "no material" and the edge material.
inline constexpr int first_material_number = 10;

// One side of a face, its material settled.
struct face_side {
    SUMaterialRef material = SU_INVALID;
    bool inherited = false; // the face has no material here, and that of an enclosing object stands in
    int number = 0;         // 0 for no material
    bool textured = false;
    bool glows = false;
};

// How a face is shown.
struct face_plan {
    face_side front;
    face_side back;
    bool two_sided = false;       // each side gets a pass, and a block, of its own
    bool back_is_primary = false; // a one-sided face shows its back material; `front` has that number already
    bool uses_uv() const { return front.textured || back.textured; }
};

// Where the texture coordinates of a pass come from.
enum class uvq_source { none, front, back };

// The layer of what one sees of a lamp's light: its faces stay visible when the lamp's own shape is hidden.
// lower_layer_name: in lower case.
bool is_beam_glow_layer(std::string_view lower_layer_name);

// Whether the layer keeps a face out of the pass that runs. Beam shapes lie on layers of their own: they stay out of
// the block of their lamp, and are all that the second walk over a lamp writes. lower_layer_name: in lower case.
bool is_gated_by_beam(std::string_view lower_layer_name, bool lamp_block_open, bool beam_pass_running);

// Whether the layer holds the helper lines of a beam, which are never shown.
bool is_beam_helper_layer(std::string_view lower_layer_name);

// Gives a side without a named material the material of the other side; the back is looked at first.
// front_named, back_named: the side's material has a name that is not empty.
void share_material(face_side& front, face_side& back, bool front_named, bool back_named);

// two_sided_setting: 1 shows both sides if they have different materials, 2 always, any other value never.
bool wants_both_sides(int two_sided_setting, int front_number, int back_number);

// The plan for a face. may_be_two_sided: false if the face just opened an illuminated block.
face_plan plan_for(const face_side& front, const face_side& back, int two_sided_setting, bool may_be_two_sided);

uvq_source source_of_uvq(const face_plan& plan, face_pass pass);
