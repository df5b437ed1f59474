// Real archives, written anew in their own version, read back as the same models, field for field.

#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/samples_folder.h"
#include "tests/sketchup/skp/writer/model_description.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <string>

namespace {

// How many samples of a version of the program are the same model after that.
int expect_same_models(const std::string& folder, int major, skp::modern_version version) {
    std::ifstream list(folder + "expected.json");
    const nlohmann::json all = nlohmann::json::parse(list);
    int models = 0;
    for (const auto& [name, expected] : all.items()) {
        if (!expected["opens"])
            continue;
        const auto original = skp::read_model(file_bytes(folder + name));
        if (!original->is_modern || original->version.major != major)
            continue;
        SCOPED_TRACE(name);
        ++models;
        const auto anew = skp::read_model(skp::write_modern(*original, version));
        EXPECT_EQ(first_difference(description_of(*original), description_of(*anew)), "");
    }
    return models;
}

} // namespace

TEST(ModernSampleRoundTrip, archives_of_2021_read_back_the_same) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    EXPECT_GE(expect_same_models(folder, 21, skp::modern_version::v21), 10);
}

TEST(ModernSampleRoundTrip, archives_of_2025_read_back_the_same) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    EXPECT_GE(expect_same_models(folder, 25, skp::modern_version::v25), 3);
}
