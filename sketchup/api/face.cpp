// The calls on faces: paint, edges, plane.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/model/face_area.h"
#include "sketchup/model/texture_coordinates.h"

namespace {

using namespace sketchup::api;
using sketchup::face;
using sketchup::face_side;
using sketchup::index;
using sketchup::index_range;
using sketchup::material;
using sketchup::model;

// Paints with a material of the face's own model, or with none.
SUResult paint(face* f, SUMaterialRef handle, index face::*side) {
    if (!f)
        return SU_ERROR_INVALID_INPUT;
    if (!handle.ptr) {
        f->*side = sketchup::no_index;
        return SU_ERROR_NONE;
    }
    const material* m = object_of(handle);
    if (!m || m->owner != f->owner)
        return SU_ERROR_INVALID_INPUT;
    f->*side = static_cast<index>(m - f->owner->materials.data());
    return SU_ERROR_NONE;
}

SUResult is_side_affine(SUFaceRef handle, face_side side, bool* answer) {
    const face* f = object_of(handle);
    if (!f)
        return SU_ERROR_INVALID_INPUT;
    if (!answer)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    if (!sketchup::texture_of_side(*f->owner, *f, side))
        return SU_ERROR_NO_DATA;
    *answer = sketchup::is_affine(sketchup::mapping_of_side(*f->owner, *f, side));
    return SU_ERROR_NONE;
}

} // namespace

SUResult SUFaceGetFrontMaterial(SUFaceRef face, SUMaterialRef* material) {
    return give_handle(face, material,
                       [](const sketchup::face& f) { return element_at(f.owner->materials, f.material); });
}

SUResult SUFaceGetBackMaterial(SUFaceRef face, SUMaterialRef* material) {
    return give_handle(face, material,
                       [](const sketchup::face& f) { return element_at(f.owner->materials, f.back_material); });
}

SUResult SUFaceSetFrontMaterial(SUFaceRef face, SUMaterialRef material) {
    return paint(object_of(face), material, &sketchup::face::material);
}

SUResult SUFaceSetBackMaterial(SUFaceRef face, SUMaterialRef material) {
    return paint(object_of(face), material, &sketchup::face::back_material);
}

SUResult SUFaceIsFrontMaterialAffine(SUFaceRef face, bool* is_affine) {
    return is_side_affine(face, face_side::front, is_affine);
}

SUResult SUFaceIsBackMaterialAffine(SUFaceRef face, bool* is_affine) {
    return is_side_affine(face, face_side::back, is_affine);
}

SUResult SUFaceGetNumEdges(SUFaceRef face, size_t* count) {
    return give(face, count, [](const sketchup::face& f) {
        size_t total = 0;
        for (index l = f.loops.first; l < f.loops.first + f.loops.count; ++l)
            total += f.owner->loops[l].uses.count;
        return total;
    });
}

SUResult SUFaceGetEdges(SUFaceRef face, size_t len, SUEdgeRef edges[], size_t* count) {
    const sketchup::face* f = object_of(face);
    if (!f)
        return SU_ERROR_INVALID_INPUT;
    if ((!edges && len > 0) || !count)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    model& m = *f->owner;
    size_t stored = 0;
    for (index l = f->loops.first; l < f->loops.first + f->loops.count; ++l) {
        const index_range uses = m.loops[l].uses;
        for (index u = uses.first; u < uses.first + uses.count && stored < len; ++u)
            edges[stored++] = handle_of<SUEdgeRef>(m.edges[m.edge_uses[u].edge]);
    }
    *count = stored;
    return SU_ERROR_NONE;
}

SUResult SUFaceGetNormal(SUFaceRef face, SUVector3D* normal) {
    return give(face, normal, [](const sketchup::face& f) { return to_vector(f.plane.normal()); });
}

SUResult SUFaceGetPlane(SUFaceRef face, SUPlane3D* plane) {
    return give(face, plane, [](const sketchup::face& f) { return to_plane(f.plane); });
}

SUResult SUFaceGetArea(SUFaceRef face, double* area) {
    return give(face, area, [](const sketchup::face& f) {
        const sketchup::face_cut* cut = cut_of(f);
        return cut ? cut->area : sketchup::face_area(*f.owner, f);
    });
}
