#include "image/picture_pyramid.h"

#include <algorithm>
#include <array>
#include <utility>

namespace image {
namespace {

// The pixels of one direction that a pixel of the next level covers, with their weights; `total` is the weights' sum.
struct span_weights {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    std::array<std::uint64_t, 3> weight{};
    std::uint64_t total = 0;
};

std::uint32_t half(std::uint32_t size) {
    return std::max(size / 2, 1u);
}

// Of an odd size 2 m + 1, pixel i of the m covers the part from i (2 + 1 / m) to (i + 1) (2 + 1 / m).
span_weights weights_at(std::uint32_t i, std::uint32_t size) {
    const std::uint32_t smaller = size / 2;
    if (smaller == 0)
        return {0, 1, {1}, 1};
    if (size % 2 == 0)
        return {2 * i, 2, {1, 1}, 2};
    return {2 * i, 3, {smaller - i, smaller, i + 1}, size};
}

// Halves go to the even number, so that the mean does not creep upwards from level to level.
std::uint8_t rounded_mean(std::uint64_t sum, std::uint64_t total) {
    const std::uint64_t whole = sum / total;
    const std::uint64_t twice_rest = 2 * (sum % total);
    return static_cast<std::uint8_t>(whole + (twice_rest > total || (twice_rest == total && whole % 2 == 1) ? 1 : 0));
}

void shrink_row(const picture& source, const span_weights& rows, std::uint8_t* target) {
    const std::size_t channels = source.bytes_per_pixel();
    for (std::uint32_t x = 0; x < half(source.width()); ++x) {
        const span_weights columns = weights_at(x, source.width());
        const std::uint64_t total = rows.total * columns.total;
        for (std::size_t channel = 0; channel < channels; ++channel) {
            std::uint64_t sum = 0;
            for (std::uint32_t j = 0; j < rows.count; ++j) {
                const std::uint8_t* from = source.row(rows.first + j) + columns.first * channels + channel;
                for (std::uint32_t i = 0; i < columns.count; ++i)
                    sum += from[i * channels] * rows.weight[j] * columns.weight[i];
            }
            *target++ = rounded_mean(sum, total);
        }
    }
}

picture shrunk(const picture& source) {
    picture smaller = picture::make({half(source.width()), half(source.height()), source.extent().bits_per_pixel})
                          .value_or(picture());
    for (std::uint32_t y = 0; y < smaller.height(); ++y)
        shrink_row(source, weights_at(y, source.height()), smaller.row(y));
    return smaller;
}

} // namespace

picture_pyramid::picture_pyramid(picture source) {
    if (source.is_empty())
        return;
    levels_.push_back(std::move(source));
    while (levels_.back().width() > 1 || levels_.back().height() > 1)
        levels_.push_back(shrunk(levels_.back()));
}

} // namespace image
