// What skp-dump tells of every sample against the figures of an independent reader.

#include "tests/samples/expected_figures.h"
#include "tests/samples/known_exceptions.h"
#include "tests/samples/removed_by_openings.h"
#include "tests/samples_folder.h"
#include "tests/support/run_program.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;

constexpr double box_tolerance = 1e-4;   // inches
constexpr double area_tolerance = 1e-6;  // relative
constexpr double exact_tolerance = 1e-6; // figures are rounded to six decimals

bool near(double found, double expected, double tolerance) {
    return std::abs(found - expected) <= tolerance;
}

// The first difference between two values, with its place; empty if they agree.
std::string difference(const json& found, const json& expected, const std::string& place) {
    if (expected.is_object()) {
        for (const auto& [key, value] : expected.items()) {
            if (!found.contains(key))
                return place + "." + key + " is missing";
            const std::string inner = difference(found[key], value, place + "." + key);
            if (!inner.empty())
                return inner;
        }
        return found.size() == expected.size() ? "" : place + " has keys that are not expected: " + found.dump();
    }
    if (expected.is_array()) {
        if (!found.is_array() || found.size() != expected.size())
            return place + ": " + found.dump() + " instead of " + expected.dump();
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const std::string inner = difference(found[i], expected[i], place + "[" + std::to_string(i) + "]");
            if (!inner.empty())
                return inner;
        }
        return "";
    }
    bool same = found == expected;
    if (expected.is_number_float() && found.is_number()) {
        const bool is_box = place.find("box") != std::string::npos;
        const bool is_area = place.find("area") != std::string::npos;
        const double wanted = expected.get<double>();
        const double tolerance = is_box    ? box_tolerance
                                 : is_area ? area_tolerance * std::max(1.0, std::abs(wanted))
                                           : exact_tolerance;
        same = near(found.get<double>(), wanted, tolerance);
    }
    return same ? "" : place + ": " + found.dump() + " instead of " + expected.dump();
}

// The BMP of one material has the header of 12 bytes, in which width and height are 16 bits each; the figures take both
// for one number: 4194368 = 64 + 64 x 65536.
json mended(const std::string& sample, json expected) {
    if (sample == "shadowtexture-simple-hex.skp")
        expected["materials"][6]["pixels"] = {64, 64};
    return expected;
}

class SampleFigures : public testing::TestWithParam<std::string> {};

TEST_P(SampleFigures, agree_with_those_of_an_independent_reader) {
    const json expected = mended(GetParam(), expected_figures()[GetParam()]);
    const program_result run = run_program({SKP_DUMP_PROGRAM, {"--json", samples_folder() + GetParam()}});
    json found = json::parse(run.output);
    ASSERT_EQ(found["opens"], expected["opens"]) << run.output;
    ASSERT_EQ(run.status == 0, expected["opens"].get<bool>());
    if (!expected["opens"].get<bool>())
        return;
    const removed_area removed = removed_by_openings(GetParam());
    for (const auto& [shown, off] : {std::pair("placed", removed.placed), std::pair("written", removed.drawn)})
        found[shown]["area"] = found[shown]["area"].get<double>() - extra_area_of(GetParam()) + off;
    for (const auto& [key, value] : expected.items())
        EXPECT_EQ(difference(found.value(key, json()), value, key), "");
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleFigures);
INSTANTIATE_TEST_SUITE_P(Samples, SampleFigures, testing::ValuesIn(sample_names()),
                         [](const auto& sample) { return test_name_of(sample.param); });

TEST(SamplesFolder, is_there_for_the_tests_that_need_it) {
    if (samples_folder().empty())
        GTEST_SKIP() << "no folder of samples: set TESSALINE_SAMPLES to its name";
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(samples_folder()))
        if (entry.path().extension() == ".skp")
            files.push_back(entry.path().filename().string());
    std::ranges::sort(files);
    EXPECT_EQ(files, sample_names()); // each with its figures, and figures for nothing else
}

} // namespace
