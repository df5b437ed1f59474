#include "qlw/ini_store.h"

#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <thread>

namespace {

std::set<std::string> names_in(const temporary_folder& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.name()))
        names.insert(entry.path().filename().string());
    return names;
}

TEST(IniStore, a_file_is_read_once) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nkey=1\n");
    ini_store store;
    EXPECT_FALSE(store.holds(name));
    EXPECT_EQ(store.file(name).value("a", "key"), "1");
    folder.write("a.ini", "[a]\nkey=2\n");
    EXPECT_TRUE(store.holds(name));
    EXPECT_EQ(store.file(name).value("a", "key"), "1");
    store.forget();
    EXPECT_EQ(store.file(name).value("a", "key"), "2");
}

TEST(IniStore, a_missing_file_is_looked_for_once) {
    const temporary_folder folder;
    ini_store store;
    EXPECT_EQ(store.file(folder / "a.ini").value("a", "key"), std::nullopt);
    folder.write("a.ini", "[a]\nkey=2\n");
    EXPECT_EQ(store.file(folder / "a.ini").value("a", "key"), std::nullopt);
}

TEST(IniStore, a_write_keeps_order_and_comments_and_leaves_nothing_beside_the_file) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "; mine\r\n[b]\r\nz=1\r\n\r\n[a]\r\ny=2\r\n; end");
    ini_store store;
    store.write(name, "b", "Z", "5");
    store.write(name, "b", "new", "6");
    EXPECT_EQ(folder.read("a.ini"), "; mine\r\n[b]\r\nz=5\r\nnew=6\r\n\r\n[a]\r\ny=2\r\n; end");
    EXPECT_EQ(names_in(folder), (std::set<std::string>{"a.ini"}));
}

TEST(IniStore, a_write_is_seen_by_the_next_read) {
    const temporary_folder folder;
    ini_store store;
    EXPECT_EQ(store.file(folder / "a.ini").value("a", "key"), std::nullopt);
    store.write(folder / "a.ini", "a", "key", "1");
    EXPECT_EQ(store.file(folder / "a.ini").value("a", "key"), "1");
    EXPECT_EQ(folder.read("a.ini"), "[a]\r\nkey=1\r\n");
}

TEST(IniStore, a_write_keeps_what_another_program_has_written_since_the_read) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nmine=1\nother=1\n");
    ini_store store;
    EXPECT_EQ(store.file(name).value("a", "other"), "1");
    folder.write("a.ini", "; new\n[a]\nmine=1\nother=2\n");
    store.write(name, "a", "mine", "5");
    EXPECT_EQ(folder.read("a.ini"), "; new\n[a]\nmine=5\nother=2\n");
    EXPECT_EQ(store.file(name).value("a", "other"), "2");
}

TEST(IniStore, a_value_that_another_program_has_changed_since_the_read_is_written_again) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nmine=1\n");
    ini_store store;
    EXPECT_EQ(store.file(name).value("a", "mine"), "1");
    folder.write("a.ini", "[a]\nmine=2\n");
    store.write(name, "a", "mine", "1");
    EXPECT_EQ(folder.read("a.ini"), "[a]\nmine=1\n");
}

TEST(IniStore, nothing_of_many_processes_that_write_at_once_is_lost) {
    constexpr int processes = 6;
    constexpr int writes = 25;
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "; kept\n");
    {
        std::vector<std::jthread> started;
        for (int process = 0; process < processes; ++process)
            started.emplace_back([&name, process] {
                const std::string section = "s" + std::to_string(process);
                EXPECT_EQ(run_program({SETTINGS_WRITER, {name, section, std::to_string(writes)}}).status, 0);
            });
    }
    const ini_text text(folder.read("a.ini"));
    for (int process = 0; process < processes; ++process)
        for (int i = 0; i < writes; ++i)
            EXPECT_EQ(text.value("s" + std::to_string(process), "k" + std::to_string(i)), "1") << process << " " << i;
    EXPECT_TRUE(text.bytes().starts_with("; kept\n"));
    EXPECT_EQ(names_in(folder), (std::set<std::string>{"a.ini"}));
}

TEST(IniStore, a_file_larger_than_any_profile_is_neither_read_nor_touched) {
    const temporary_folder folder;
    const std::string bytes = "[a]\nkey=1\n;" + std::string(4u << 20, 'x');
    const std::string name = folder.write("a.ini", bytes);
    ini_store store;
    EXPECT_EQ(store.file(name).value("a", "key"), std::nullopt);
    store.write(name, "a", "key", "2");
    EXPECT_EQ(folder.read("a.ini"), bytes);
}

TEST(IniStore, a_value_that_would_make_the_file_unreadable_is_not_written) {
    const temporary_folder folder;
    const std::string name = folder.write("a.ini", "[a]\nkey=1\n");
    ini_store store;
    store.write(name, "a", "key", std::string(4u << 20, 'x'));
    EXPECT_EQ(folder.read("a.ini"), "[a]\nkey=1\n");
    EXPECT_EQ(store.file(name).value("a", "key"), "1");
}

TEST(IniStore, a_folder_in_the_place_of_the_file_is_left_alone) {
    const temporary_folder folder;
    const std::string name = folder.make_folder("a.ini");
    ini_store store;
    EXPECT_EQ(store.file(name).value("a", "key"), std::nullopt);
    store.write(name, "a", "key", "1");
    EXPECT_EQ(names_in(folder), (std::set<std::string>{"a.ini"}));
}

TEST(IniStore, a_folder_that_is_missing_takes_no_file) {
    const temporary_folder folder;
    ini_store store;
    store.write(folder / "missing/a.ini", "a", "key", "1");
    EXPECT_FALSE(folder.has("missing"));
}

} // namespace
