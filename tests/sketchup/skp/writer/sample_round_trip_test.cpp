// Real models, written anew in both containers, are still the same models.

#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/samples_folder.h"
#include "tests/sketchup/skp/writer/classic_samples.h"
#include "tests/sketchup/skp/writer/model_description.h"
#include "tests/sketchup/skp/writer/version_gaps.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <memory>
#include <set>
#include <string>

namespace {

using nlohmann::json;

// What a file of another version or container may say otherwise than the version written.
std::set<std::string> facts_that_may_differ() {
    std::set<std::string> facts = persistent_ids();
    facts.merge(facts_missing_in_archives());
    facts.merge(facts_missing_in(skp::classic_version::v20));
    for (const char* fact : {
             "rendering options",       // older files lack some, which get their usual values
             "properties of the model", // the archive container always has some
             "guid of a placement",     // files before 2017 have none, and get made ones
         })
        facts.insert(fact);
    return facts;
}

struct own_version {
    int major;
    skp::classic_version version;
    std::size_t samples; // of that version
};

} // namespace

class SampleRoundTripInItsVersion : public testing::TestWithParam<own_version> {};

TEST_P(SampleRoundTripInItsVersion, a_real_model_is_the_same_field_for_field) {
    if (samples_folder().empty())
        GTEST_SKIP() << "no folder of sample models";
    const std::vector<classic_sample> samples = classic_samples(GetParam().major);
    for (const classic_sample& one : samples) {
        SCOPED_TRACE(one.name);
        const auto original = skp::read_model(std::vector<std::uint8_t>(one.bytes));
        const auto anew = skp::read_model(skp::write_classic(*original, GetParam().version));
        EXPECT_EQ(first_difference(description_of(*original), description_of(*anew)), "");
    }
    EXPECT_EQ(samples.size(), GetParam().samples);
}

INSTANTIATE_TEST_SUITE_P(All, SampleRoundTripInItsVersion,
                         testing::Values(own_version{6, skp::classic_version::v6, 5},
                                         own_version{8, skp::classic_version::v8, 16},
                                         own_version{17, skp::classic_version::v17, 32},
                                         own_version{20, skp::classic_version::v20, 9}),
                         [](const auto& one) { return "version_" + std::to_string(one.param.major); });

TEST(SampleRoundTrip, every_real_model_is_the_same_when_written_anew) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    std::ifstream list(folder + "expected.json");
    const json all = json::parse(list);
    constexpr std::size_t largest = 200000; // bytes; larger ones only take time
    int models = 0;
    for (const auto& [name, expected] : all.items()) {
        std::vector<std::uint8_t> bytes = file_bytes(folder + name);
        if (!expected["opens"] || bytes.size() > largest)
            continue;
        SCOPED_TRACE(name);
        ++models;
        const auto original = skp::read_model(std::move(bytes));
        const auto wanted = description_of(*original, facts_that_may_differ());
        const auto in_classic = skp::read_model(skp::write_classic(*original, skp::classic_version::v20));
        EXPECT_EQ(first_difference(wanted, description_of(*in_classic, facts_that_may_differ())), "");
        const auto in_archive = skp::read_model(skp::write_modern(*original, skp::modern_version::v25));
        EXPECT_EQ(first_difference(wanted, description_of(*in_archive, facts_that_may_differ())), "");
    }
    EXPECT_GT(models, 80);
}
