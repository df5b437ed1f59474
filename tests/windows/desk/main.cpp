// Shows the one window that its arguments name, tells on standard output what came of it, and waits for a line on
// standard input where a test wants to look.

#include "platform/platform.h"
#include "platform/windows/resource_numbers.h"
#include "qlw/fast_image.h"
#include "qlw/qlw_trace.h"
#include "qlw/trace_state.h"

#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>

#include <windows.h>

#include <commctrl.h>

namespace {

using arguments = std::vector<std::string>;

void tell(const std::string& line) {
    platform::write_standard_output(line + "\n");
}

void wait_for_a_line() {
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    char letter = 0;
    for (DWORD count = 1; letter != '\n' && count == 1;)
        if (!ReadFile(input, &letter, 1, &count, nullptr))
            return;
}

// ---- the progress dialog

BOOL CALLBACK take_window(HWND window, LPARAM found) {
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND own_window() {
    HWND window = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), take_window, reinterpret_cast<LPARAM>(&window));
    return window;
}

std::string text_of(const RECT& area) {
    return std::to_string(area.left) + " " + std::to_string(area.top) + " " + std::to_string(area.right - area.left) +
           " " + std::to_string(area.bottom - area.top);
}

// Whether the control lies where the dialog units say, in the pixels of the dialog's font.
std::string place_of(HWND window, int control, POINT corner, SIZE size) {
    RECT area;
    GetWindowRect(GetDlgItem(window, control), &area);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
    RECT units = {corner.x, corner.y, size.cx, size.cy}; // each of the four is rounded by itself
    MapDialogRect(window, &units);
    const RECT wanted = {units.left, units.top, units.left + units.right, units.top + units.bottom};
    return text_of(area) == text_of(wanted) ? "in place" : text_of(area) + " and not " + text_of(wanted);
}

void tell_places(HWND window) {
    RECT units = {0, 0, 299, 51};
    RECT inside;
    MapDialogRect(window, &units);
    GetClientRect(window, &inside);
    tell("size " + std::string(text_of(inside) == text_of(units) ? "as it should be" : text_of(inside)));
    tell("bar " + place_of(window, CONTROL_PROGRESS_BAR, {7, 6}, {285, 14}));
    tell("text " + place_of(window, CONTROL_PROGRESS_TEXT, {7, 32}, {285, 10}));
    LOGFONTA font = {};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    tell("font " + std::string(font.lfFaceName));
}

void tell_bar(HWND window) {
    const HWND bar = GetDlgItem(window, CONTROL_PROGRESS_BAR);
    PBRANGE range = {};
    SendMessageA(bar, PBM_GETRANGE, 0, reinterpret_cast<LPARAM>(&range));
    const bool is_drawn = !GetUpdateRect(bar, nullptr, FALSE) &&
                          !GetUpdateRect(GetDlgItem(window, CONTROL_PROGRESS_TEXT), nullptr, FALSE);
    tell(std::to_string(SendMessageA(bar, PBM_GETPOS, 0, 0)) + " of " + std::to_string(range.iLow) + " to " +
         std::to_string(range.iHigh) + (is_drawn ? ", drawn" : ", not drawn"));
}

void show_progress(const arguments&) {
    const bool was_shown =
        platform::run_with_progress_window("Tessaline Progress", [](platform::progress_window& window) {
            tell_places(own_window());
            tell_bar(own_window());
            wait_for_a_line();
            for (const int percent : {1, 42, 42, 41, 100, 250}) {
                window.set_title(" Converting Model Geometry");
                window.set_percent(percent);
                window.set_text(" " + std::to_string(percent) + "% Complete,  Please Wait...");
                tell_bar(own_window());
                wait_for_a_line();
            }
        });
    tell(was_shown ? "closed" : "not shown");
}

void show_failing_progress(const arguments&) {
    try {
        platform::run_with_progress_window(
            "Tessaline Progress", [](platform::progress_window&) { throw std::runtime_error("out of the work"); });
    } catch (const std::runtime_error& failure) {
        tell(failure.what());
    }
}

