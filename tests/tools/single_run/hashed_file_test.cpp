#include "tools/single_run/hashed_file.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

const run_clock no_limit(std::nullopt);

TEST(HashedFile, a_copy_has_the_bytes_and_the_facts_of_the_file) {
    const temporary_folder here;
    const std::string from = here.write("model.skp", "a model");
    const hashed_file copied = copy_file(from, here / "copy", no_limit);
    EXPECT_EQ(copied.fault, file_fault::none);
    EXPECT_EQ(copied.facts.name, "model.skp");
    EXPECT_EQ(copied.facts.bytes, 7u);
    EXPECT_EQ(copied.facts.xxh128, hash_file(from, no_limit).facts.xxh128);
    EXPECT_EQ(here.read("copy"), "a model");
}

TEST(HashedFile, a_copy_is_never_made_over_what_is_there) {
    const temporary_folder here;
    const std::string from = here.write("model.skp", "a model");
    const std::string there = here.write("copy", "of somebody else");
    const hashed_file copied = copy_file(from, there, no_limit);
    EXPECT_EQ(copied.fault, file_fault::not_written);
    EXPECT_NE(copied.words, "");
    EXPECT_EQ(here.read("copy"), "of somebody else");
}

TEST(HashedFile, a_file_that_is_not_there_is_told_in_the_words_of_the_system) {
    const temporary_folder here;
    const hashed_file missing = hash_file(here / "none", no_limit);
    EXPECT_EQ(missing.fault, file_fault::not_read);
    EXPECT_NE(missing.words, "");
}

TEST(HashedFile, reading_ends_when_the_time_is_over) {
    const temporary_folder here;
    const run_clock over(0);
    EXPECT_EQ(hash_file(here.write("model.skp", "a model"), over).fault, file_fault::stopped);
    EXPECT_EQ(copy_file(here / "model.skp", here / "copy", over).fault, file_fault::stopped);
}

} // namespace
