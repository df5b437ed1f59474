// Every sample converted beside an option file: the file is left with the sun of the model.

#include "sketchup/SketchUpAPI.h"
#include "tests/samples/expected_figures.h"
#include "tests/samples_folder.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

std::string number_line(const char* name, double value) {
    std::array<char, 128> line{};
    const int length = std::snprintf(line.data(), line.size(), "\n%s; %.9g\r\n", name, value);
    return {line.data(), static_cast<std::size_t>(length)};
}

double number_of(SUShadowInfoRef info, const char* key) {
    SUTypedValueRef value = SU_INVALID;
    SUTypedValueCreate(&value);
    SUShadowInfoGetValue(info, key, &value);
    double number = 0;
    SUTypedValueGetDouble(value, &number);
    SUTypedValueRelease(&value);
    return number;
}

// The lines that the sun of an open model must leave, each with the end of the line before it.
std::vector<std::string> sun_lines(SUModelRef model) {
    SUShadowInfoRef info = SU_INVALID;
    SUModelGetShadowInfo(model, &info);
    SUTypedValueRef value = SU_INVALID;
    SUTypedValueCreate(&value);
    SUShadowInfoGetValue(info, "SunDirection", &value);
    std::array<double, 3> to_sun{};
    SUTypedValueGetVector3d(value, to_sun.data());
    SUShadowInfoGetValue(info, "DaylightSavings", &value);
    bool is_daylight_time = false;
    SUTypedValueGetBool(value, &is_daylight_time);
    SUTypedValueRelease(&value);
    const double azimuth = std::atan2(to_sun[1], to_sun[0]);
    const double altitude = std::atan2(to_sun[2], std::sqrt(to_sun[0] * to_sun[0] + to_sun[1] * to_sun[1]));
    return {number_line("rzyn_sun_azimuth", azimuth),
            number_line("rskp_sun_azimuth", azimuth),
            number_line("rzyn_sun_altitude", altitude),
            number_line("rskp_sun_altitude", altitude),
            number_line("rskp_sun_latitude", number_of(info, "Latitude")),
            number_line("rskp_sun_longitude", number_of(info, "Longitude")),
            number_line("rskp_sun_timezone", number_of(info, "TZOffset")),
            is_daylight_time ? "\nbskp_sun_daylight_time; 1\r\n" : "\nbskp_sun_daylight_time; 0\r\n"};
}

// What a run leaves of an option file that it finds.
std::string rewritten_options(const std::string& sample, const std::string& options) {
    const temporary_folder batch;
    const temporary_folder home;
    std::filesystem::copy_file(samples_folder() + sample, batch / "geometry.qlm");
    batch.write("option_globals.txt", options);
    run_program({TESSALINE_PROGRAM, {batch / "geometry.qlm"}, {}, settings_in(home.name())});
    return batch.read("option_globals.txt");
}

class SampleOptions : public testing::TestWithParam<std::string> {};

TEST_P(SampleOptions, are_left_with_the_sun_of_the_model) {
    const std::string options = "rzyn_sun_altitude; 9\r\nrskp_sun_latitude; 99\r\nsvl_kept_for_the_parent; x\r\n";
    const std::string left = rewritten_options(GetParam(), options);
    SUInitialize();
    SUModelRef model = SU_INVALID;
    if (SUModelCreateFromFile(&model, (samples_folder() + GetParam()).c_str()) != SU_ERROR_NONE) {
        EXPECT_EQ(left, options); // a model that does not open leaves everything as it is
        SUTerminate();
        return;
    }
    std::vector<std::string> lines = sun_lines(model);
    lines.emplace_back("\nsvl_kept_for_the_parent; x\r\n");
    for (const std::string& line : lines)
        EXPECT_NE(('\n' + left).find(line), std::string::npos) << line << left;
    SUModelRelease(&model);
    SUTerminate();
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleOptions);
INSTANTIATE_TEST_SUITE_P(Samples, SampleOptions, testing::ValuesIn(sample_names()),
                         [](const auto& sample) { return test_name_of(sample.param); });

} // namespace
