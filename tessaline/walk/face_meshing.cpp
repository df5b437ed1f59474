// Which side of a face becomes which block, and what stands in it. Reads and changes the parameters of the face's
// level; reads the materials, the texture writer and the flags of the run.

#include "qlw/qlw_globals.h"
#include "tessaline/faces/face_geometry.h"
#include "tessaline/model/drawing_elements.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/parameters/layer_inheritance.h"
#include "tessaline/state/run_state.h"
#include "tessaline/stream/length_units.h"
#include "tessaline/walk/lamps.h"
#include "tessaline/walk/SketchUpReader.h"
#include "text/letter_case.h"

#include <utility>

namespace {

// ---- what is asked of a face

// The face's own materials; with colour by layer those of its layer, and the face loses its own in the open model, so
// that the texture writer no longer sees them.
std::pair<SUMaterialRef, SUMaterialRef> face_materials(SUFaceRef face, SULayerRef layer) {
    SUMaterialRef front = SU_INVALID;
    SUMaterialRef back = SU_INVALID;
    if (theApp.color_by_layer) {
        SUFaceSetFrontMaterial(face, front);
        SUFaceSetBackMaterial(face, back);
        SULayerGetMaterial(layer, &front);
        return {front, front};
    }
    SUFaceGetFrontMaterial(face, &front);
    SUFaceGetBackMaterial(face, &back);
    return {front, back};
}

face_side side_with(SUMaterialRef own, SUMaterialRef of_enclosing_object) {
    face_side side;
    side.inherited = SUIsInvalid(own) && SUIsValid(of_enclosing_object);
    side.material = side.inherited ? of_enclosing_object : own;
    return side;
}

void take(face_side& side, const material_of_side& told) {
    side.number = told.number;
    side.textured = told.has_texture;
    side.glows = told.has_glow;
}

std::vector<edge_ends> edges_of(SUFaceRef face) {
    std::size_t count = 0;
    SUFaceGetNumEdges(face, &count);
    std::vector<SUEdgeRef> handles(count);
    SUFaceGetEdges(face, handles.size(), handles.data(), &count);
    std::vector<edge_ends> edges;
    for (const SUEdgeRef edge : handles) {
        SUVertexRef start = SU_INVALID;
        SUVertexRef end = SU_INVALID;
        SUPoint3D from{};
        SUPoint3D to{};
        SUEdgeGetStartVertex(edge, &start);
        SUEdgeGetEndVertex(edge, &end);
        SUVertexGetPosition(start, &from);
        SUVertexGetPosition(end, &to);
        edges.push_back({{from.x, from.y, from.z}, {to.x, to.y, to.z}});
    }
    return edges;
}

// ---- how texture coordinates are stretched

struct uv_scale {
    double u = 1;
    double v = 1;
};

// A face's own texture coordinates count repetitions of the picture, inherited ones count inches. The record is that of
// the front for both sides, which the consumer has always been given.
uv_scale inherited_scale(const face_plan& plan, bool back_side) {
    const int record = plan.front.number - first_material_number;
    const bool inherited = back_side ? plan.back.inherited : plan.front.inherited;
    if (!inherited || record < 0 || record >= static_cast<int>(material_records.size()))
        return {};
    const cl_tsl_material& material = material_records[static_cast<std::size_t>(record)];
    return {material.tile_x, material.tile_y};
}

uv_scale layer_material_scale(const face_plan& plan) {
    SUTextureRef texture = SU_INVALID;
    if (!theApp.color_by_layer || SUMaterialGetTexture(plan.front.material, &texture) != SU_ERROR_NONE ||
        SUIsInvalid(texture))
        return {};
    std::size_t width = 0;
    std::size_t height = 0;
    uv_scale scale{0, 0};
    SUTextureGetDimensions(texture, &width, &height, &scale.u, &scale.v);
    return scale;
}

} // namespace

int SketchUpReader::ProcessFace(SUFaceRef face, const transform16& matrix, bool flip, const std::string&) {
    const SUDrawingElementRef element = SUFaceToDrawingElement(face);
    const element_layer layer = layer_of(element, layer0_hidden);
    set_lower_case(scratch.lower_layer_name, layer.name);
    if (is_gated_by_beam(scratch.lower_layer_name, blocks.state().lamp_block_open, blocks.state().beam_pass_running)) {
        --items_done;
        return 0;
    }
    const bool layer_is_off = !theApp.is_doing_animation && !is_visible(layer.layer);
    if (is_hidden(element) || layer_is_off || is_beam_helper_layer(scratch.lower_layer_name))
        return 0;

    read_attributes(SUFaceToEntity(face));
    current_oparms->store_attributes_in_oparms("Face");

    const auto [front_material, back_material] = face_materials(face, layer.layer);
    face_side front = side_with(front_material, current_oparms->material);
    face_side back = side_with(back_material, current_oparms->material);
    share_material(front, back, materials.is_named(front.material), materials.is_named(back.material));
    take(front, get_material_number(face, front.material, "face", true));
    take(back, get_material_number(face, back.material, "face", false));
    return write_face_sides({face, matrix, flip, layer.name, casts_shadows(element)}, front, back);
}

