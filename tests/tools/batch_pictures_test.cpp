#include "tools/batch_reading/batch_pictures.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

std::string text_of(const std::optional<std::vector<std::byte>>& bytes) {
    return bytes ? std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size()) : "none";
}

TEST(BatchPictures, of_a_batch_that_was_moved_are_found_in_its_own_folders) {
    const temporary_folder folder;
    folder.write("moved/Batch_SketchUp_Textures/oak.png", "oak");
    folder.write("moved/ZynBatch_Images/leaf.png", "leaf");
    EXPECT_EQ(text_of(read_batch_picture(folder / "moved", "/made/elsewhere/oak.png")), "oak");
    EXPECT_EQ(text_of(read_batch_picture(folder / "moved", "C:\\made\\elsewhere\\leaf.png")), "leaf");
    EXPECT_EQ(text_of(read_batch_picture(folder / "moved", "/made/elsewhere/ash.png")), "none");
}

TEST(BatchPictures, of_the_batch_itself_come_before_those_of_the_same_name_elsewhere) {
    const temporary_folder folder;
    const std::string elsewhere = folder.write("library/oak.png", "elsewhere");
    folder.make_folder("batch");
    EXPECT_EQ(text_of(read_batch_picture(folder / "batch", elsewhere)), "elsewhere");
    folder.write("batch/Batch_SketchUp_Textures/oak.png", "own");
    EXPECT_EQ(text_of(read_batch_picture(folder / "batch", elsewhere)), "own");
}

} // namespace
