// How placements are normalised, composed and turned to the camera.

#include "tessaline/model/transforms.h"

#include <cmath>
#include <cstddef>

void normalise(transform16& transform) {
    const double divisor = transform[15];
    if (divisor == 1.0)
        return;
    for (double& element : transform)
        element /= divisor;
}

transform16 composed(const transform16& outer, const transform16& inner) {
    transform16 product;
    for (std::size_t column = 0; column < 4; ++column)
        for (std::size_t row = 0; row < 4; ++row) {
            double sum = 0;
            for (std::size_t k = 0; k < 4; ++k)
                sum += outer[4 * k + row] * inner[4 * column + k];
            product[4 * column + row] = sum;
        }
    return product;
}

void face_camera(transform16& transform, const fpt& eye, const fpt& target) {
    const fpt first_axis{transform[0], transform[1], transform[2]};
    const fpt second_axis{transform[4], transform[5], transform[6]};
    const double dx = target.x - eye.x;
    const double dy = target.y - eye.y;
    fpt across{dy, -dx, 0};
    fpt ahead{dx, dy, 0};
    across.make_unit(magnitude(first_axis));
    ahead.make_unit(magnitude(second_axis));
    transform[0] = across.x;
    transform[1] = across.y;
    transform[2] = across.z;
    transform[4] = ahead.x;
    transform[5] = ahead.y;
    transform[6] = ahead.z;
}

fpt vector_image(const transform16& transform, const fpt& vector) {
    return {transform[0] * vector.x + transform[4] * vector.y + transform[8] * vector.z,
            transform[1] * vector.x + transform[5] * vector.y + transform[9] * vector.z,
            transform[2] * vector.x + transform[6] * vector.y + transform[10] * vector.z};
}

fpt origin_image(const transform16& transform) {
    return {transform[12], transform[13], transform[14]};
}

std::array<fpt, 3> axis_images(const transform16& transform) {
    const transform16& t = transform;
    return {{{t[0], t[1], t[2]}, {t[4], t[5], t[6]}, {t[8], t[9], t[10]}}};
}

cl_matrix matrix_from(const transform16& transform) {
    cl_matrix matrix;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            matrix.forward[row][column] = transform[4 * column + row];
    for (std::size_t row = 0; row < 3; ++row)
        matrix.forward[row][3] = transform[4 * row + 3];
    for (std::size_t column = 0; column < 4; ++column)
        matrix.forward[3][column] = transform[12 + column];
    return matrix;
}

bool is_mirrored(const transform16& transform) {
    const fpt scale = matrix_from(transform).decompose_scale();
    return scale.x * scale.y * scale.z < 0;
}