int SketchUpReader::write_face_sides(const face_in_walk& walked, const face_side& front, const face_side& back) {
    blocks.leave_illum_mesh_unless(front.number, back.number);
    const bool begins_illum = blocks.takes_glow() && (front.glows || back.glows);
    if (begins_illum)
        blocks.begin_illum_mesh(walked.layer_name, front.glows, front.number, back.number, current_oparms->light.hide,
                                current_oparms->invisible);
    const face_plan plan = plan_for(front, back, get_global_int("ivl_2_sided_faces"), !begins_illum);
    const bool face_lamp = begins_face_lamp();
    if (face_lamp)
        begin_face_lamp(walked.matrix);

    // A face that cannot be cut leaves the block of its lamp open.
    if (!write_face_pass(walked, plan, face_pass::front, face_lamp))
        return 0;
    if (plan.two_sided && !write_face_pass(walked, plan, face_pass::back, face_lamp))
        return 0;
    if (face_lamp)
        end_face_lamp(walked.face);
    return 1;
}

bool SketchUpReader::begins_face_lamp() const {
    return blocks.takes_lamps() && !blocks.state().in_illum_mesh && !current_oparms->light.direct_light &&
           is_lamp(current_oparms->light);
}

void SketchUpReader::begin_face_lamp(const transform16& matrix) {
    const int lamp_number = current_oparms->light.add_lamp(*this, matrix);
    blocks.begin_face_lamp_mesh(lamp_number, current_oparms->light.hide, current_oparms->invisible);
}

void SketchUpReader::end_face_lamp(SUFaceRef face) {
    current_oparms->light.face_edge_vector = longest_edge_vector(edges_of(face));
    current_oparms->light.face_x_axis = {1, 0, 0};
    blocks.end_face_lamp();
}

// One side of the face. False, with nothing written, if the face has no triangles.
bool SketchUpReader::write_face_pass(const face_in_walk& walked, const face_plan& plan, face_pass pass,
                                     bool face_lamp) {
    uv_helper uv;
    if (plan.uses_uv())
        uv.make(walked.face, plan.front.textured, plan.back.textured, texture_writer);
    if (!fetch_mesh(scratch, walked.face, plan.uses_uv() ? &uv : nullptr))
        return false;
    begin_face_pass(walked, plan, pass);
    write_face_vertices(walked.matrix, plan, pass, uv);
    write_face_triangles(walked.flip != (pass == face_pass::back)); // turned round twice is not turned round
    blocks.end_face_pass(static_cast<int>(scratch.points.size()), face_lamp);
    return true;
}

void SketchUpReader::begin_face_pass(const face_in_walk& walked, const face_plan& plan, face_pass pass) {
    // The faces of a lamp without geometry get no block of their own: the consumer has always been given them bare.
    const bool bare = !blocks.state().beam_pass_running && is_lamp(current_oparms->light);
    blocks.begin_face_pass({.label = "ProcessFace MESH",
                            .casts_shadows = walked.casts_shadows,
                            .groundcover_file = current_oparms->groundcover_file,
                            .groundcover_orientation = current_oparms->groundcover_orientation,
                            .invisible = current_oparms->invisible,
                            .hide = current_oparms->light.hide,
                            .layer_name = walked.layer_name},
                           {.layer_name = walked.layer_name,
                            .two_sided = plan.two_sided,
                            .pass = pass,
                            .front_material = plan.front.number,
                            .back_material = plan.back.number,
                            .uses_uv = plan.uses_uv()},
                           bare);
}

void SketchUpReader::write_face_vertices(const transform16& matrix, const face_plan& plan, face_pass pass,
                                         const uv_helper& uv) {
    const uvq_source source = source_of_uvq(plan, pass);
    const bool back_side = source == uvq_source::back;
    const uv_scale inherited = inherited_scale(plan, back_side);
    const uv_scale of_layer = layer_material_scale(plan);
    const int vertex_base = blocks.state().vertex_base;
    scratch.world.resize(scratch.points.size());
    for (std::size_t i = 0; i != scratch.points.size(); ++i) {
        const SUPoint3D& point = scratch.points[i];
        const SUVector3D& normal = scratch.normals[i];
        const fpt world = transform_point(matrix, {point.x, point.y, point.z});
        scratch.world[i] = world;
        fpt uvq{0, 0, 1}; // the third is 1 whatever the helper gave; it is not divided into the others
        if (source != uvq_source::none) {
            const SUUVQ raw = uv.at(point, back_side);
            uvq.x = raw.u * inherited.u * of_layer.u;
            uvq.y = raw.v * inherited.v * of_layer.v;
        }
        stream.write_vertex(vertex_base + static_cast<int>(i),
                            transform_normal(matrix, {normal.x, normal.y, normal.z}, world),
                            source == uvq_source::none ? nullptr : &uvq, metres_from_inches(world));
    }
}

void SketchUpReader::write_face_triangles(bool reversed) {
    const int vertex_base = blocks.state().vertex_base;
    for (std::size_t i = 0; i + 2 < scratch.indices.size(); i += 3) {
        std::size_t a = scratch.indices[i];
        const std::size_t b = scratch.indices[i + 1];
        std::size_t c = scratch.indices[i + 2];
        const auto& world = scratch.world;
        if (corners_coincide(world[a], world[b]) || corners_coincide(world[b], world[c]) ||
            corners_coincide(world[c], world[a]))
            continue; // its vertices stay
        if (reversed)
            std::swap(a, c);
        stream.write_face(vertex_base + static_cast<int>(a), vertex_base + static_cast<int>(b),
                          vertex_base + static_cast<int>(c));
    }
}
