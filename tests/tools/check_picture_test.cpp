// Pictures that are there and are not looked at: those that cannot be opened, and those whose file is too large.

#include "tests/support/files_in_memory.h"
#include "tests/tools/small_batch.h"
#include "tools/batch_check/check_batch.h"
#include "tools/batch_check/first_screen.h"

#include <gtest/gtest.h>

namespace {

using namespace batch_check;

constexpr std::uint64_t largest_file = 536870912; // 512 MiB

// The small batch, whose two pictures cannot be opened and are said to be of a size.
class closed_pictures : public files_in_memory {
public:
    explicit closed_pictures(std::uint64_t bytes)
        : files_in_memory(small_batch::still(), small_batch::folder), bytes_of_picture(bytes) {}

    std::optional<std::uint64_t> size(const std::string& name) const override {
        return is_picture(name) ? bytes_of_picture : files_in_memory::size(name);
    }
    std::unique_ptr<byte_source> open(const std::string& name) const override {
        if (!is_picture(name))
            return files_in_memory::open(name);
        ++tries;
        return nullptr;
    }
    int times_tried() const { return tries; }

private:
    static bool is_picture(const std::string& name) { return name.ends_with(".PNG") || name.ends_with(".png"); }

    std::uint64_t bytes_of_picture;
    mutable int tries = 0;
};

TEST(CheckPicture, one_that_is_listed_and_cannot_be_opened_is_damaged) {
    const closed_pictures files(1000);
    const batch_report report = check_batch(files);
    EXPECT_EQ(finding_lines(report.found),
              "error picture-damaged: Batch_SketchUp_Textures/TX0001_Brick.PNG: the file cannot be read\n"
              "error picture-damaged: ZynBatch_Images/Tree_88.png: the file cannot be read\n");
    EXPECT_EQ(report.pictures.count, 0U);
    EXPECT_EQ(report.pictures.bytes, 0U);
    EXPECT_FALSE(report.is_sound(false));
}

TEST(CheckPicture, a_file_of_more_than_512_MiB_is_noted_and_not_opened) {
    const closed_pictures files(largest_file + 1);
    const batch_report report = check_batch(files);
    EXPECT_EQ(files.times_tried(), 0);
    EXPECT_EQ(report.found.count(code::picture_large), 2U);
    EXPECT_EQ(report.pictures.count, 2U);
    EXPECT_EQ(report.pictures.bytes, 1073741826U); // 2 x 536870913
    EXPECT_TRUE(report.is_sound(true)) << finding_lines(report.found);
}

TEST(CheckPicture, a_file_of_512_MiB_is_opened) {
    const closed_pictures files(largest_file);
    EXPECT_EQ(check_batch(files).found.count(code::picture_large), 0U);
    EXPECT_EQ(files.times_tried(), 2);
}

TEST(CheckPicture, files_that_were_not_read_do_not_count_as_equal) {
    const closed_pictures files(largest_file + 1);
    const batch_report report = check_batch(files);
    EXPECT_EQ(report.found.count(code::picture_equal), 0U);
    EXPECT_EQ(report.pictures.repeated_bytes, 0U);
}

} // namespace
