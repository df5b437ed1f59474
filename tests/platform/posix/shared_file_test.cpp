#include "platform/posix/shared_file.h"

#include "platform/platform.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <sys/stat.h>
#include <thread>

namespace {

using platform::lock_result;

unsigned permissions_of(const std::string& name) {
    struct stat status = {};
    EXPECT_EQ(stat(name.c_str(), &status), 0);
    return status.st_mode & 07777;
}

TEST(FileLock, exists_on_the_disk_only_while_it_is_held) {
    const temporary_folder folder;
    {
        platform::file_lock lock;
        EXPECT_EQ(lock.take(folder / "a.lock", 0), lock_result::taken);
        EXPECT_TRUE(folder.has("a.lock"));
    }
    EXPECT_FALSE(folder.has("a.lock"));
}

TEST(FileLock, a_second_holder_gives_up_after_its_patience) {
    const temporary_folder folder;
    platform::file_lock first;
    platform::file_lock second;
    ASSERT_EQ(first.take(folder / "a.lock", 0), lock_result::taken);
    EXPECT_EQ(second.take(folder / "a.lock", 10), lock_result::held_elsewhere);
    EXPECT_TRUE(folder.has("a.lock"));
}

TEST(FileLock, a_second_holder_gets_it_when_the_first_lets_go) {
    const temporary_folder folder;
    auto first = std::make_unique<platform::file_lock>();
    ASSERT_EQ(first->take(folder / "a.lock", 0), lock_result::taken);
    std::thread releasing([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        first.reset();
    });
    platform::file_lock second;
    EXPECT_EQ(second.take(folder / "a.lock", 10000), lock_result::taken);
    releasing.join();
    EXPECT_TRUE(folder.has("a.lock"));
}

TEST(FileLock, locks_of_different_names_do_not_wait_for_each_other) {
    const temporary_folder folder;
    platform::file_lock first;
    platform::file_lock second;
    EXPECT_EQ(first.take(folder / "a.lock", 0), lock_result::taken);
    EXPECT_EQ(second.take(folder / "b.lock", 0), lock_result::taken);
}

TEST(FileLock, what_a_dead_process_left_does_not_hold) {
    const temporary_folder folder;
    folder.write("a.lock", "");
    platform::file_lock lock;
    EXPECT_EQ(lock.take(folder / "a.lock", 0), lock_result::taken);
}

TEST(FileLock, fails_where_no_file_can_be_made) {
    const temporary_folder folder;
    platform::file_lock lock;
    EXPECT_EQ(lock.take(folder / "missing/a.lock", 0), lock_result::impossible);
}

TEST(ReplaceFile, makes_a_missing_file_and_leaves_nothing_beside_it) {
    const temporary_folder folder;
    EXPECT_TRUE(platform::replace_file(folder / "a", "new"));
    EXPECT_EQ(folder.read("a"), "new");
    EXPECT_EQ(platform::list_folder(folder.name())->size(), 1u);
}

TEST(ReplaceFile, an_open_reader_keeps_the_old_bytes) {
    const temporary_folder folder;
    folder.write("a", "old");
    platform::file reader;
    ASSERT_TRUE(reader.open(folder / "a", platform::open_mode::read));
    EXPECT_TRUE(platform::replace_file(folder / "a", "new"));
    char bytes[3];
    ASSERT_EQ(reader.read(bytes, sizeof bytes), 3u);
    EXPECT_EQ(std::string(bytes, 3), "old");
    EXPECT_EQ(folder.read("a"), "new");
}

TEST(ReplaceFile, permissions_stay) {
    const temporary_folder folder;
    const std::string name = folder.write("a", "old");
    chmod(name.c_str(), 0640);
    EXPECT_TRUE(platform::replace_file(name, "new"));
    EXPECT_EQ(permissions_of(name), 0640u);
}

TEST(ReplaceFile, a_read_only_file_stays_as_it_is) {
    const temporary_folder folder;
    const std::string name = folder.write("a", "old");
    chmod(name.c_str(), 0444);
    EXPECT_FALSE(platform::replace_file(name, "new"));
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_EQ(platform::list_folder(folder.name())->size(), 1u);
}

TEST(ReplaceFile, the_file_behind_a_link_changes_and_the_link_stays) {
    const temporary_folder folder;
    folder.write("kept elsewhere/a", "old");
    std::filesystem::create_symlink(folder / "kept elsewhere/a", folder / "a");
    EXPECT_TRUE(platform::replace_file(folder / "a", "new"));
    EXPECT_TRUE(platform::is_symbolic_link(folder / "a"));
    EXPECT_EQ(folder.read("kept elsewhere/a"), "new");
}

TEST(ReplaceFile, a_folder_is_not_replaced) {
    const temporary_folder folder;
    folder.make_folder("a");
    EXPECT_FALSE(platform::replace_file(folder / "a", "new"));
    EXPECT_FALSE(platform::replace_file(folder / "missing/a", "new"));
    EXPECT_EQ(platform::list_folder(folder.name())->size(), 1u);
}

} // namespace
