#include "tests/support/windows/window_reader.h"

#include "platform/windows/resource_numbers.h"

#include <algorithm>

namespace {

constexpr int text_of_a_message_box = 0xffff;
constexpr UINT patience_milliseconds = 5000;

std::string text_of(HWND window) {
    std::string text(65536, '\0');
    DWORD_PTR size = 0;
    SendMessageTimeoutA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL,
                        patience_milliseconds, &size);
    text.resize(size);
    return text;
}

// The control that holds what the user is to read; null in other windows, such as that of the progress.
HWND text_control(HWND window) {
    const HWND of_an_error = GetDlgItem(window, CONTROL_MESSAGE);
    return of_an_error ? of_an_error : GetDlgItem(window, text_of_a_message_box);
}

} // namespace

BOOL CALLBACK window_reader::next_window(HWND window, LPARAM reader) {
    reinterpret_cast<window_reader*>(reader)->look_at(window);
    return TRUE;
}

void window_reader::close_open_windows() {
    std::erase_if(closed, [](HWND window) { return !IsWindow(window); });
    EnumWindows(next_window, reinterpret_cast<LPARAM>(this));
}

void window_reader::look_at(HWND window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner != process || !IsWindowVisible(window) || std::find(closed.begin(), closed.end(), window) != closed.end())
        return;
    const HWND control = text_control(window);
    if (!control)
        return;
    closed.push_back(window);
    const std::string title = text_of(window);
    texts += (title.empty() ? "" : title + ": ") + text_of(control);
    std::erase(texts, '\r');
    if (texts.back() != '\n')
        texts += '\n';
    PostMessageA(window, WM_COMMAND, IDOK, 0);
}
