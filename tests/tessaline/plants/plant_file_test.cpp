// The files of plants that models bring along.

#include "tessaline/plants/plant_file.h"

#include "platform/platform.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::Not;

class PlantFile : public testing::Test {
protected:
    PlantFile() { plant.plant_data64 = "T2FrIQ=="; } // "Oak!"

    std::string placed(const std::string& file_name) { return placed_plant_file(file_name, plant, batch.name()); }

    temporary_folder batch;
    plant_description plant;
    trace_capture trace;
    answering_desktop desktop;
};

TEST_F(PlantFile, it_is_decoded_into_the_folder_of_plants_which_is_made) {
    EXPECT_EQ(placed("oak.plant"), batch / "Plants/oak.plant");
    EXPECT_EQ(batch.read("Plants/oak.plant"), "Oak!");
}

TEST_F(PlantFile, line_feeds_in_the_data_are_passed_over) {
    plant.plant_data64 = "T2\nFr\n\nIQ==\n";
    placed("oak.plant");
    EXPECT_EQ(batch.read("Plants/oak.plant"), "Oak!");
}

TEST_F(PlantFile, the_bytes_are_written_as_they_are) {
    plant.plant_data64 = "DQoACv8="; // carriage return, line feed, zero, line feed, 255
    placed("oak.plant");
    EXPECT_EQ(batch.read("Plants/oak.plant"), std::string("\r\n\0\n\xff", 5));
}

TEST_F(PlantFile, a_file_that_lies_there_keeps_its_bytes) {
    batch.write("Plants/oak.plant", "older");
    EXPECT_EQ(placed("oak.plant"), batch / "Plants/oak.plant");
    EXPECT_EQ(batch.read("Plants/oak.plant"), "older");
}

TEST_F(PlantFile, folders_in_front_of_the_name_are_left_out) {
    EXPECT_EQ(placed("/library/trees/oak.plant"), batch / "Plants/oak.plant");
    EXPECT_EQ(placed("c:\\library\\elm.plant"), batch / "Plants/elm.plant");
    EXPECT_EQ(placed("..\\../beech.plant"), batch / "Plants/beech.plant");
    EXPECT_TRUE(batch.has("Plants/elm.plant"));
    EXPECT_TRUE(batch.has("Plants/beech.plant"));
}

TEST_F(PlantFile, a_name_that_is_no_name_of_a_file_writes_nothing) {
    for (const std::string name : {"..", ".", "", "folder/"})
        placed(name);
    const auto inside = platform::list_folder(batch.name());
    ASSERT_TRUE(inside.has_value());
    EXPECT_EQ(inside->size(), 1u); // the folder of plants
    EXPECT_TRUE(platform::list_folder(batch / "Plants")->empty());
}

TEST_F(PlantFile, one_that_cannot_be_written_is_named_without_a_report) {
    batch.write("Plants", "a file where the folder should be");
    EXPECT_EQ(placed("oak.plant"), batch / "Plants/oak.plant");
    EXPECT_THAT(trace.text(), Not(HasSubstr("Error")));
}

TEST_F(PlantFile, data_of_the_older_form_alone_are_reported_and_write_nothing) {
    plant.plant_data64.clear();
    plant.plant_data = "rubbish";
    EXPECT_EQ(placed("trees/oak.plant"), batch / "Plants/oak.plant");
    EXPECT_FALSE(batch.has("Plants/oak.plant"));
    EXPECT_EQ(trace.text_without_line_numbers(),
              "plant_file(#): SketchUpReader::Write_Zyn_plant():: *** ERROR: 'Old 64' base Plant found:\noak.plant\n"
              "Please send this model to Quillon Systems for testing.\n");
    EXPECT_EQ(desktop.shown.size(), 1u);
}

TEST_F(PlantFile, data_of_the_older_form_beside_the_newer_are_not_looked_at) {
    plant.plant_data = "rubbish";
    placed("oak.plant");
    EXPECT_EQ(batch.read("Plants/oak.plant"), "Oak!");
    EXPECT_THAT(trace.text(), Not(HasSubstr("Old 64")));
}

TEST_F(PlantFile, data_of_the_older_form_are_not_reported_while_a_file_lies_there) {
    batch.write("Plants/oak.plant", "older");
    plant.plant_data64.clear();
    plant.plant_data = "rubbish";
    placed("oak.plant");
    EXPECT_THAT(trace.text(), Not(HasSubstr("Old 64")));
}

TEST_F(PlantFile, without_any_data_the_file_is_only_named) {
    plant.plant_data64.clear();
    EXPECT_EQ(placed("oak.plant"), batch / "Plants/oak.plant");
    EXPECT_FALSE(batch.has("Plants/oak.plant"));
}

} // namespace
