// What is written is read again, whatever it is, in every version that has room for it.

#include "sketchup/builder/model_builder.h"
#include "sketchup/model/face_openings.h"
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

namespace {

// A wall with a window that has an outline of its own and one of a cutting group inside it.
std::unique_ptr<sketchup::model> wall_with_window() {
    sketchup::model_builder m;
    sketchup::list_builder root = m.root();
    const sketchup::entity_place wall = root.square(100);
    sketchup::list_builder window = m.component("window");
    window.square(4);
    sketchup::list_builder pane = window.group("pane", sketchup::moved({10, 0, 0}));
    pane.square(2);
    m.definition(window).behavior.cuts_opening = m.definition(pane).behavior.cuts_opening = true;
    root.glue(root.instance(window, sketchup::moved({20, 30, 0})), wall);
    return m.finish();
}

using points = std::vector<sketchup::vec3>;

} // namespace

TEST(RoundTrip, a_wall_has_the_same_openings_in_every_version) {
    const std::vector<points> expected = {{{20, 34, 0}, {24, 34, 0}, {24, 30, 0}, {20, 30, 0}},
                                          {{30, 32, 0}, {32, 32, 0}, {32, 30, 0}, {30, 30, 0}}};
    const auto original = wall_with_window();
    using enum skp::classic_version;
    using enum skp::modern_version;
    for (const write_function& write :
         {classic(v6), classic(v8), classic(v17), classic(v20), archive(v21), archive(v25)}) {
        const auto read = skp::read_model(write(*original));
        // The order of faces may differ; the wall is the only face of the model's own list.
        sketchup::face_openings openings(*read);
        std::vector<points> found;
        for (const sketchup::opening& o : openings.of(read->faces.at(read->root.faces.at(0))))
            found.push_back(o.points);
        EXPECT_EQ(found, expected);
    }
}
