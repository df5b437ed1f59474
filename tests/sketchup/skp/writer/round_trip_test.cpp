// What is written is read again, whatever it is, in every version that has room for it.

#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/sketchup/skp/writer/model_description.h"
#include "tests/sketchup/skp/writer/random_model.h"
#include "tests/sketchup/skp/writer/version_gaps.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace {

using write_function = std::function<std::vector<std::uint8_t>(const sketchup::model&)>;

void expect_round_trips(const write_function& write, const std::set<std::string>& left_out) {
    constexpr std::uint64_t seeds = 40;
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        const auto original = random_model(seed);
        const auto read = skp::read_model(write(*original));
        const std::string difference =
            first_difference(description_of(*original, left_out), description_of(*read, left_out));
        ASSERT_TRUE(difference.empty()) << "seed " << seed << ", " << difference;
    }
}

write_function classic(skp::classic_version version) {
    return [version](const sketchup::model& m) { return skp::write_classic(m, version); };
}

write_function archive(skp::modern_version version) {
    return [version](const sketchup::model& m) { return skp::write_modern(m, version); };
}

} // namespace

TEST(RoundTrip, version_6_gives_back_random_models) {
    expect_round_trips(classic(skp::classic_version::v6), facts_missing_in(skp::classic_version::v6));
}

TEST(RoundTrip, version_8_gives_back_random_models) {
    expect_round_trips(classic(skp::classic_version::v8), facts_missing_in(skp::classic_version::v8));
}

TEST(RoundTrip, version_2017_gives_back_random_models) {
    expect_round_trips(classic(skp::classic_version::v17), facts_missing_in(skp::classic_version::v17));
}

TEST(RoundTrip, version_2020_gives_back_random_models) {
    expect_round_trips(classic(skp::classic_version::v20), facts_missing_in(skp::classic_version::v20));
}

TEST(RoundTrip, version_2021_gives_back_random_models) {
    expect_round_trips(archive(skp::modern_version::v21), facts_missing_in_archives());
}

TEST(RoundTrip, version_2025_gives_back_random_models) {
    expect_round_trips(archive(skp::modern_version::v25), facts_missing_in_archives());
}

TEST(RoundTrip, a_description_tells_models_apart) {
    const auto one = random_model(1);
    const auto other = random_model(1);
    EXPECT_EQ(first_difference(description_of(*one), description_of(*other)), "");
    other->vertices.back().position.z += 1e-9;
    EXPECT_NE(first_difference(description_of(*one), description_of(*other)), "");
}

TEST(RoundTrip, random_models_hold_everything_that_a_model_can_hold) {
    std::set<std::string> words; // the first of each line
    for (std::uint64_t seed = 1; seed <= 20; ++seed)
        for (const std::string& line : description_of(*random_model(seed))) {
            const std::size_t begin = line.find_first_not_of(' ');
            words.insert(line.substr(begin, line.find(' ', begin) - begin));
        }
    for (const char* expected : {"folder", "holds", "dictionary", "texture", "picture", "curve", "about", "front",
                                 "group", "instance", "image", "section", "annotation", "scene", "hides", "cuts"})
        EXPECT_TRUE(words.contains(expected)) << expected;
}
