#include "qlw/qlw_matrix.h"

#include "qlw/qlw_trace.h"

#include <cmath>
#include <cstddef>

namespace {

constexpr double flat_normal_z = 0.0001;     // below it a normal counts as lying in the horizontal plane
constexpr double smallest_coordinate = 1e-8; // a world coordinate below it becomes 0

fpt row(const matrix4& matrix, std::size_t index) {
    return {matrix[index][0], matrix[index][1], matrix[index][2]};
}

fpt column(const matrix4& matrix, std::size_t index) {
    return {matrix[0][index], matrix[1][index], matrix[2][index]};
}

void set_row(matrix4& matrix, std::size_t index, const fpt& value) {
    matrix[index][0] = value.x;
    matrix[index][1] = value.y;
    matrix[index][2] = value.z;
}

void set_column(matrix4& matrix, std::size_t index, const fpt& value) {
    matrix[0][index] = value.x;
    matrix[1][index] = value.y;
    matrix[2][index] = value.z;
}

// The 3 by 3 part applied to a column vector.
fpt apply(const matrix4& matrix, const fpt& vector) {
    return {dot(row(matrix, 0), vector), dot(row(matrix, 1), vector), dot(row(matrix, 2), vector)};
}

fpt divided(const fpt& vector, double divisor) {
    return {vector.x / divisor, vector.y / divisor, vector.z / divisor};
}

} // namespace

bool cl_matrix::create_from_vectors(const fpt& point, fpt& x_axis, fpt& y_axis, const fpt& scale_factors) {
    if (magnitude(y_axis) == 0.0)
        return false;
    fpt z_axis = cross(x_axis, y_axis);
    z_axis.make_unit(1.0);
    if (magnitude(z_axis) == 0.0) {
        cl_trace::here("cl_matrix::create_from_vectors", trace_level::report)
            .report("Could not create normal - X and Y vectors are co-linear: %s %s", fpt_to_text(x_axis),
                    fpt_to_text(y_axis));
        return false;
    }
    x_axis.make_unit(1.0);
    y_axis = cross(z_axis, x_axis);
    y_axis.make_unit(1.0);

    set_column(inverse, 0, x_axis);
    set_column(inverse, 1, y_axis);
    set_column(inverse, 2, z_axis);
    set_row(forward, 3, {});
    invert_axes();
    scale(scale_factors.x, scale_factors.y, scale_factors.z);
    set_row(forward, 3, -forward_transform(point)); // so that `point` itself becomes the local origin
    return true;
}

bool cl_matrix::create_from_normal(const fpt& point, const fpt& normal) {
    // The helper keeps the coordinates of the point instead of being a pure direction, so the placement turns with the
    // place of the point. The consumers of the resulting axes depend on that.
    const fpt step = std::abs(normal.z) < flat_normal_z ? fpt{0, 0, 1} : fpt{1, 0, 0};
    const fpt helper = point + step;
    fpt u = cross(normal, helper);
    fpt w = cross(normal, u);
    u.make_unit(1.0);
    w.make_unit(1.0);
    if (magnitude(u) == 0.0)
        return true;
    create_from_vectors(point, u, w, {1, 1, 1});
    return true;
}

void cl_matrix::scale(double sx, double sy, double sz) {
    const std::array<double, 3> factors{sx, sy, sz};
    for (std::size_t i = 0; i < 3; ++i) {
        set_column(forward, i, column(forward, i) * factors[i]);
        if (factors[i] != 0.0)
            set_row(inverse, i, divided(row(inverse, i), factors[i]));
    }
}

fpt cl_matrix::forward_transform(const fpt& world) const {
    return apply(forward, world - origin) + row(forward, 3);
}

fpt cl_matrix::inverse_transform(const fpt& local) const {
    const fpt world = apply(inverse, local - row(forward, 3)) + origin;
    return {snap_to_zero(world.x, smallest_coordinate), snap_to_zero(world.y, smallest_coordinate),
            snap_to_zero(world.z, smallest_coordinate)};
}

int cl_matrix::invert_axes() {
    // The rows of the adjugate are the cross products of the columns of the matrix; each holds the cofactors of a
    // column.
    const fpt adjugate0 = cross(column(inverse, 1), column(inverse, 2));
    const fpt adjugate1 = cross(column(inverse, 2), column(inverse, 0));
    const fpt adjugate2 = cross(column(inverse, 0), column(inverse, 1));
    const double determinant = dot(column(inverse, 0), adjugate0);
    if (determinant == 0.0)
        return 0;
    const double factor = 1.0 / determinant;
    set_row(forward, 0, adjugate0 * factor);
    set_row(forward, 1, adjugate1 * factor);
    set_row(forward, 2, adjugate2 * factor);
    return 1;
}

fpt cl_matrix::decompose_scale() {
    std::array<double, 3> factors{};
    for (std::size_t i = 0; i < 3; ++i) {
        factors[i] = magnitude(column(forward, i));
        if (factors[i] != 0.0)
            set_column(rotation, i, divided(column(forward, i), factors[i]));
    }

    // The last row of a rotation equals the last row of its cofactors, the cross product of the other two rows; that of
    // a mirror is its opposite. So the length of the sum is 2 or 0, and 1 lies half way.
    const fpt sum = row(rotation, 2) + cross(row(rotation, 0), row(rotation, 1));
    if (magnitude(sum) < 1.0) {
        factors[0] = -factors[0];
        if (factors[0] != 0.0)
            set_column(rotation, 0, divided(column(forward, 0), factors[0]));
    }
    return {factors[0], factors[1], factors[2]};
}
