// What the files of the program never leave null, empty or zero, class by class, is not so in ours either.

#include "tests/sketchup/skp/writer/classic_members.h"

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/samples_folder.h"
#include "tests/sketchup/skp/writer/classic_samples.h"
#include "tests/sketchup/skp/writer/member_exceptions.h"
#include "tests/sketchup/skp/writer/random_model.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using bytes = std::vector<std::uint8_t>;

constexpr std::size_t fewest_files = 2; // that hold a member before anything is concluded from them

struct written_version {
    int major;
    skp::classic_version version;
};

// What is never so in real files and is so in this one; empty if there is nothing.
std::string breaches(const classic_facts& real, const classic_facts& ours) {
    std::string found;
    for (const auto& [path, fact] : real) {
        if (fact.files < fewest_files)
            continue;
        const auto own = ours.find(path);
        if (own == ours.end()) {
            const bool is_of_every_file = path.starts_with("CSketchUpModel.") || path.starts_with("file.");
            if (is_of_every_file && fact.empty == 0 && !is_excepted(path))
                found += path + " is missing\n";
            continue;
        }
        if (fact.empty == 0 && own->second.empty > 0 && !is_excepted(path))
            found += path + " is empty " + std::to_string(own->second.empty) + " times of " +
                     std::to_string(own->second.times) + "\n";
        if (!fact.names)
            continue;
        for (const std::string& name : *fact.names)
            if (!own->second.names->contains(name) && !is_excepted(std::string(path).append(": ").append(name)))
                found.append(path).append(" lacks ").append(name).append("\n");
    }
    return found;
}

class ClassicMembers : public testing::TestWithParam<written_version> {
protected:
    void SetUp() override {
        if (samples_folder().empty())
            GTEST_SKIP() << "no folder of sample models";
        samples_ = classic_samples(GetParam().major);
        ASSERT_FALSE(samples_.empty());
        for (const auto& [name, file] : samples_) {
            SCOPED_TRACE(name);
            ASSERT_NO_THROW(add_facts(real_, facts_of_classic(file)));
        }
    }

    std::string breaches_in(const bytes& file) const { return breaches(real_, facts_of_classic(file)); }
    bytes written(const sketchup::model& m) const { return skp::write_classic(m, GetParam().version); }

    std::vector<classic_sample> samples_;
    classic_facts real_;
};

} // namespace

TEST_P(ClassicMembers, random_models_leave_nothing_empty_that_real_files_always_have) {
    constexpr std::uint64_t seeds = 40;
    for (std::uint64_t seed = 1; seed <= seeds; ++seed)
        EXPECT_EQ(breaches_in(written(*random_model(seed))), "") << "seed " << seed;
}

TEST_P(ClassicMembers, an_empty_model_leaves_nothing_empty_that_real_files_always_have) {
    EXPECT_EQ(breaches_in(written(*sketchup::model_builder().finish())), "");
}

TEST_P(ClassicMembers, real_models_written_anew_leave_nothing_empty_that_real_files_always_have) {
    for (auto& [name, file] : samples_)
        EXPECT_EQ(breaches_in(written(*skp::read_model(std::move(file)))), "") << name;
}

TEST_P(ClassicMembers, the_examples_leave_nothing_empty_that_real_files_always_have) {
    const temporary_folder folder;
    for (const char* name : {"garden", "room", "stages"}) {
        const std::string model = folder / (std::string(name) + ".skp");
        const std::string program = std::string(EXAMPLE_PROGRAMS) + "/example_" + name + PROGRAM_ENDING;
        ASSERT_EQ(run_program({program, {model}}).status, 0);
        EXPECT_EQ(breaches_in(written(*skp::read_model(file_bytes(model)))), "") << name;
        if (GetParam().version == skp::classic_version::v17) {
            EXPECT_EQ(breaches_in(file_bytes(model)), "") << name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, ClassicMembers,
                         testing::Values(written_version{6, skp::classic_version::v6},
                                         written_version{8, skp::classic_version::v8},
                                         written_version{17, skp::classic_version::v17},
                                         written_version{20, skp::classic_version::v20}),
                         [](const auto& one) { return "version_" + std::to_string(one.param.major); });

TEST(ClassicMemberTable, a_member_that_is_never_filled_is_counted_as_empty_each_time) {
    sketchup::model_builder m;
    m.root().edge({0, 0, 0}, {1, 0, 0});
    m.root().edge({0, 0, 0}, {0, 1, 0});
    const classic_facts facts = facts_of_classic(skp::write_classic(*m.finish(), skp::classic_version::v17));
    EXPECT_EQ(facts.at("CEdge.curve").times, 2u);
    EXPECT_EQ(facts.at("CEdge.curve").empty, 2u);
    EXPECT_EQ(facts.at("CEdge.start").empty, 0u);
    EXPECT_EQ(facts.at("CVertex.position").times, 3u);
    EXPECT_EQ(facts.at("CVertex.position").empty, 1u); // the origin
    EXPECT_EQ(facts.count("CFace.plane"), 0u);
}

TEST(ClassicMemberTable, a_file_with_a_byte_too_many_or_too_few_does_not_follow_it) {
    bytes file = skp::write_classic(*sketchup::model_builder().finish(), skp::classic_version::v20);
    EXPECT_NO_THROW(facts_of_classic(file));
    file.push_back(0);
    EXPECT_THROW(facts_of_classic(file), std::runtime_error);
    file.resize(file.size() - 2);
    EXPECT_THROW(facts_of_classic(file), std::runtime_error);
}
