#include "platform/platform.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

platform::file_editor appending(const std::string& more) {
    return [more](const std::string& bytes) { return bytes + more; };
}

constexpr std::uint64_t no_limit = 1000;

TEST(EditFile, gives_the_bytes_and_writes_what_becomes_of_them) {
    const temporary_folder folder;
    const std::string name = folder.write("a", "old");
    EXPECT_EQ(platform::edit_file(name, no_limit, 0, appending(" and new")), platform::edit_result::done);
    EXPECT_EQ(folder.read("a"), "old and new");
    EXPECT_EQ(platform::edit_file(name, no_limit, 0, [](const std::string&) { return "short"; }),
              platform::edit_result::done);
    EXPECT_EQ(folder.read("a"), "short");
    EXPECT_EQ(platform::list_folder(folder.name())->size(), 1u);
}

TEST(EditFile, makes_a_missing_file_only_if_there_is_something_to_write) {
    const temporary_folder folder;
    EXPECT_EQ(platform::edit_file(folder / "a", no_limit, 0, [](const std::string&) { return std::nullopt; }),
              platform::edit_result::done);
    EXPECT_FALSE(folder.has("a"));
    EXPECT_EQ(platform::edit_file(folder / "a", no_limit, 0, appending("new")), platform::edit_result::done);
    EXPECT_EQ(folder.read("a"), "new");
}

TEST(EditFile, leaves_a_file_beyond_the_limit_alone) {
    const temporary_folder folder;
    const std::string name = folder.write("a", "1234");
    EXPECT_EQ(platform::edit_file(name, 3, 0, appending("5")), platform::edit_result::impossible);
    EXPECT_EQ(folder.read("a"), "1234");
    EXPECT_EQ(platform::edit_file(name, 4, 0, appending("5")), platform::edit_result::done);
}

TEST(EditFile, leaves_folders_and_places_that_take_no_file_alone) {
    const temporary_folder folder;
    folder.make_folder("a");
    EXPECT_EQ(platform::edit_file(folder / "a", no_limit, 0, appending("x")), platform::edit_result::impossible);
    EXPECT_EQ(platform::edit_file(folder / "missing/a", no_limit, 0, appending("x")),
              platform::edit_result::impossible);
    EXPECT_EQ(platform::list_folder(folder.name())->size(), 1u);
}

TEST(EditFile, loses_no_change_of_many_at_once) {
    constexpr int writers = 4;
    constexpr int changes = 25;
    const temporary_folder folder;
    const std::string name = folder.write("a", "");
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < writers; ++i)
            threads.emplace_back([&] {
                for (int k = 0; k < changes; ++k)
                    EXPECT_EQ(platform::edit_file(name, no_limit, 10000, appending("x")), platform::edit_result::done);
            });
    }
    EXPECT_EQ(folder.read("a"), std::string(std::size_t{writers} * changes, 'x'));
}

} // namespace
