// The error dialogs of the resource file.

#include "platform/platform.h"

#include "platform/windows/modal_dialog.h"
#include "platform/windows/resource_numbers.h"

namespace platform {

namespace {

static_assert(static_cast<int>(error_dialog_kind::message) == DIALOG_ERROR);
static_assert(static_cast<int>(error_dialog_kind::report) == DIALOG_ERROR_REPORT);

class error_window : public modal_dialog {
public:
    explicit error_window(const error_dialog_view& shown) : view(shown) {}

    error_dialog_answer answer;

private:
    void set_up() override {
        SetWindowTextA(window, view.caption.c_str());
        SetDlgItemTextA(window, CONTROL_MESSAGE, view.text.c_str());
        if (view.offers_silence)
            return;
        const HWND check_box = GetDlgItem(window, CONTROL_SILENCE);
        ShowWindow(check_box, SW_HIDE);
        EnableWindow(check_box, FALSE); // its letter would still reach it
    }

    // Only OK silences: who closes the window has decided nothing.
    void press(int control) override {
        switch (control) {
        case IDOK:
            answer.silences_place = IsDlgButtonChecked(window, CONTROL_SILENCE) == BST_CHECKED;
            end();
            break;
        case IDCANCEL:
            end();
            break;
        case CONTROL_MORE:
            answer.button = error_dialog_button::more;
            end();
            break;
        case CONTROL_COPY:
            view.on_copy();
            break;
        default:
            break;
        }
    }

    const error_dialog_view& view;
};

} // namespace

error_dialog_answer show_error_dialog(const error_dialog_view& view) {
    if (is_unattended()) {
        std::string text = view.text;
        std::erase(text, '\r');
        message_box(view.caption, text);
        return {};
    }
    error_window dialog(view);
    dialog.answer.was_shown = dialog.run(static_cast<int>(view.kind));
    return dialog.answer;
}

} // namespace platform
