// When the file of the settings becomes another one, and when it may not.

#include "qlw/ini_store.h"
#include "tests/support/posix/lock_holder.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include <sys/stat.h>

namespace {

std::set<std::string> names_in(const temporary_folder& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.name()))
        names.insert(entry.path().filename().string());
    return names;
}

std::uint64_t inode_of(const std::string& name) {
    struct stat status = {};
    EXPECT_EQ(stat(name.c_str(), &status), 0);
    return status.st_ino;
}

TEST(IniStore, a_write_of_what_stands_there_leaves_the_file_alone) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nkey = \"1\"\n");
    const std::uint64_t before = inode_of(name);
    ini_store store;
    store.write(name, "A", "KEY", "1");
    EXPECT_EQ(inode_of(name), before);
    EXPECT_EQ(folder.read("a.ini"), "[a]\nkey = \"1\"\n");
    store.write(name, "a", "key", "2");
    EXPECT_NE(inode_of(name), before); // replaced in one step, not written over
}

TEST(IniStore, a_read_only_file_keeps_its_text) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nkey=1\n");
    std::filesystem::permissions(name,
                                 std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                                     std::filesystem::perms::others_write,
                                 std::filesystem::perm_options::remove);
    ini_store store;
    store.write(name, "a", "key", "2");
    EXPECT_EQ(folder.read("a.ini"), "[a]\nkey=1\n");
    EXPECT_EQ(store.file(name).value("a", "key"), "1");
    EXPECT_EQ(names_in(folder), (std::set<std::string>{"a.ini"}));
}

TEST(IniStore, another_process_that_holds_a_file_is_waited_for_once_and_told_of_once) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nkey=1\n");
    const lock_holder other(name + ".lock");
    ini_store store(5);
    EXPECT_EQ(store.patience(), 5);
    EXPECT_EQ(store.write(name, "a", "key", "2"), ini_write::gave_up_waiting);
    EXPECT_EQ(store.patience(), 0);
    EXPECT_EQ(store.write(name, "a", "key", "3"), ini_write::ended);
    EXPECT_EQ(store.patience(), 0);
    EXPECT_EQ(folder.read("a.ini"), "[a]\nkey=1\n");
    EXPECT_EQ(store.file(name).value("a", "key"), "1");
}

TEST(IniStore, nobody_waits_for_a_second_file_either) {
    const temporary_folder folder;
    const lock_holder first(folder / "a.ini.lock");
    const lock_holder second(folder / "b.ini.lock");
    ini_store store(5);
    EXPECT_EQ(store.write(folder / "a.ini", "a", "key", "1"), ini_write::gave_up_waiting);
    EXPECT_EQ(store.write(folder / "b.ini", "a", "key", "1"), ini_write::ended);
}

TEST(IniStore, a_value_that_stands_there_already_waits_for_nobody) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nkey=1\n");
    const lock_holder other(name + ".lock");
    ini_store store(5);
    EXPECT_EQ(store.write(name, "a", "key", "1"), ini_write::ended);
    EXPECT_EQ(store.patience(), 5);
}

TEST(IniStore, values_are_kept_again_when_the_other_process_has_let_go) {
    const temporary_folder folder;
    const std::string name = folder / "a.ini";
    lock_holder other(name + ".lock");
    ini_store store(5);
    EXPECT_EQ(store.write(name, "a", "key", "1"), ini_write::gave_up_waiting);
    other.let_go();
    EXPECT_EQ(store.write(name, "a", "key", "2"), ini_write::ended);
    EXPECT_EQ(folder.read("a.ini"), "[a]\r\nkey=2\r\n");
}

TEST(IniStore, a_lock_that_cannot_be_made_is_no_wait) {
    const temporary_folder folder;
    folder.make_folder("a.ini.lock");
    ini_store store(5);
    EXPECT_EQ(store.write(folder / "a.ini", "a", "key", "1"), ini_write::ended);
    EXPECT_EQ(store.patience(), 5);
    EXPECT_FALSE(folder.has("a.ini"));
}

} // namespace
