// What the document calls a batch, and what it says of why one may be black, and why it is large.

#include "tests/support/files_in_memory.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/damage.h"
#include "tools/batch_check/report_json.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace batch_check;
using nlohmann::json;

json batch_in(const batch_report& report, const std::string& folder = "room") {
    json_document document(false);
    document.add(folder, report);
    return json::parse(document.text())["batches"][0];
}

// Three separators end a name as one does; "." stands for the folder that it leads to.
TEST(ReportJson, a_batch_is_named_by_the_last_part_of_its_folder) {
    const auto named = [](const std::string& folder) { return batch_in(batch_report(), folder)["batch"]; };
    EXPECT_EQ(named("room"), "room");
    EXPECT_EQ(named("batches/room"), "room");
    EXPECT_EQ(named("batches/room///"), "room");
    EXPECT_EQ(named(with_own_separators("batches/room/")), "room");
    const temporary_folder disk;
    disk.make_folder("room");
    EXPECT_EQ(named(disk / "room/."), "room");
}

TEST(ReportJson, counts_undeclared_sides_lamps_without_power_and_copies) {
    const std::string picture = "Batch_SketchUp_Textures/TX0001_Brick.PNG";
    const std::string lamp = "ZynBatch_Lights/light_0.txt";
    const change all =
        all_of({replaced("batch_file.txt", "MATL;10", "MATL;99"), replaced("batch_file.txt", "MAT2;10", "MAT2;99"),
                replaced(lamp, "intensity;75.000000", "intensity;0.000000"),
                replaced(lamp, "intensity_lumens;1275.000000", "intensity_lumens;0.000000"),
                replaced("ZynBatch_Materials/COL%3a0014_Panel.qlobj", "TileX: 0.5", "TileX: 0.0254")});
    files_by_name files = small_batch::still();
    ASSERT_TRUE(all(files));
    files[picture] = files["ZynBatch_Images/Tree_88.png"];
    const json counts = batch_in(check_batch(files_in_memory(files, small_batch::folder)))["counts"];
    EXPECT_EQ(counts["sides_undeclared"], 1);
    EXPECT_EQ(counts["lamps_without_power"], 1);
    EXPECT_EQ(counts["equal_materials"], 1);
    EXPECT_EQ(counts["equal_picture_bytes"], files[picture].size());
    EXPECT_EQ(counts["picture_bytes"], 2 * files[picture].size());
    EXPECT_EQ(counts["files"], 14);
    EXPECT_EQ(counts["triangles_without_material"], 2);
}

TEST(ReportJson, lists_the_hundred_materials_with_the_most_triangles) {
    batch_report report;
    for (std::uint64_t triangles = 0; triangles < 150; ++triangles)
        report.stream.materials.push_back({"m" + std::to_string(triangles) + ".OrnMaterial", 1, triangles, true});
    const json listed = batch_in(report)["triangles_by_material"];
    ASSERT_EQ(listed.size(), 100U);
    EXPECT_EQ(listed[0], json({{"material", "m149"}, {"triangles", 149}}));
    EXPECT_EQ(listed[99], json({{"material", "m50"}, {"triangles", 50}}));
}

TEST(ReportJson, cuts_the_names_of_materials_that_are_longer_than_those_of_files) {
    batch_report report;
    report.stream.materials = {{std::string(255, 'a') + ".OrnMaterial", 1, 2, true},
                               {std::string(256, 'b') + ".OrnMaterial", 4, 1, true}};
    const json listed = batch_in(report)["triangles_by_material"];
    EXPECT_EQ(listed[0]["material"], std::string(255, 'a'));
    EXPECT_EQ(listed[1]["material"], std::string(255, 'b') + "...");
}

TEST(ReportJson, lists_batches_in_the_order_in_which_they_were_checked) {
    json_document document(true);
    batch_report warned;
    warned.is_batch = true;
    warned.found.add(code::orphan, "a", 0, "left over");
    document.add("room", warned);
    document.add("garden", batch_report());
    const json batches = json::parse(document.text())["batches"];
    ASSERT_EQ(batches.size(), 2U);
    EXPECT_EQ(batches[0]["batch"], "room");
    EXPECT_EQ(batches[0]["status"], "findings"); // since warnings count here
    EXPECT_EQ(batches[1]["batch"], "garden");
    EXPECT_EQ(batches[1]["status"], "not a batch");
}

TEST(ReportJson, lists_materials_of_one_name_by_themselves_and_those_on_no_triangle_not_at_all) {
    batch_report report;
    report.stream.materials = {
        {"b.OrnMaterial", 1, 7, true}, {"a.OrnMaterial", 4, 7, true}, {"a.OrnMaterial", 7, 8, true}, {"c", 9, 0, true}};
    EXPECT_EQ(batch_in(report)["triangles_by_material"].dump(),
              R"([{"material":"a","triangles":8},{"material":"a","triangles":7},{"material":"b","triangles":7}])");
}

} // namespace
