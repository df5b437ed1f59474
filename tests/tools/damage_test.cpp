// Every kind of damage done to a batch in which nothing is wrong is found, and under the code that it should have.

#include "tests/support/files_in_memory.h"
#include "tests/tools/damage.h"
#include "tools/batch_check/check_batch.h"
#include "tools/batch_check/first_screen.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace batch_check;

batch_report report_of(const files_by_name& files) {
    return check_batch(files_in_memory(files, small_batch::folder));
}

std::vector<damage> all_damage() {
    std::vector<damage> all;
    for (auto* kinds : {damage_to_frames, damage_to_order_of_faces, damage_to_order_of_lamps, damage_to_order_of_places,
                        damage_to_order_at_the_end, damage_to_numbers, damage_to_vertices, damage_to_blocks,
                        damage_to_references, damage_to_edges, damage_to_materials, damage_to_material_values,
                        damage_to_pictures, damage_to_lamps, damage_to_options, damage_to_folders})
        for (damage& one : kinds())
            all.push_back(std::move(one));
    return all;
}

class BatchDamage : public testing::TestWithParam<damage> {};

TEST_P(BatchDamage, is_found) {
    files_by_name files = GetParam().to_animation ? small_batch::animation() : small_batch::still();
    ASSERT_TRUE(GetParam().doing(files)) << "there was nothing to damage";
    const batch_report report = report_of(files);
    EXPECT_GT(report.found.count(GetParam().expected), 0U) << entry_of(GetParam().expected).name << " is not among\n"
                                                           << finding_lines(report.found);
    EXPECT_EQ(report.is_sound(true), entry_of(GetParam().expected).weight == severity::note);
}

INSTANTIATE_TEST_SUITE_P(Kinds, BatchDamage, testing::ValuesIn(all_damage()),
                         [](const auto& one) { return one.param.name; });

TEST(BatchDamages, nothing_at_all_is_found_without_damage) {
    for (const files_by_name& files : {small_batch::still(), small_batch::animation()}) {
        const batch_report report = report_of(files);
        EXPECT_TRUE(report.found.kept().empty()) << finding_lines(report.found);
        EXPECT_TRUE(report.is_sound(true));
    }
}

TEST(BatchDamages, are_of_at_least_150_kinds_and_of_every_code) {
    std::set<std::string> names;
    std::set<code> codes;
    for (const damage& one : all_damage()) {
        names.insert(one.name);
        codes.insert(one.expected);
    }
    EXPECT_GE(names.size(), 150U);
    for (const code_entry& entry : all_codes())
        EXPECT_TRUE(codes.contains(entry.what)) << entry.name << " is found by no kind of damage";
}

} // namespace
