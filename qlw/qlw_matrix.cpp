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
fpt turned(const matrix4& matrix, const fpt& vector) {
    return {dot(row(matrix, 0), vector), dot(row(matrix, 1), vector), dot(row(matrix, 2), vector)};
}

fpt divided(const fpt& vector, double divisor) {
    return {vector.x / divisor, vector.y / divisor, vector.z / divisor};
}

// The root of what is not 0 is not 0.
bool has_no_length(const fpt& vector) {
    return dot(vector, vector) == 0.0;
}

// What lies along the local axes of a placement.
struct local_axes {
    fpt x;
    fpt y;
    fpt z;
};

// The unit axes of a placement whose x and y run along these vectors; false, and a report, as create_from_vectors says.
bool find_axes(const fpt& x_axis, const fpt& y_axis, local_axes& found) {
    if (has_no_length(y_axis))
        return false;
    found.z = cross(x_axis, y_axis);
    found.z.make_unit(1.0);
    if (has_no_length(found.z)) {
        cl_trace::here("cl_matrix::create_from_vectors", trace_level::report)
            .report("Could not create normal - X and Y vectors are co-linear: %s %s", fpt_to_text(x_axis),
                    fpt_to_text(y_axis));
        return false;
    }
    found.x = x_axis;
    found.x.make_unit(1.0);
    found.y = cross(found.z, found.x);
    found.y.make_unit(1.0);
    return true;
}

// Two unit vectors in the plane with that normal; false, with x zero, if the helper is parallel to it.
bool find_vectors_in_plane(const fpt& point, const fpt& normal, fpt& x, fpt& y) {
    // The helper keeps the coordinates of the point instead of being a pure direction, so the placement turns with the
    // place of the point. The consumers of the resulting axes depend on that.
    const fpt step = std::abs(normal.z) < flat_normal_z ? fpt{0, 0, 1} : fpt{1, 0, 0};
    const fpt helper = point + step;
    x = cross(normal, helper);
    y = cross(normal, x);
    x.make_unit(1.0);
    y.make_unit(1.0);
    return !has_no_length(x);
}

// The rows of the inverse of the matrix with these columns; false, with nothing changed, if its determinant is 0.
bool invert(const local_axes& columns, local_axes& rows) {
    // The rows of the adjugate are the cross products of the columns of the matrix; each holds the cofactors of a
    // column.
    const fpt adjugate0 = cross(columns.y, columns.z);
    const fpt adjugate1 = cross(columns.z, columns.x);
    const fpt adjugate2 = cross(columns.x, columns.y);
    const double determinant = dot(columns.x, adjugate0);
    if (determinant == 0.0)
        return false;
    const double factor = 1.0 / determinant;
    rows = {adjugate0 * factor, adjugate1 * factor, adjugate2 * factor};
    return true;
}

fpt snapped_point(const fpt& point) {
    return {snap_to_zero(point.x, smallest_coordinate), snap_to_zero(point.y, smallest_coordinate),
            snap_to_zero(point.z, smallest_coordinate)};
}

} // namespace

bool cl_matrix::create_from_vectors(const fpt& point, fpt& x_axis, fpt& y_axis, const fpt& scale_factors) {
    local_axes axes;
    if (!find_axes(x_axis, y_axis, axes))
        return false;
    x_axis = axes.x;
    y_axis = axes.y;
    set_column(inverse, 0, axes.x);
    set_column(inverse, 1, axes.y);
    set_column(inverse, 2, axes.z);
    set_row(forward, 3, {});
    invert_axes();
    scale(scale_factors.x, scale_factors.y, scale_factors.z);
    set_row(forward, 3, -forward_transform(point)); // so that `point` itself becomes the local origin
    return true;
}

bool cl_matrix::create_from_normal(const fpt& point, const fpt& normal) {
    fpt x;
    fpt y;
    if (find_vectors_in_plane(point, normal, x, y))
        create_from_vectors(point, x, y, {1, 1, 1});
    return true;
}

axis_points axis_points_of_plane(const fpt& point, const fpt& normal) {
    fpt x;
    fpt y;
    local_axes axes;
    if (!find_vectors_in_plane(point, normal, x, y) || !find_axes(x, y, axes))
        return {{1, 0, 0}, {0, 1, 0}};
    local_axes forward{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    invert(axes, forward);
    // The placement's own steps, but for those by a scale of 1 and an origin of 0, which change nothing but the sign of
    // a zero, and that is lost in the sums.
    const fpt origin{dot(forward.x, point), dot(forward.y, point), dot(forward.z, point)};
    const fpt row_x{axes.x.x, axes.y.x, axes.z.x};
    const fpt row_y{axes.x.y, axes.y.y, axes.z.y};
    const fpt row_z{axes.x.z, axes.y.z, axes.z.z};
    const auto world = [&](const fpt& local) {
        const fpt offset = local + origin;
        return snapped_point({dot(row_x, offset), dot(row_y, offset), dot(row_z, offset)});
    };
    return {world({1, 0, 0}), world({0, 1, 0})};
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
    return turned(forward, world - origin) + row(forward, 3);
}

fpt cl_matrix::inverse_transform(const fpt& local) const {
    return snapped_point(turned(inverse, local - row(forward, 3)) + origin);
}

int cl_matrix::invert_axes() {
    local_axes rows;
    if (!invert({column(inverse, 0), column(inverse, 1), column(inverse, 2)}, rows))
        return 0;
    set_row(forward, 0, rows.x);
    set_row(forward, 1, rows.y);
    set_row(forward, 2, rows.z);
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
