// Every sample converted by the built program: what the stream shows against the figures of an independent reader.

#include "tests/samples/convert_sample.h"
#include "tests/samples/expected_figures.h"
#include "tests/samples/known_exceptions.h"
#include "tests/samples/removed_by_openings.h"
#include "tools/batch_reading/stream_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using nlohmann::json;

constexpr double inches_per_metre = 1 / 0.0254;

class area_and_box : public stream_visitor {
public:
    void triangle(const stream_triangle& found) override {
        std::array<std::array<double, 3>, 3> p{};
        for (std::size_t corner = 0; corner < 3; ++corner)
            for (std::size_t i = 0; i < 3; ++i) {
                p[corner][i] = found.corners[corner]->position[i] * inches_per_metre;
                low[i] = std::min(low[i], p[corner][i]);
                high[i] = std::max(high[i], p[corner][i]);
            }
        std::array<double, 3> u{};
        std::array<double, 3> v{};
        for (std::size_t i = 0; i < 3; ++i) {
            u[i] = p[1][i] - p[0][i];
            v[i] = p[2][i] - p[0][i];
        }
        const double x = u[1] * v[2] - u[2] * v[1];
        const double y = u[2] * v[0] - u[0] * v[2];
        const double z = u[0] * v[1] - u[1] * v[0];
        area += std::sqrt(x * x + y * y + z * z) / 2;
    }
    double area = 0; // square inches
    std::array<double, 3> low = filled(std::numeric_limits<double>::infinity());
    std::array<double, 3> high = filled(-std::numeric_limits<double>::infinity());

private:
    static std::array<double, 3> filled(double value) { return {value, value, value}; }
};

std::string without_date_line(const std::string& stream) {
    const std::size_t first = stream.find('\n') + 1;
    return stream.substr(0, first) + stream.substr(stream.find('\n', first) + 1);
}

// Inches. Nine significant digits are off by up to 5e-9 of the value.
void expect_corner(double found, double expected) {
    EXPECT_NEAR(found, expected, 1e-4 + 5e-9 * std::abs(expected));
}

class SampleConversion : public testing::TestWithParam<std::string> {};

TEST_P(SampleConversion, gives_a_stream_with_the_area_of_all_that_is_visible) {
    const json& expected = expected_figures()[GetParam()];
    const temporary_folder batch;
    batch.write("option_globals.txt", "ivl_2_sided_faces; 0\r\n"); // every face once, however its sides are painted
    const std::string stream = convert(GetParam(), batch);
    if (!expected["opens"].get<bool>()) {
        EXPECT_FALSE(batch.has("batch_file.txt"));
        return;
    }
    area_and_box seen;
    for (const stream_fault& fault : read_stream(stream, seen))
        ADD_FAILURE() << "line " << fault.line << ": " << fault.reason;
    const json& written = expected.contains("written_turned") ? expected["written_turned"] : expected["written"];
    const double images = written["image_area"].get<double>() - uncovered_image_area_of(GetParam());
    const double area = written["area"].get<double>() + images - removed_by_openings(GetParam()).drawn;
    EXPECT_NEAR(seen.area - extra_area_of(GetParam()), area, std::max(1e-6, 1e-6 * area));
    if (written["images"] == 0 && !written["box"].is_null())
        for (std::size_t i = 0; i < 3; ++i) {
            expect_corner(seen.low[i], written["box"][0][i].get<double>());
            expect_corner(seen.high[i], written["box"][1][i].get<double>());
        }
}

TEST_P(SampleConversion, gives_the_same_bytes_in_every_run_but_for_the_date) {
    const temporary_folder first;
    const temporary_folder second;
    EXPECT_EQ(without_date_line(convert(GetParam(), first)), without_date_line(convert(GetParam(), second)));
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleConversion);
INSTANTIATE_TEST_SUITE_P(Samples, SampleConversion, testing::ValuesIn(sample_names()),
                         [](const auto& sample) { return test_name_of(sample.param); });

} // namespace
