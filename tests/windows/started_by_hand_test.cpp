// The program itself, with its windows, as a user or a plug-in starts it.

#include "platform/windows/resource_numbers.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/support/temporary_folder.h"
#include "tests/windows/driven_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;

constexpr int text_of_a_box = 0xffff;
constexpr int name_edit = 0x480;
constexpr int name_box = 0x47c;
constexpr const char* open_title = "Tessaline, to create SKP XML file";
constexpr const char* save_title = "Tessaline, Debug Mode - to create SKP XML file";
constexpr const char* error_title = "Tessaline - Tessaline conversion Error";
constexpr const char* report_title = "Tessaline - Error";

std::string backslashed(std::string name) {
    for (char& c : name)
        c = c == '/' ? '\\' : c;
    return name;
}

// A user with settings and a temporary folder of his own, and a model with a square.
class StartedByHand : public testing::Test {
protected:
    std::string model() {
        sketchup::model_builder m;
        m.root().square(10);
        return written("a b/house.skp", m);
    }
    std::string written(const std::string& name, sketchup::model_builder& m) {
        const std::vector<std::uint8_t> bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
        return backslashed(folder.write(name, std::string(bytes.begin(), bytes.end())));
    }

    std::map<std::string, std::string> surrounding() {
        folder.make_folder("tmp");
        return {{"APPDATA", backslashed(folder / "settings")},
                {"TMP", backslashed(folder / "tmp")},
                {"TEMP", backslashed(folder / "tmp")}};
    }

    static void answer(driven_program& program, const std::string& title, const std::string& name) {
        const HWND dialog = program.dialog(title);
        const int control = GetDlgItem(dialog, name_box) ? name_box : name_edit;
        if (!name.empty())
            write(dialog, control, name);
        press(dialog, IDOK);
    }

    temporary_folder folder;
};

TEST_F(StartedByHand, asks_for_both_paths_and_converts) {
    const std::string name = model();
    driven_program program("tessaline", {}, surrounding());
    answer(program, open_title, name);
    answer(program, save_title, {}); // the name offered
    EXPECT_EQ(program.status(), 0u);
    EXPECT_TRUE(folder.has("a b/house.xml"));
    EXPECT_THAT(folder.read("settings/Quillon Systems/Tessaline.ini"), HasSubstr("LastSKP=" + name));
}

// The model of the last time, as a program of 32 bits has left it: in a view of the registry that is tried second.
class model_of_the_last_time {
public:
    explicit model_of_the_last_time(const std::string& name) {
        DWORD was_new = 0;
        HKEY key = nullptr;
        if (RegCreateKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Quillon Systems\\QLW DEBUG", 0, nullptr, 0,
                            KEY_ALL_ACCESS | KEY_WOW64_32KEY, nullptr, &key, &was_new) != ERROR_SUCCESS)
            return;
        is_made = was_new == REG_CREATED_NEW_KEY;
        if (is_made)
            RegSetValueExA(key, "LastSKP", 0, REG_SZ, reinterpret_cast<const BYTE*>(name.c_str()),
                           static_cast<DWORD>(name.size() + 1));
        RegCloseKey(key);
    }
    model_of_the_last_time(const model_of_the_last_time&) = delete;
    model_of_the_last_time& operator=(const model_of_the_last_time&) = delete;
    ~model_of_the_last_time() {
        if (!is_made)
            return;
        RegDeleteKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Quillon Systems\\QLW DEBUG", KEY_WOW64_32KEY, 0);
        RegDeleteKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Quillon Systems", KEY_WOW64_32KEY, 0); // if it is empty
    }

    bool is_made = false;
};

TEST_F(StartedByHand, offers_the_model_of_the_last_time) {
    const std::string name = model();
    const model_of_the_last_time last(name);
    if (!last.is_made)
        GTEST_SKIP() << "only an administrator may write there, and nothing of the user's is changed";
    driven_program program("tessaline", {}, surrounding());
    const HWND dialog = program.dialog(open_title);
    const int control = GetDlgItem(dialog, name_box) ? name_box : name_edit;
    EXPECT_TRUE(comes_true([&] { return text_of(dialog, control).ends_with("house.skp"); }));
    press(dialog, IDCANCEL);
    EXPECT_EQ(program.status(), 0u);
}

TEST_F(StartedByHand, a_dismissed_question_for_the_stream_ends_it_without_a_word) {
    driven_program program("tessaline", {}, surrounding());
    answer(program, open_title, model());
    press(program.dialog(save_title), IDCANCEL);
    EXPECT_EQ(program.status(), 0u);
    EXPECT_FALSE(folder.has("a b/house.xml"));
}

