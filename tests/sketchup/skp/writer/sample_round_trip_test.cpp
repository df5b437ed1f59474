// Real models, written anew in both containers, are still the same models.

#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/samples_folder.h"
#include "tests/sketchup/skp/writer/classic_members.h"
#include "tests/sketchup/skp/writer/model_description.h"
#include "tests/sketchup/skp/writer/version_gaps.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
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

// The version that write_classic gives a file of that major version.
std::optional<skp::classic_version> own_version(int major) {
    switch (major) {
    case 6:
        return skp::classic_version::v6;
    case 8:
        return skp::classic_version::v8;
    case 17:
        return skp::classic_version::v17;
    case 20:
        return skp::classic_version::v20;
    default:
        return std::nullopt;
    }
}

} // namespace

TEST(SampleRoundTrip, a_classic_file_written_in_its_own_version_is_the_same_model_field_for_field) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    std::map<int, int> models; // by version
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::vector<std::uint8_t> bytes = file_bytes(entry.path().string());
        const int major = major_version_of_classic(bytes);
        const std::optional<skp::classic_version> version = own_version(major);
        if (!version)
            continue;
        SCOPED_TRACE(entry.path().filename().string());
        ++models[major];
        const auto original = skp::read_model(std::move(bytes));
        const auto anew = skp::read_model(skp::write_classic(*original, *version));
        EXPECT_EQ(first_difference(description_of(*original), description_of(*anew)), "");
    }
    EXPECT_EQ(models, (std::map<int, int>{{6, 5}, {8, 16}, {17, 32}, {20, 9}}));
}

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
