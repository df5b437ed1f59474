// How the triangles of a face come out of the SketchUp interface.

#include "tessaline/faces/face_mesh.h"

namespace {

struct mesh_helper {
    mesh_helper() = default;
    ~mesh_helper() { SUMeshHelperRelease(&handle); }
    mesh_helper(const mesh_helper&) = delete;
    mesh_helper& operator=(const mesh_helper&) = delete;

    SUMeshHelperRef handle = SU_INVALID;
};

} // namespace

uv_helper::~uv_helper() {
    if (SUIsValid(handle))
        SUUVHelperRelease(&handle);
}

void uv_helper::make(SUFaceRef face, bool front, bool back, SUTextureWriterRef writer) {
    SUFaceGetUVHelper(face, front, back, writer, &handle);
}

SUUVQ uv_helper::at(const SUPoint3D& point, bool back_side) const {
    SUUVQ uvq{0, 0, 0};
    if (back_side)
        SUUVHelperGetBackUVQ(handle, &point, &uvq);
    else
        SUUVHelperGetFrontUVQ(handle, &point, &uvq);
    return uvq;
}

bool fetch_mesh(face_scratch& scratch, SUFaceRef face, const uv_helper* uv) {
    mesh_helper mesh;
    if (uv)
        SUMeshHelperCreateWithUVHelper(&mesh.handle, face, uv->handle);
    else
        SUMeshHelperCreate(&mesh.handle, face);
    std::size_t triangles = 0;
    std::size_t vertices = 0;
    SUMeshHelperGetNumTriangles(mesh.handle, &triangles);
    SUMeshHelperGetNumVertices(mesh.handle, &vertices);
    if (triangles == 0 || vertices == 0)
        return false;
    scratch.points.resize(vertices);
    scratch.normals.resize(vertices);
    scratch.indices.resize(3 * triangles);
    std::size_t count = 0;
    SUMeshHelperGetVertices(mesh.handle, vertices, scratch.points.data(), &count);
    SUMeshHelperGetNormals(mesh.handle, vertices, scratch.normals.data(), &count);
    SUMeshHelperGetVertexIndices(mesh.handle, scratch.indices.size(), scratch.indices.data(), &count);
    return true;
}
