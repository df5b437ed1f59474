#include "tools/gltf/node_placement.h"

#include "tools/gltf/numbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gltf {

namespace {

using matrix = std::array<double3, 3>; // columns

double dot(const double3& a, const double3& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

double3 cross(const double3& a, const double3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double3 times(const double3& a, double factor) {
    return {a[0] * factor, a[1] * factor, a[2] * factor};
}

double length(const double3& a) {
    return std::sqrt(dot(a, a));
}

bool are_square(const double3& a, const double3& b) {
    // Single precision holds no more of an angle.
    return std::abs(dot(a, b)) <= 1e-6 * length(a) * length(b);
}

// Some unit vector square to a unit vector.
double3 square_to(const double3& a) {
    const std::size_t least = std::abs(a[0]) < std::abs(a[1]) ? (std::abs(a[0]) < std::abs(a[2]) ? 0 : 2)
                                                              : (std::abs(a[1]) < std::abs(a[2]) ? 1 : 2);
    double3 other{};
    other[least] = 1;
    const double3 result = cross(a, other);
    return times(result, 1 / length(result));
}

// The quaternion of a matrix of unit columns square to one another, right-handed.
double4 quaternion_of(const matrix& m) {
    const double xx = m[0][0];
    const double yy = m[1][1];
    const double zz = m[2][2];
    double4 q{};
    if (xx + yy + zz > 0) {
        q = {m[1][2] - m[2][1], m[2][0] - m[0][2], m[0][1] - m[1][0], 1 + xx + yy + zz};
    } else if (xx >= yy && xx >= zz) {
        q = {1 + xx - yy - zz, m[0][1] + m[1][0], m[2][0] + m[0][2], m[1][2] - m[2][1]};
    } else if (yy >= zz) {
        q = {m[0][1] + m[1][0], 1 - xx + yy - zz, m[1][2] + m[2][1], m[2][0] - m[0][2]};
    } else {
        q = {m[2][0] + m[0][2], m[1][2] + m[2][1], 1 - xx - yy + zz, m[0][1] - m[1][0]};
    }
    const double size = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
    for (double& part : q)
        part /= size;
    return q;
}

// The lengths of the columns, and the columns made unit, square to one another and right-handed. A column of no length
// gets a direction that fits.
std::pair<matrix, double3> taken_apart(const matrix& m) {
    double3 scale{};
    matrix unit = m;
    for (std::size_t i = 0; i < 3; ++i) {
        scale[i] = length(m[i]);
        if (scale[i] > 0)
            unit[i] = times(m[i], 1 / scale[i]);
    }
    const bool has[3] = {scale[0] > 0, scale[1] > 0, scale[2] > 0};
    if (!has[0])
        unit[0] = has[1] && has[2] ? cross(unit[1], unit[2])
                  : has[1]         ? square_to(unit[1])
                  : has[2]         ? square_to(unit[2])
                                   : double3{1, 0, 0};
    if (!has[1])
        unit[1] = has[2] ? cross(unit[2], unit[0]) : square_to(unit[0]);
    const double3 third = cross(unit[0], unit[1]);
    if (has[2] && dot(third, unit[2]) < 0) {
        scale[0] = -scale[0];
        unit[0] = times(unit[0], -1);
    }
    if (!has[2])
        unit[2] = third;
    return {unit, scale};
}

// Turns pairs of columns, m' = m r, until all are square to one another; gives r, a rotation (one-sided Jacobi).
matrix made_square(matrix& m) {
    matrix r = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    constexpr std::size_t pairs[3][2] = {{0, 1}, {0, 2}, {1, 2}};
    for (int sweep = 0; sweep < 30; ++sweep) // each sweep squares the error; six are the rule
        for (const auto& [p, q] : pairs) {
            const double off = dot(m[p], m[q]);
            if (std::abs(off) <= 1e-15 * length(m[p]) * length(m[q]))
                continue;
            const double zeta = (dot(m[q], m[q]) - dot(m[p], m[p])) / (2 * off);
            const double t = (zeta >= 0 ? 1 : -1) / (std::abs(zeta) + std::sqrt(1 + zeta * zeta));
            const double c = 1 / std::sqrt(1 + t * t);
            const double s = c * t;
            for (matrix* each : {&m, &r})
                for (std::size_t i = 0; i < 3; ++i) {
                    const double a = (*each)[p][i];
                    const double b = (*each)[q][i];
                    (*each)[p][i] = c * a - s * b;
                    (*each)[q][i] = s * a + c * b;
                }
        }
    return r;
}

matrix transposed(const matrix& m) {
    return {{{m[0][0], m[1][0], m[2][0]}, {m[0][1], m[1][1], m[2][1]}, {m[0][2], m[1][2], m[2][2]}}};
}

} // namespace

node_placement placement_of(const frame& where) {
    node_placement result;
    matrix m = where.axes;
    for (double3& column : m)
        for (double& part : column)
            part = short_number(part);
    for (std::size_t i = 0; i < 3; ++i)
        result.translation[i] = short_number(where.origin[i]);
    result.is_sheared = !are_square(m[0], m[1]) || !are_square(m[0], m[2]) || !are_square(m[1], m[2]);
    if (result.is_sheared)
        result.inner_rotation = quaternion_of(transposed(made_square(m)));
    const auto [unit, scale] = taken_apart(m);
    result.rotation = quaternion_of(unit);
    result.scale = scale;
    return result;
}

json rotation_json(const double4& rotation) {
    json numbers = json::array();
    for (const double part : rotation)
        numbers.push_back(short_number(part));
    return numbers;
}

void place(json& node, const node_placement& where) {
    const auto numbers = [](const double3& of) {
        return json{short_number(of[0]), short_number(of[1]), short_number(of[2])};
    };
    if (where.translation != double3{})
        node["translation"] = numbers(where.translation);
    // Below what single precision tells from a whole turn.
    if (std::abs(where.rotation[3]) < 1 - 1e-14)
        node["rotation"] = rotation_json(where.rotation);
    const bool is_one =
        std::all_of(where.scale.begin(), where.scale.end(), [](double part) { return std::abs(part - 1) < 1e-7; });
    if (!is_one)
        node["scale"] = numbers(where.scale);
}

double4 rotation_looking(const double3& direction, const double3& up) {
    const double size = length(direction);
    const double3 back = size > 0 && std::isfinite(size) ? times(direction, -1 / size) : double3{0, 0, 1};
    double3 side = cross(up, back);
    const double across = length(side);
    side = across > 1e-9 && std::isfinite(across) ? times(side, 1 / across) : square_to(back);
    return quaternion_of({{side, cross(back, side), back}});
}

} // namespace gltf
