#include "tests/support/temporary_folder.h"
#include "tests/windows/driven_program.h"

#include <gtest/gtest.h>

namespace {

// Where the dialogs keep the name, the patterns and the mark for "read only".
constexpr int name_edit = 0x480;
constexpr int name_box = 0x47c;
constexpr int pattern_box = 0x470;
constexpr int read_only_mark = 0x410;

int name_control(HWND dialog) {
    return GetDlgItem(dialog, name_box) ? name_box : name_edit;
}

std::string backslashed(std::string name) {
    for (char& c : name)
        c = c == '/' ? '\\' : c;
    return name;
}

HWND ready_dialog(driven_program& desk) {
    const HWND dialog = desk.dialog("Which file");
    EXPECT_TRUE(comes_true([&] { return GetDlgItem(dialog, name_control(dialog)) != nullptr; }));
    return dialog;
}

TEST(OpenDialog, offers_name_and_filter_and_gives_what_is_chosen) {
    const temporary_folder folder;
    const std::string name = backslashed(folder.write("house.skp", "x"));
    const std::string other = backslashed(folder.write("other.skp", "x"));
    driven_program desk("window_desk", {"open", name});
    const HWND dialog = ready_dialog(desk);
    EXPECT_TRUE(comes_true([&] { return text_of(dialog, name_control(dialog)).ends_with("house.skp"); }));
    EXPECT_EQ(text_of(dialog, pattern_box), "SketchUp Files (*.skp)");
    EXPECT_EQ(SendMessageA(GetDlgItem(dialog, read_only_mark), BM_GETCHECK, 0, 0), BST_CHECKED);
    write(dialog, name_control(dialog), other);
    press(dialog, IDOK);
    EXPECT_EQ(desk.line(), other);
}

TEST(OpenDialog, adds_the_ending) {
    const temporary_folder folder;
    const std::string name = backslashed(folder.write("house.skp", "x"));
    driven_program desk("window_desk", {"open", ""});
    const HWND dialog = ready_dialog(desk);
    write(dialog, name_control(dialog), name.substr(0, name.size() - 4));
    press(dialog, IDOK);
    EXPECT_EQ(desk.line(), name);
}

TEST(OpenDialog, tells_that_it_was_dismissed) {
    driven_program desk("window_desk", {"open", ""});
    press(ready_dialog(desk), IDCANCEL);
    EXPECT_EQ(desk.line(), "dismissed");
}

TEST(OpenDialog, opens_even_if_the_name_offered_cannot_be_one) {
    driven_program desk("window_desk", {"open", "C:\\a<b>|c\\d.skp"});
    press(ready_dialog(desk), IDCANCEL);
    EXPECT_EQ(desk.line(), "dismissed");
}

TEST(SaveDialog, gives_the_name_of_a_new_file_at_once) {
    const temporary_folder folder;
    const std::string name = backslashed(folder / "new.skp");
    driven_program desk("window_desk", {"save", name});
    const HWND dialog = ready_dialog(desk);
    EXPECT_TRUE(comes_true([&] { return text_of(dialog, name_control(dialog)).ends_with("new.skp"); }));
    press(dialog, IDOK);
    EXPECT_EQ(desk.line(), name);
}

TEST(SaveDialog, asks_before_an_old_file_is_replaced) {
    const temporary_folder folder;
    const std::string name = backslashed(folder.write("old.skp", "x"));
    driven_program desk("window_desk", {"save", name});
    const HWND dialog = ready_dialog(desk);
    EXPECT_TRUE(comes_true([&] { return text_of(dialog, name_control(dialog)).ends_with("old.skp"); }));
    press(dialog, IDOK);
    HWND question = nullptr;
    EXPECT_TRUE(
        comes_true([&] { return (question = GetLastActivePopup(dialog)) != dialog && GetDlgItem(question, IDNO); }));
    press(question, IDNO);
    EXPECT_TRUE(comes_true([&] { return !IsWindow(question); }));
    EXPECT_TRUE(IsWindow(dialog));
    press(dialog, IDOK);
    EXPECT_TRUE(
        comes_true([&] { return (question = GetLastActivePopup(dialog)) != dialog && GetDlgItem(question, IDYES); }));
    press(question, IDYES);
    EXPECT_EQ(desk.line(), name);
}

} // namespace
