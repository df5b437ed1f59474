// The progress dialog of the resource file, in whose initialisation the work is done: it takes no message, so that
// whatever is to be seen has to be drawn at once.

#include "platform/platform.h"

#include "platform/progress_lines.h"
#include "platform/windows/modal_dialog.h"
#include "platform/windows/resource_numbers.h"

#include <algorithm>

#include <commctrl.h>

namespace platform {

namespace {

constexpr int full = 100;

class progress_dialog : public modal_dialog, public progress_window {
public:
    progress_dialog(std::string_view caption, const std::function<void(progress_window&)>& what)
        : title(caption), work(what) {}

    void set_title(std::string_view text) override { SetWindowTextA(window, std::string(text).c_str()); }

    // The bar of newer systems glides to a higher value in steps that messages bring, and goes to a lower one at once.
    // So it is sent one step too far and back; a full bar needs a longer range for that.
    void set_percent(int percent) override {
        const int shown = std::clamp(percent, 0, full);
        if (shown == full)
            set_range(full + 1);
        tell_bar(PBM_SETPOS, shown + 1, 0);
        tell_bar(PBM_SETPOS, shown, 0);
        if (shown == full)
            set_range(full);
        draw(bar());
    }

    void set_text(std::string_view text) override {
        const HWND label = GetDlgItem(window, CONTROL_PROGRESS_TEXT);
        SetWindowTextA(label, std::string(text).c_str());
        draw(label);
    }

private:
    void set_up() override {
        SetWindowTextA(window, title.c_str());
        set_range(full);
        tell_bar(PBM_SETPOS, 0, 0);
        ShowWindow(window, SW_SHOW);
        draw(window);
        work(*this);
        end();
    }

    void press(int) override {} // nothing is read from it

    // The system gathers what is drawn until a message is taken, unless it is told.
    static void draw(HWND what) {
        UpdateWindow(what);
        GdiFlush();
    }

    HWND bar() const { return GetDlgItem(window, CONTROL_PROGRESS_BAR); }
    void tell_bar(UINT message, int word, LPARAM address) const {
        SendMessageA(bar(), message, static_cast<WPARAM>(word), address);
    }
    void set_range(int highest) const { tell_bar(PBM_SETRANGE, 0, MAKELPARAM(0, highest)); }

    std::string title;
    const std::function<void(progress_window&)>& work;
};

} // namespace

bool run_with_progress_window(std::string_view caption, const std::function<void(progress_window&)>& work) {
    if (is_unattended()) {
        progress_lines lines(write_standard_error);
        work(lines);
        return true;
    }
    progress_dialog dialog(caption, work);
    return dialog.run(DIALOG_PROGRESS);
}

} // namespace platform
