// Runs dialogs of the resource file.

#include "platform/windows/modal_dialog.h"

#include "platform/windows/open_windows.h"

#include <commctrl.h>

namespace platform {

namespace {

// The classes of the controls that dialogs are made of.
void make_controls_known() {
    constexpr DWORD standard_classes = 255;
    const INITCOMMONCONTROLSEX wanted = {sizeof wanted, standard_classes};
    InitCommonControlsEx(&wanted);
}

} // namespace

bool modal_dialog::run(int resource_number) {
    make_controls_known();
    const INT_PTR result = DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource_number), front_window(),
                                           take_message, reinterpret_cast<LPARAM>(this));
    if (is_noted)
        note_closed_window();
    if (failure)
        std::rethrow_exception(failure);
    return result > 0;
}

void modal_dialog::end() {
    EndDialog(window, IDCANCEL);
}

template<class Call>
void modal_dialog::guarded(Call call) {
    try {
        call();
    } catch (...) {
        failure = std::current_exception();
        end();
    }
}

INT_PTR CALLBACK modal_dialog::take_message(HWND dialog, UINT message, WPARAM word, LPARAM address) {
    if (message == WM_INITDIALOG) {
        auto& self = *reinterpret_cast<modal_dialog*>(address);
        SetWindowLongPtrA(dialog, DWLP_USER, address);
        self.window = dialog;
        self.guarded([&] {
            note_open_window(dialog);
            self.is_noted = true;
            self.set_up();
        });
        return TRUE;
    }
    auto* const self = reinterpret_cast<modal_dialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
    if (message != WM_COMMAND || !self)
        return FALSE;
    self->guarded([&] { self->press(LOWORD(word)); });
    return TRUE;
}

} // namespace platform
