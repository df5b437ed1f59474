#include "tests/windows/driven_program.h"

#include "platform/platform.h"
#include "platform/windows/system_words.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace {

constexpr int patience = 30000; // milliseconds
constexpr int time_between_looks = 5;

std::string folder_of_programs() {
    const std::string path = platform::program_path();
    return path.substr(0, path.rfind('\\'));
}

std::string quoted(const std::string& argument) {
    return '"' + argument + '"';
}

// One end is handed down to the program.
struct two_ends {
    platform::system_handle own;
    platform::system_handle theirs;
};

two_ends made_pipe(bool they_write) {
    SECURITY_ATTRIBUTES handed_down = {sizeof handed_down, nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    EXPECT_TRUE(CreatePipe(&reading, &writing, &handed_down, 0));
    two_ends ends = they_write ? two_ends{platform::owned(reading), platform::owned(writing)}
                               : two_ends{platform::owned(writing), platform::owned(reading)};
    SetHandleInformation(ends.own.get(), HANDLE_FLAG_INHERIT, 0);
    return ends;
}

// The block of variables for a new process: that of this one, with the changes.
std::string environment_with(const std::map<std::string, std::string>& changes) {
    std::string block;
    char* const own = GetEnvironmentStringsA();
    for (const char* variable = own; *variable != '\0'; variable += std::strlen(variable) + 1) {
        const std::string text = variable;
        if (!changes.contains(text.substr(0, text.find('='))))
            block.append(text).append(1, '\0');
    }
    FreeEnvironmentStringsA(own);
    for (const auto& [name, value] : changes)
        block.append(name + "=" + value).append(1, '\0');
    return block.append(1, '\0');
}

struct search {
    DWORD process_id;
    std::optional<std::string> title; // any if there is none
    HWND found;
};

BOOL CALLBACK look_at(HWND window, LPARAM address) {
    auto& wanted = *reinterpret_cast<search*>(address);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner != wanted.process_id || !IsWindowVisible(window) || (wanted.title && caption_of(window) != *wanted.title))
        return TRUE;
    wanted.found = window;
    return FALSE;
}

HWND found_window(DWORD process_id, const std::optional<std::string>& title) {
    search wanted = {process_id, title, nullptr};
    EnumWindows(look_at, reinterpret_cast<LPARAM>(&wanted));
    return wanted.found;
}

} // namespace

bool comes_true(const std::function<bool()>& question) {
    for (int waited = 0; waited < patience; waited += time_between_looks) {
        if (question())
            return true;
        Sleep(time_between_looks);
    }
    return false;
}

driven_program::driven_program(const std::string& name, const std::vector<std::string>& arguments,
                               const std::map<std::string, std::string>& environment) {
    const std::string program = folder_of_programs() + "\\" + name + ".exe";
    std::string command_line = quoted(program);
    for (const std::string& argument : arguments)
        command_line += " " + quoted(argument);
    two_ends from_it = made_pipe(true);
    two_ends to_it = made_pipe(false);
    STARTUPINFOA start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = from_it.theirs.get();
    start.hStdError = from_it.theirs.get();
    start.hStdInput = to_it.theirs.get();
    std::string variables = environment_with(environment);
    PROCESS_INFORMATION started = {};
    if (!CreateProcessA(program.c_str(), command_line.data(), nullptr, nullptr, TRUE, 0, variables.data(), nullptr,
                        &start, &started))
        ADD_FAILURE() << program << ": " << platform::words_for(GetLastError());
    CloseHandle(started.hThread);
    process = platform::owned(started.hProcess);
    process_id = started.dwProcessId;
    output = std::move(from_it.own);
    input = std::move(to_it.own);
}

driven_program::~driven_program() {
    TerminateProcess(process.get(), 1);
    WaitForSingleObject(process.get(), patience);
}

std::string driven_program::line() {
    std::string text;
    for (;;) {
        DWORD waiting = 0;
        char letter = 0;
        DWORD count = 0;
        const auto has_more = [&] {
            return !PeekNamedPipe(output.get(), nullptr, 0, nullptr, &waiting, nullptr) || waiting > 0;
        };
        if (!comes_true(has_more)) {
            ADD_FAILURE() << "no line comes";
            return text;
        }
        if (!ReadFile(output.get(), &letter, 1, &count, nullptr) || count == 0 || letter == '\n')
            return text;
        text += letter;
    }
}

void driven_program::go_on() {
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(input.get(), "\n", 1, &written, nullptr));
}

HWND driven_program::dialog(const std::string& title) {
    HWND window = nullptr;
    EXPECT_TRUE(comes_true([&] { return (window = window_with(title)) != nullptr; })) << title;
    return window;
}

HWND driven_program::window_with(const std::string& title) const {
    return found_window(process_id, title);
}

bool driven_program::has_dialog() const {
    return found_window(process_id, std::nullopt) != nullptr;
}

DWORD driven_program::status() {
    DWORD code = 0;
    EXPECT_EQ(WaitForSingleObject(process.get(), patience), WAIT_OBJECT_0) << "it does not end";
    GetExitCodeProcess(process.get(), &code);
    return code;
}

std::string caption_of(HWND window) {
    std::array<wchar_t, 512> text{};
    InternalGetWindowText(window, text.data(), static_cast<int>(text.size()));
    std::string narrow;
    for (const wchar_t* letter = text.data(); *letter != L'\0'; ++letter)
        narrow += static_cast<char>(*letter);
    return narrow;
}

std::string text_of(HWND dialog, int control) {
    std::array<char, 8192> text{};
    DWORD_PTR size = 0;
    EXPECT_NE(SendMessageTimeoutA(GetDlgItem(dialog, control), WM_GETTEXT, text.size(),
                                  reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL, patience, &size),
              0);
    return std::string(text.data(), size);
}

bool is_shown(HWND dialog, int control) {
    return IsWindowVisible(GetDlgItem(dialog, control));
}

void press(HWND dialog, int button) {
    EXPECT_TRUE(PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0));
}

void write(HWND dialog, int control, const std::string& text) {
    DWORD_PTR ignored = 0;
    EXPECT_NE(SendMessageTimeoutA(GetDlgItem(dialog, control), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()),
                                  SMTO_NORMAL, patience, &ignored),
              0);
}

std::string clipboard_text() {
    EXPECT_TRUE(comes_true([] { return OpenClipboard(nullptr) != FALSE; }));
    const HANDLE block = GetClipboardData(CF_TEXT);
    const char* const text = block ? static_cast<const char*>(GlobalLock(block)) : nullptr;
    const std::string copied = text ? text : "";
    if (text)
        GlobalUnlock(block);
    CloseClipboard();
    return copied;
}

void empty_clipboard() {
    EXPECT_TRUE(comes_true([] { return OpenClipboard(nullptr) != FALSE; }));
    EmptyClipboard();
    CloseClipboard();
}