TEST_F(StartedByHand, a_missing_model_is_told_of_and_the_report_goes_to_the_clipboard) {
    empty_clipboard();
    const std::string missing = backslashed(folder / "missing.qlm");
    driven_program program("tessaline", {missing, backslashed(folder / "out.txt")}, surrounding());
    const HWND message = program.dialog(error_title);
    EXPECT_THAT(text_of(message, CONTROL_MESSAGE), HasSubstr("Could not find input filename " + missing + ".\r\n"));
    EXPECT_THAT(text_of(message, CONTROL_MESSAGE), HasSubstr("\r\n    Click More to send message to Support."));
    press(message, CONTROL_MORE);
    EXPECT_TRUE(comes_true([&] { return !IsWindow(message); }));
    const HWND report = program.dialog(report_title);
    EXPECT_THAT(text_of(report, CONTROL_MESSAGE), HasSubstr("(Error occurred in Tessaline line: "));
    // A look into the clipboard would keep the program from it.
    const DWORD before = GetClipboardSequenceNumber();
    press(report, CONTROL_COPY);
    EXPECT_TRUE(comes_true([&] { return GetClipboardSequenceNumber() != before; }));
    const std::string copied = clipboard_text();
    EXPECT_THAT(copied, HasSubstr("Could not find input filename " + missing + "."));
    EXPECT_THAT(copied, HasSubstr("\r\n     #Product: 'Tessaline'\r\n"));
    EXPECT_THAT(copied, HasSubstr("\r\n     #Windows: 'Windows "));
    press(report, IDOK);
    EXPECT_EQ(program.status(), 0u);
}

TEST_F(StartedByHand, a_name_that_the_system_does_not_take_is_called_too_long) {
    const std::string name = "C:\\" + std::string(260, 'a') + ".qlm";
    driven_program program("tessaline", {name, backslashed(folder / "out.txt")}, surrounding());
    const HWND message = program.dialog(error_title);
    EXPECT_THAT(text_of(message, CONTROL_MESSAGE),
                HasSubstr("\r\nIts name has 267 characters, more than the 259 that the system takes."));
    press(message, IDOK);
    EXPECT_EQ(program.status(), 0u);
}

TEST_F(StartedByHand, the_marker_file_shows_what_the_parent_has_passed) {
    const auto around = surrounding();
    folder.write("tmp/qlw_show_command_line", "");
    const std::string name = model();
    driven_program program("tessaline", {name}, around);
    const HWND line = program.dialog("TEMP/qlw_show_command_line found");
    EXPECT_THAT(text_of(line, text_of_a_box), HasSubstr("tessaline.exe\" \"" + name + "\""));
    press(line, IDOK);
    const HWND input = program.dialog("sin");
    EXPECT_EQ(text_of(input, text_of_a_box), name);
    press(input, IDOK);
    const HWND stream = program.dialog("sout");
    EXPECT_EQ(text_of(stream, text_of_a_box), backslashed(folder / "a b/batch_file.txt"));
    press(stream, IDOK);
    EXPECT_EQ(program.status(), 0u);
    EXPECT_TRUE(folder.has("a b/batch_file.txt"));
}

TEST_F(StartedByHand, the_progress_dialog_shows_percentages_and_goes) {
    sketchup::model_builder m;
    for (int i = 0; i < 4000; ++i)
        m.root().square(10);
    const std::string name = written("house.skp", m);
    driven_program program("tessaline", {name}, surrounding());
    // It is a matter of luck which percentages a look from outside meets.
    HWND dialog = nullptr;
    ASSERT_TRUE(comes_true([&] { return (dialog = program.window_with(" Converting Model Geometry")) != nullptr; }));
    const HWND label = GetDlgItem(dialog, CONTROL_PROGRESS_TEXT);
    EXPECT_TRUE(
        comes_true([&] { return caption_of(label).ends_with("% Complete,  Please Wait...") || !IsWindow(dialog); }));
    EXPECT_EQ(program.status(), 0u);
    EXPECT_FALSE(program.has_dialog());
    EXPECT_TRUE(folder.has("batch_file.txt"));
}

TEST_F(StartedByHand, help_and_version_come_out_of_a_pipe) {
    driven_program version("tessaline", {"--version"}, surrounding());
    EXPECT_THAT(version.line(), testing::StartsWith("Tessaline "));
    EXPECT_EQ(version.status(), 0u);
    driven_program help("tessaline", {"--help"}, surrounding());
    EXPECT_THAT(help.line(), HasSubstr("usage: tessaline "));
    EXPECT_EQ(help.status(), 0u);
}

} // namespace
