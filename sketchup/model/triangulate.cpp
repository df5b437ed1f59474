#include "sketchup/model/triangulate.h"

#include "sketchup/model/convex_mesh.h"
#include "sketchup/model/sweep_cost.h"
#include "sketchup/model/vector_math.h"

#include <GL/glu.h>

#include <algorithm>
#include <array>
#include <deque>
#include <new>

namespace sketchup {

namespace {

// The tessellator multiplies coordinates, so that it clamps them at 1e150; no model comes near.
constexpr double largest_coordinate = 1e100;

bool is_usable(const vec3& p) {
    // Also false for what is no number.
    return std::abs(p.x) <= largest_coordinate && std::abs(p.y) <= largest_coordinate &&
           std::abs(p.z) <= largest_coordinate;
}

bool are_usable(std::span<const vec3> points, const vec3& normal) {
    return is_usable(normal) && normal != vec3{} && std::all_of(points.begin(), points.end(), is_usable);
}

struct delete_glu_tessellator {
    void operator()(GLUtesselator* handle) const { gluDeleteTess(handle); }
};

// What libGLU hands back for a vertex.
struct swept_vertex {
    vec3 position;
    index corner = no_index;
    std::uint32_t number = no_index; // in the mesh, once a triangle has used it
};

} // namespace

void face_mesh::clear() {
    vertices.clear();
    corners.clear();
    triangles.clear();
}

// libGLU's tessellator and what its callbacks need; they get this object as the polygon's data.
struct tessellator::glu_sweep {
    std::unique_ptr<GLUtesselator, delete_glu_tessellator> handle{gluNewTess()};
    std::vector<swept_vertex> corners;
    std::deque<swept_vertex> crossings; // never moves its elements, which libGLU points to
    face_mesh* out = nullptr;
    bool failed = false;
    sweep_cost cost;

    glu_sweep();
    void run(std::span<const vec3> points, std::span<const index> loop_sizes, const vec3& normal, face_mesh& mesh);

    static void GLAPIENTRY on_vertex(void* vertex, void* self);
    static void GLAPIENTRY on_edge_flag(GLboolean, void*) {}
    static void GLAPIENTRY on_combine(GLdouble position[3], void* merged[4], GLfloat weights[4], void** made,
                                      void* self);
    static void GLAPIENTRY on_error(GLenum error, void* self);
};

tessellator::glu_sweep::glu_sweep() {
    if (!handle) {
        throw std::bad_alloc();
    }
    gluTessProperty(handle.get(), GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
    gluTessCallback(handle.get(), GLU_TESS_VERTEX_DATA, reinterpret_cast<_GLUfuncptr>(&on_vertex));
    // Does nothing, but with it libGLU gives independent triangles instead of fans and strips.
    gluTessCallback(handle.get(), GLU_TESS_EDGE_FLAG_DATA, reinterpret_cast<_GLUfuncptr>(&on_edge_flag));
    gluTessCallback(handle.get(), GLU_TESS_COMBINE_DATA, reinterpret_cast<_GLUfuncptr>(&on_combine));
    gluTessCallback(handle.get(), GLU_TESS_ERROR_DATA, reinterpret_cast<_GLUfuncptr>(&on_error));
}

void tessellator::glu_sweep::on_vertex(void* vertex, void* self) {
    face_mesh& mesh = *static_cast<glu_sweep*>(self)->out;
    swept_vertex& v = *static_cast<swept_vertex*>(vertex);
    if (v.number == no_index) {
        v.number = static_cast<std::uint32_t>(mesh.vertices.size());
        mesh.vertices.push_back(v.position);
        mesh.corners.push_back(v.corner);
    }
    mesh.triangles.push_back(v.number);
}

// Called where corners fall together, with the corners, and where lines cross, with their ends.
void tessellator::glu_sweep::on_combine(GLdouble position[3], void* merged[4], GLfloat[4], void** made, void* self) {
    const vec3 p{position[0], position[1], position[2]};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto* v = static_cast<const swept_vertex*>(merged[i]);
        if (v != nullptr && v->position == p) {
            *made = merged[i];
            return;
        }
    }
    std::deque<swept_vertex>& crossings = static_cast<glu_sweep*>(self)->crossings;
    crossings.push_back({p});
    *made = &crossings.back();
}

void tessellator::glu_sweep::on_error(GLenum, void* self) {
    static_cast<glu_sweep*>(self)->failed = true;
}

void tessellator::glu_sweep::run(std::span<const vec3> points, std::span<const index> loop_sizes, const vec3& normal,
                                 face_mesh& mesh) {
    out = &mesh;
    failed = false;
    crossings.clear();
    corners.clear();
    corners.reserve(points.size());
    GLUtesselator* const glu = handle.get();
    gluTessNormal(glu, normal.x, normal.y, normal.z);
    gluTessBeginPolygon(glu, this);
    for (const index size : loop_sizes) {
        gluTessBeginContour(glu);
        for (index i = 0; i < size; ++i) {
            const auto number = static_cast<index>(corners.size());
            const vec3& p = points[number];
            corners.push_back({p, number});
            std::array<GLdouble, 3> position = {p.x, p.y, p.z};
            gluTessVertex(glu, position.data(), &corners.back()); // copies the position
        }
        gluTessEndContour(glu);
    }
    gluTessEndPolygon(glu);
    if (failed) {
        mesh.clear();
    }
}

tessellator::tessellator() : sweep_(std::make_unique<glu_sweep>()) {}
tessellator::~tessellator() = default;

void tessellator::sweep(std::span<const vec3> points, std::span<const index> loop_sizes, const vec3& normal,
                        face_mesh& out) {
    out.clear();
    if (are_usable(points, normal) && sweep_->cost.is_bearable(points, loop_sizes, normal)) {
        sweep_->run(points, loop_sizes, normal, out);
    }
}

void tessellator::triangulate(std::span<const vec3> points, std::span<const index> loop_sizes, const vec3& normal,
                              face_mesh& out) {
    const bool may_be_convex = loop_sizes.size() == 1 && points.size() <= 4 && are_usable(points, normal);
    if (!may_be_convex || !convex_mesh(points, normal, out)) {
        sweep(points, loop_sizes, normal, out);
    }
}

void tessellator::triangulate(const model& m, const face& f, face_mesh& out) {
    face_.take(m, f);
    triangulate(face_.points, face_.sizes, f.plane.normal(), out);
    for (index& corner : out.corners) {
        corner = corner == no_index ? no_index : face_.corners[corner];
    }
}

} // namespace sketchup
