#include "tests/batch/batch_runner.h"

#include "image/encode_picture.h"
#include "tests/image/pictures.h"

#include <gtest/gtest.h>

namespace {

using texts = std::vector<std::string>;

TEST(BatchDifferences, equal_files_give_none) {
    EXPECT_EQ(differences({{"a/b.txt", "one\r\n"}}, {{"a/b.txt", "one\r\n"}}), texts());
}

TEST(BatchDifferences, the_first_differing_line_is_shown_with_its_end) {
    EXPECT_EQ(differences({{"a.txt", "one\r\ntwo\r\nthree\r\n"}}, {{"a.txt", "one\r\ntwo\nTHREE\r\n"}}),
              texts{"a.txt differs in line 2\n  expected: two\\r\\n\n  found:    two\\n"});
}

TEST(BatchDifferences, a_file_that_ends_too_early_differs_behind_its_last_line) {
    EXPECT_EQ(differences({{"a.txt", "one\r\ntwo\r\n"}}, {{"a.txt", "one\r\n"}}),
              texts{"a.txt differs in line 2\n  expected: two\\r\\n\n  found:    the end of the file"});
}

TEST(BatchDifferences, a_missing_line_end_is_a_difference) {
    EXPECT_EQ(differences({{"a.txt", "one\r\n"}}, {{"a.txt", "one"}}),
              texts{"a.txt differs in line 1\n  expected: one\\r\\n\n  found:    one"});
}

TEST(BatchDifferences, missing_and_unexpected_files_are_named) {
    EXPECT_EQ(differences({{"a.txt", ""}}, {{"b.txt", ""}}), (texts{"a.txt is missing", "b.txt is not expected"}));
}

TEST(BatchGoldenText, every_mark_stands_for_its_text) {
    EXPECT_EQ(without_marks("GNDC;@BATCH@/Plants/a\r\n@ID@@BATCH@@BATCH @", {{"@BATCH@", "/tmp/@ID@"}, {"@ID@", "12"}}),
              "GNDC;/tmp/@ID@/Plants/a\r\n12/tmp/@ID@@BATCH @");
}

TEST(BatchPictures, are_compared_by_format_size_and_pixels) {
    const auto text_of = [](const image::picture& pixels, image::picture_format format) {
        const std::vector<std::uint8_t> bytes = image::encode_picture(pixels, format);
        return std::string(bytes.begin(), bytes.end());
    };
    using image::picture_format;
    const image::picture pixels = gradient(4, 3);
    image::picture off_by_two = pixels;
    off_by_two.bytes()[7] = static_cast<std::uint8_t>(off_by_two.bytes()[7] + 2);
    const std::string png = text_of(pixels, picture_format::png);
    EXPECT_EQ(difference_from({picture_format::png, pixels}, png), "");
    EXPECT_EQ(difference_from({picture_format::bmp, pixels}, png), "is of another format");
    EXPECT_EQ(difference_from({picture_format::png, pixels}, png.substr(0, 60)), "does not decode");
    EXPECT_EQ(difference_from({picture_format::png, gradient(3, 4)}, png), "has another size or depth");
    EXPECT_EQ(difference_from({picture_format::png, off_by_two}, png), "differs in byte 7 of its pixels");
    EXPECT_EQ(difference_from({picture_format::png, off_by_two, 1}, png), "differs in byte 7 of its pixels");
    EXPECT_EQ(difference_from({picture_format::png, off_by_two, 2}, png), "");
}

TEST(BatchFolder, files_and_folders_are_listed_with_their_names_from_the_batch_folder_on) {
    batch b("two/deep");
    b.put("Plants/Oak.plant", "oak");
    b.put("a.txt", "");
    EXPECT_EQ(b.files(), (files_by_name{{"Plants/Oak.plant", "oak"}, {"a.txt", ""}}));
    EXPECT_EQ(b.folders(), std::set<std::string>{"Plants"});
}

} // namespace
