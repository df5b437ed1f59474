// How often the file of a material is read.

#include "tests/tools/small_batch.h"
#include "tests/tools/stream_pieces.h"
#include "tools/batch_check/check_batch.h"

namespace {

using namespace batch_check;

constexpr const char* wall_file = "ZynBatch_Materials/COL%3a0012_Wall.qlobj";

// Counts how often the file of the wall is opened.
class watched_files : public files_in_memory {
public:
    using files_in_memory::files_in_memory;
    std::unique_ptr<byte_source> open(const std::string& name) const override {
        times += name == wall_file ? 1 : 0;
        return files_in_memory::open(name);
    }
    int times_opened() const { return times; }

private:
    mutable int times = 0;
};

// A stream that declares the wall three times, and that file of it.
watched_files with_wall(const std::string& text) {
    using namespace stream_pieces;
    lines again = wall;
    again.back() = "MATI;11";
    lines third = wall;
    third.back() = "MATI;12";
    return watched_files(
        {{"batch_file.txt", text_of(joined({head, pass, wall, again, third, end}))}, {wall_file, text}});
}

TEST(CheckMaterial, reads_the_file_of_a_name_once_however_often_that_is_declared) {
    const watched_files files = with_wall(small_batch::still()[wall_file]);
    const batch_report report = check_batch(files);
    EXPECT_EQ(files.times_opened(), 1);
    EXPECT_EQ(report.found.count(code::stream_declaration), 2U); // the second and the third
    EXPECT_EQ(report.found.count(severity::error), 2U) << finding_lines(report.found);
}

TEST(CheckMaterial, opens_a_file_that_is_too_long_once) {
    const watched_files files = with_wall(std::string(1000001, '\n'));
    const batch_report report = check_batch(files);
    EXPECT_EQ(files.times_opened(), 1);
    EXPECT_EQ(report.found.count(code::material_missing), 1U);
}

} // namespace
