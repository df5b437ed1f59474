// What is written is read again, whatever it is, in every version that has room for it.

#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/sketchup/skp/writer/model_description.h"
#include "tests/sketchup/skp/writer/random_model.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace {

struct missing {
    const char* fact; // as a description names it
    const char* reason;
};

// Facts that a version has no room for.
const std::vector<missing> before_2017 = {
    {"id of a vertex", "the first version with persistent ids is 2017"},
    {"id of an edge", "as above"},
    {"id of an edge use", "as above"},
    {"id of a face", "as above"},
    {"id of a curve", "as above"},
    {"id of a placement", "as above"},
    {"id of a section plane", "as above"},
    {"id of an annotation", "as above"},
    {"id of a definition", "as above"},
    {"id of a layer", "as above"},
    {"id of a material", "as above"},
    {"id of a texture", "as above"},
    {"id of a dictionary", "as above"},
    {"id of a scene", "as above"},
    {"id of settings", "as above"},
    {"id of the model", "as above"},
    {"guid of a placement", "layout 4 of CComponentInstance ends with the name"},
};
const std::vector<missing> before_2018 = {
    {"name of a section plane", "layout 2 of CSectionPlane ends with the plane"},
    {"SectionDefaultFillColor", "from layout 37 of CRenderingOptions"},
    {"SectionCutFilled", "from layout 37 of CRenderingOptions"},
};
const std::vector<missing> before_2020 = {
    {"folders of layers", "from layout 7 of CLayerManager"},
    {"DrawHiddenGeometry", "layouts below 39 have one option for both"},
    {"DrawHiddenObjects", "layouts below 39 have one option for both"},
};
const std::vector<missing> only_6 = {
    {"properties of the model", "from layout 21 of CSketchUpModel"},
    {"read-only dictionary", "layout 0 of CAttributeNamed ends with the entries"},
    {"no-scale mask", "layout 4 of CComponentBehavior ends with the camera bits"},
    {"DrawBackEdges", "from layout 36 of CRenderingOptions"},
};
const std::vector<missing> since_2020 = {
    {"DrawHidden", "layouts from 39 have two options in its place"},
};
const std::vector<missing> modern = {
    {"id of a texture", "a texture is part of a document that knows no ids"},
    {"dictionary of a texture", "as above"},
    {"id of a dictionary", "the base of a dictionary only holds those nested in it"},
    {"id of an edge use", "nothing refers to an edge use, so it has no id"},
    {"id of settings", "nothing refers to them"},
    {"alpha of a material", "the document has three channels"},
    {"compound attribute of a material", "their text form is not known"},
    {"nested dictionary of a material", "the document has one level"},
    {"read-only dictionary of a material", "the document has no such flag"},
    {"number of a picture's format", "the signature tells the format"},
    {"quality of a picture", "its record is not read: re-encoding needs it, and nothing re-encodes"},
    {"insertion point", "has no field"},
    {"radial dimension or polyline", "their records are not known"},
    {"DrawHidden", "two options stand in its place"},
    {"FaceColorMode", "has no known field"},
    {"DisplayInstanceAxes", "which of the unknown flags it is, is not known"},
    {"DrawProfilesOnly", "as above"},
    {"DrawBackEdges", "as above"},
};

std::set<std::string> all_of(const std::vector<std::vector<missing>>& lists) {
    std::set<std::string> facts;
    for (const std::vector<missing>& list : lists)
        for (const missing& one : list)
            facts.insert(one.fact);
    return facts;
}

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
    expect_round_trips(classic(skp::classic_version::v6), all_of({only_6, before_2017, before_2018, before_2020}));
}

TEST(RoundTrip, version_8_gives_back_random_models) {
    expect_round_trips(classic(skp::classic_version::v8), all_of({before_2017, before_2018, before_2020}));
}

TEST(RoundTrip, version_2017_gives_back_random_models) {
    expect_round_trips(classic(skp::classic_version::v17), all_of({before_2018, before_2020}));
}

TEST(RoundTrip, version_2020_gives_back_random_models) {
    expect_round_trips(classic(skp::classic_version::v20), all_of({since_2020}));
}

TEST(RoundTrip, version_2021_gives_back_random_models) {
    expect_round_trips(archive(skp::modern_version::v21), all_of({modern}));
}

TEST(RoundTrip, version_2025_gives_back_random_models) {
    expect_round_trips(archive(skp::modern_version::v25), all_of({modern}));
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
