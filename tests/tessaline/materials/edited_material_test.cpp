// A material file that travels in the attributes of its material.

#include "tests/tessaline/materials/edited_material_fixture.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using testing::HasSubstr;

TEST_F(EditedMaterial, is_written_as_it_came) {
    folder.write("Brick.OrnMaterial", "an older one, and longer");
    EXPECT_EQ(restore(carried("41;1;x;", {{0, framed_hi}})), folder / "Brick.OrnMaterial");
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "Hi");
}

TEST_F(EditedMaterial, of_several_chunks_is_put_together) {
    std::string digits;
    for (int i = 0; i != 200000; ++i)
        digits += "6162";
    const std::string text = "[ORNZyn Material Settings][00800000]-" + digits;
    const std::string header = std::to_string(text.size()) + ";3;x;";
    EXPECT_NE(restore(carried(header, {{1, std::string_view(text).substr(400000, 400000)},
                                       {2, std::string_view(text).substr(800000)},
                                       {0, std::string_view(text).substr(0, 400000)}})),
              "");
    std::string bytes;
    for (int i = 0; i != 200000; ++i)
        bytes += "ab";
    EXPECT_TRUE(folder.read("Brick.OrnMaterial") == bytes);
}

TEST_F(EditedMaterial, other_keys_are_none_of_its_own) {
    edited_material edited;
    EXPECT_FALSE(edited.take("ORNZyn Material Setting", "5;1;x;"));
    EXPECT_FALSE(edited.take("ORNZyn Material Settings_chun0", "5"));
    EXPECT_FALSE(edited.take("ORNZyn Material Settings;", "5;1;x;"));
    EXPECT_FALSE(edited.is_complete());
    EXPECT_TRUE(edited.take("ORNZyn Material Settings_chunk0", "5"));
    EXPECT_FALSE(edited.is_complete()) << "chunks without a header";
    EXPECT_TRUE(edited.take("ORNZyn Material Settings", "5;1;x;"));
    EXPECT_TRUE(edited.is_complete());
}

TEST_F(EditedMaterial, a_header_without_length_or_last_field_is_incomplete) {
    EXPECT_FALSE(carried("41;1;", {{0, framed_hi}}).is_complete());
    EXPECT_FALSE(carried("", {{0, framed_hi}}).is_complete());
}

TEST_F(EditedMaterial, a_chunk_number_that_is_none_is_0) {
    edited_material edited = carried("41;1;x;", {});
    edited.take("ORNZyn Material Settings_chunk", framed_hi);
    restore(edited);
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "Hi");
}

TEST_F(EditedMaterial, a_chunk_number_below_0_is_an_invalid_argument) {
    edited_material edited;
    EXPECT_THROW(edited.take("ORNZyn Material Settings_chunk-1", "5"), std::invalid_argument);
}

TEST_F(EditedMaterial, a_missing_last_chunk_is_an_invalid_argument_and_leaves_an_old_file) {
    folder.write("Brick.OrnMaterial", "old");
    EXPECT_THROW(restore(carried("41;2;x;", {{0, framed_hi}})), std::invalid_argument);
    EXPECT_THROW(restore(carried("41;1;x;", {})), std::invalid_argument);
    EXPECT_THROW(restore(carried("41;2147483647;x;", {{0, framed_hi}})), std::invalid_argument);
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "old");
}

TEST_F(EditedMaterial, a_missing_middle_chunk_is_zeros_to_the_decoder) {
    std::string first = "[ORNZyn Material Settings][00400000]-";
    first += std::string(400000 - first.size(), '6'); // 399963 digits: 199981 bytes and one digit more
    restore(carried("1200000;3;x;", {{0, first}, {2, "66"}}));
    const std::string written = folder.read("Brick.OrnMaterial");
    EXPECT_TRUE(written == std::string(199981, 'f') + std::string(19, '\0')) << written.size();
}

TEST_F(EditedMaterial, a_far_chunk_costs_no_room) {
    EXPECT_NE(restore(carried("2147483647;2147483647;x;", {{0, framed_hi}, {2147483646, "66"}})), "");
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "Hi");
}

TEST_F(EditedMaterial, a_frame_that_announces_50_megabytes_and_holds_none_makes_a_file_of_zeros) {
    restore(carried("99999999;1;x;", {{0, "[ORNZyn Material Settings][99999999]-4869"}}));
    const std::string written = folder.read("Brick.OrnMaterial");
    EXPECT_TRUE(written == "Hi" + std::string(49999997, '\0')) << written.size();
}

TEST_F(EditedMaterial, no_chunks_at_all_leave_an_empty_file) {
    folder.write("Brick.OrnMaterial", "old");
    EXPECT_NE(restore(carried("41;0;x;", {})), "");
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "");
    EXPECT_THAT(trace.text(), HasSubstr("encoded string for ORNZyn Material Settings does not start with '['): (  )"));
}

TEST_F(EditedMaterial, a_faulty_frame_is_reported_and_leaves_an_empty_file) {
    restore(carried("41;1;x;", {{0, "[Another Material Settin][00000004]-48690"}}));
    EXPECT_TRUE(folder.has("Brick.OrnMaterial"));
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "");
    EXPECT_THAT(trace.text(), HasSubstr("encoded string hex_name ORNZyn Material Settings does not match: "
                                        "( [Another Material Se )"));
    EXPECT_TRUE(desktop.shown.empty());
}

TEST_F(EditedMaterial, a_file_that_cannot_be_made_is_reported) {
    std::filesystem::create_directory(folder / "Brick.OrnMaterial");
    EXPECT_EQ(restore(carried("41;1;x;", {{0, framed_hi}})), "");
    ASSERT_EQ(desktop.shown.size(), 1U);
    EXPECT_THAT(desktop.shown[0].text,
                testing::StartsWith("Cannot save edited Ornmaterial: " + folder / "Brick.OrnMaterial"));
    EXPECT_EQ(
        trace.text_without_line_numbers(),
        "edited_material(#): SketchUpReader::get_material_number():: *** ERROR: Cannot save edited Ornmaterial: " +
            folder / "Brick.OrnMaterial" + "\n");
}

TEST_F(EditedMaterial, a_name_that_leads_out_of_the_folder_makes_and_deletes_no_file) {
    const std::string inside = folder.make_folder("inside");
    folder.write("Brick.OrnMaterial", "old");
    for (const char* name : {"../Brick.OrnMaterial", "..\\Brick.OrnMaterial", "/Brick.OrnMaterial"})
        EXPECT_EQ(restore_edited_material(carried("41;1;x;", {{0, framed_hi}}), inside, name), "");
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "old");
    EXPECT_TRUE(std::filesystem::is_empty(inside));
    ASSERT_EQ(desktop.shown.size(), 3U);
    EXPECT_THAT(desktop.shown[0].text, testing::StartsWith("Cannot save edited Ornmaterial: " + inside +
                                                           platform::path_separator + "../Brick.OrnMaterial"));
}

} // namespace
