#include "sketchup/model/texture_coordinates.h"

#include "sketchup/model/vector_math.h"

#include <optional>

namespace sketchup {

namespace {

using matrix3 = std::array<double, 9>; // row by row

// The sine of a tilt below which a plane counts as level.
constexpr double level_sine = 1e-3;

// Third columns of mappings that were only moved, turned, scaled and skewed hold noise of up to 1e-7 in files.
constexpr double affine_noise = 1e-6;

// Nothing if the determinant is zero or not finite.
std::optional<matrix3> inverse_of(const matrix3& m) {
    const matrix3 adjugate = {m[4] * m[8] - m[5] * m[7], m[2] * m[7] - m[1] * m[8], m[1] * m[5] - m[2] * m[4],
                              m[5] * m[6] - m[3] * m[8], m[0] * m[8] - m[2] * m[6], m[2] * m[3] - m[0] * m[5],
                              m[3] * m[7] - m[4] * m[6], m[1] * m[6] - m[0] * m[7], m[0] * m[4] - m[1] * m[3]};
    const double determinant = m[0] * adjugate[0] + m[1] * adjugate[3] + m[2] * adjugate[6];
    matrix3 inverse;
    for (std::size_t i = 0; i < 9; ++i) {
        inverse[i] = adjugate[i] / determinant;
        if (!std::isfinite(inverse[i])) {
            return std::nullopt;
        }
    }
    return inverse;
}

} // namespace

double tile_size(double size) {
    return size == 0 || !std::isfinite(size) ? 1 : size;
}

plane_axes axes_of_plane(const vec3& n) {
    const bool is_level = std::hypot(n.x, n.y) < level_sine;
    const vec3 across = cross(is_level ? vec3{0, 1, 0} : vec3{0, 0, 1}, n);
    const vec3 u = normalized_or(across, {1, 0, 0});
    return {u, cross(n, u)};
}

const material* material_of_side(const model& m, const face& f, face_side side) {
    const index i = side == face_side::front ? f.material : f.back_material;
    return i < m.materials.size() ? &m.materials[i] : nullptr;
}

const texture* texture_of_side(const model& m, const face& f, face_side side) {
    const material* painted = material_of_side(m, f, side);
    return painted != nullptr && painted->texture < m.textures.size() ? &m.textures[painted->texture] : nullptr;
}

const side_mapping& mapping_of_side(const model& m, const face& f, face_side side) {
    static const side_mapping default_mapping;
    if (f.texture_mapping >= m.texture_mappings.size()) {
        return default_mapping;
    }
    const texture_mapping& both = m.texture_mappings[f.texture_mapping];
    return side == face_side::front ? both.front : both.back;
}

bool is_affine(const side_mapping& mapping) {
    const matrix3& m = mapping.matrix;
    const double limit = affine_noise * std::abs(m[8]);
    return !mapping.positioned || (std::abs(m[2]) <= limit && std::abs(m[5]) <= limit);
}

side_coordinates::side_coordinates(const vec3& normal) : axes_(axes_of_plane(normal)) {}

side_coordinates::side_coordinates(const vec3& normal, const side_mapping& mapping, double width, double height)
    : axes_(axes_of_plane(mapping.projected ? normalized_or(mapping.direction, normal) : normal)),
      width_(tile_size(width)), height_(tile_size(height)) {
    if (mapping.positioned) {
        inverse_ = inverse_of(mapping.matrix).value_or(inverse_);
        is_affine_ = is_affine(mapping);
    }
}

uvq side_coordinates::at(const vec3& point) const {
    const double x = dot(point, axes_.u);
    const double y = dot(point, axes_.v);
    const matrix3& m = inverse_;
    const uvq at = {(x * m[0] + y * m[3] + m[6]) / width_, (x * m[1] + y * m[4] + m[7]) / height_,
                    x * m[2] + y * m[5] + m[8]};
    // The noise in the matrix of an affine mapping belongs to it: the picture lies where u / q and v / q say. But the
    // caller gets 1 for q, and not nearly 1.
    return is_affine_ && at.q != 0 ? uvq{at.u / at.q, at.v / at.q, 1} : at;
}

side_coordinates coordinates_of_side(const model& m, const face& f, face_side side) {
    const texture* picture = texture_of_side(m, f, side);
    if (picture == nullptr) {
        return side_coordinates(f.plane.normal());
    }
    return side_coordinates(f.plane.normal(), mapping_of_side(m, f, side), picture->width, picture->height);
}

} // namespace sketchup
