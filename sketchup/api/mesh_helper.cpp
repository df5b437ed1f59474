// The triangles of a face with what belongs to each vertex.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/writer_coordinates.h"

#include <optional>

namespace {

using namespace sketchup::api;
using sketchup::face_side;
using sketchup::side_coordinates;

// prepare(mesh helper) sets the coordinates that are wanted.
template<class Prepare>
SUResult create_mesh(SUMeshHelperRef* mesh, const sketchup::face& face, Prepare prepare) {
    return create(mesh, provider().mesh_helpers, [&](mesh_helper& made) {
        made.face = &face;
        const sketchup::face_cut* cut = cut_of(face);
        if (cut)
            triangulate_cut(provider().tessellator, face, *cut, made.mesh);
        else
            provider().tessellator.triangulate(*face.owner, face, made.mesh);
        prepare(made);
    });
}

// Normals are worked out when first asked for: many a mesh is made for its triangles alone.
void find_normals(mesh_helper& mesh) {
    if (!mesh.normals.empty())
        return;
    open_model& open = *open_model_of(mesh.face->owner);
    if (!open.normals)
        open.normals.emplace(*open.model);
    open.normals->of_mesh(*mesh.face, mesh.mesh, mesh.normals);
}

SUResult coordinates(const mesh_helper* mesh, std::optional<side_coordinates> mesh_helper::*side, size_t len,
                     SUPoint3D coords[], size_t* count) {
    if (!mesh)
        return SU_ERROR_INVALID_INPUT;
    return fill_list(mesh->mesh.vertices.size(), len, coords, count, [mesh, side](size_t i) {
        if (!(mesh->*side))
            return SUPoint3D{0, 0, 0};
        const sketchup::uvq found = (mesh->*side)->at(mesh->mesh.vertices[i]);
        return SUPoint3D{found.u, found.v, found.q};
    });
}

} // namespace

SUResult SUMeshHelperCreate(SUMeshHelperRef* mesh, SUFaceRef face) {
    const sketchup::face* f = object_of(face);
    if (!f)
        return SU_ERROR_INVALID_INPUT;
    return create_mesh(mesh, *f, [](mesh_helper&) {});
}

SUResult SUMeshHelperCreateWithUVHelper(SUMeshHelperRef* mesh, SUFaceRef face, SUUVHelperRef helper) {
    const sketchup::face* f = object_of(face);
    const uv_helper* h = object_of(helper);
    if (!f || !h)
        return SU_ERROR_INVALID_INPUT;
    return create_mesh(mesh, *f, [h](mesh_helper& made) {
        made.front = h->front;
        made.back = h->back;
    });
}

SUResult SUMeshHelperCreateWithTextureWriter(SUMeshHelperRef* mesh, SUFaceRef face, SUTextureWriterRef writer) {
    const sketchup::face* f = object_of(face);
    const texture_writer* w = object_of(writer);
    if (!f || !w)
        return SU_ERROR_INVALID_INPUT;
    return create_mesh(mesh, *f, [f, w](mesh_helper& made) {
        made.front = coordinates_for_writer(*f, face_side::front, w);
        made.back = coordinates_for_writer(*f, face_side::back, w);
    });
}

SUResult SUMeshHelperRelease(SUMeshHelperRef* mesh) {
    return release(mesh, provider().mesh_helpers);
}

SUResult SUMeshHelperGetNumTriangles(SUMeshHelperRef mesh, size_t* count) {
    return give(mesh, count, [](const mesh_helper& m) { return m.mesh.triangles.size() / 3; });
}

SUResult SUMeshHelperGetNumVertices(SUMeshHelperRef mesh, size_t* count) {
    return give(mesh, count, [](const mesh_helper& m) { return m.mesh.vertices.size(); });
}

SUResult SUMeshHelperGetVertexIndices(SUMeshHelperRef mesh, size_t len, size_t indices[], size_t* count) {
    const mesh_helper* m = object_of(mesh);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return fill_list(m->mesh.triangles.size(), len, indices, count, [m](size_t i) { return m->mesh.triangles[i]; });
}

SUResult SUMeshHelperGetVertices(SUMeshHelperRef mesh, size_t len, SUPoint3D vertices[], size_t* count) {
    const mesh_helper* m = object_of(mesh);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return fill_list(m->mesh.vertices.size(), len, vertices, count,
                     [m](size_t i) { return to_point(m->mesh.vertices[i]); });
}

SUResult SUMeshHelperGetNormals(SUMeshHelperRef mesh, size_t len, SUVector3D normals[], size_t* count) {
    mesh_helper* m = object_of(mesh);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return guarded([&] {
        find_normals(*m);
        return fill_list(m->normals.size(), len, normals, count, [m](size_t i) { return to_vector(m->normals[i]); });
    });
}

SUResult SUMeshHelperGetFrontSTQCoords(SUMeshHelperRef mesh, size_t len, SUPoint3D coords[], size_t* count) {
    return coordinates(object_of(mesh), &mesh_helper::front, len, coords, count);
}

SUResult SUMeshHelperGetBackSTQCoords(SUMeshHelperRef mesh, size_t len, SUPoint3D coords[], size_t* count) {
    return coordinates(object_of(mesh), &mesh_helper::back, len, coords, count);
}