// ---- errors and boxes

// error KIND SILENCE: KIND is "message" or "report"; SILENCE "offered" or "hidden".
void show_error(const arguments& words) {
    platform::error_dialog_view view;
    if (words.at(0) == "report")
        view.kind = platform::error_dialog_kind::report;
    view.caption = "Tessaline - Error";
    view.text = "first line\r\nsecond line";
    view.offers_silence = words.at(1) == "offered";
    view.on_copy = [] {
        const auto result = platform::set_clipboard_text("copied\r\ntext");
        tell(result == platform::clipboard_result::done ? "copied" : "not copied");
    };
    const platform::error_dialog_answer answer = platform::show_error_dialog(view);
    if (!answer.was_shown)
        tell("not shown");
    else
        tell(std::string(answer.button == platform::error_dialog_button::more ? "more" : "ok") +
             (answer.silences_place ? ", silenced" : ""));
}

void show_box(const arguments& words) {
    platform::message_box(words.at(0), words.at(1));
    tell("read");
}

void ask_for_a_pixel_outside(const arguments&) {
    cl_fast_image picture;
    picture.create(2, 2, 24);
    tell(std::to_string(picture.get_pixel(2, 0)));
}

void report_an_error(const arguments&) {
    trace_state().trace_enabled = true;
    cl_trace::here("report_an_error", trace_level::user_error).report("something is wrong");
    tell("reported");
}

// An error while the progress dialog is open, with "Copy": the clipboard is opened with the main window.
void show_error_over_progress(const arguments&) {
    platform::run_with_progress_window("Tessaline Progress", [](platform::progress_window&) {
        show_error({"report", "offered"});
    });
}

// ---- the clipboard

// Holds the clipboard until a line comes.
void hold_clipboard(const arguments&) {
    tell(OpenClipboard(nullptr) ? "held" : "not held");
    wait_for_a_line();
    CloseClipboard();
}

// ---- files

platform::file_question question_about(const arguments& words) {
    platform::file_question question;
    question.title = "Which file";
    question.default_extension = "skp";
    question.default_name = words.at(0);
    question.filter = "SketchUp Files (*.skp)|*.skp||";
    question.asks_before_overwriting = true;
    return question;
}

void ask_to_open(const arguments& words) {
    tell(platform::ask_for_file_to_open(question_about(words)).value_or("dismissed"));
}

void ask_to_save(const arguments& words) {
    tell(platform::ask_for_file_to_save(question_about(words)).value_or("dismissed"));
}

// hold FILE: locks it as the system's calls for ini files do, until a line comes.
void hold_file(const arguments& words) {
    const HANDLE file = CreateFileA(words.at(0).c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    OVERLAPPED from_the_start = {};
    tell(LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK, 0, MAXDWORD, MAXDWORD, &from_the_start) ? "held" : "not held");
    wait_for_a_line();
    CloseHandle(file);
    tell("let go");
}

// keep FILE: has it open so that nobody else may open it, until a line comes.
void keep_file(const arguments& words) {
    const HANDLE file =
        CreateFileA(words.at(0).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    tell(file != INVALID_HANDLE_VALUE ? "held" : "not held");
    wait_for_a_line();
    CloseHandle(file);
    tell("let go");
}

} // namespace

int main(int argc, char** argv) {
    const std::map<std::string, void (*)(const arguments&)> windows = {
        {"progress", show_progress}, {"failing_progress", show_failing_progress},
        {"error", show_error},       {"error_over_progress", show_error_over_progress},
        {"box", show_box},           {"pixel", ask_for_a_pixel_outside},
        {"report", report_an_error}, {"hold_clipboard", hold_clipboard},
        {"open", ask_to_open},       {"save", ask_to_save},
        {"hold", hold_file},         {"keep", keep_file},
    };
    windows.at(argc > 1 ? argv[1] : "")(arguments(argv + (argc > 2 ? 2 : argc), argv + argc));
    return 0;
}
