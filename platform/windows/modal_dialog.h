#pragma once

// A dialog of the resource file, run until it ends.

#include <exception>

#include <windows.h>

namespace platform {

class modal_dialog {
public:
    modal_dialog() = default;
    modal_dialog(const modal_dialog&) = delete;
    modal_dialog& operator=(const modal_dialog&) = delete;
    virtual ~modal_dialog() = default;

    // Shows the dialog of that number above the window in front and comes back when it has ended. False if it cannot be
    // made. What set_up or press throws ends the dialog and comes out here: no exception may cross the system's frames.
    bool run(int resource_number);

protected:
    virtual void set_up() = 0;           // called once, before the dialog is seen
    virtual void press(int control) = 0; // a button; IDCANCEL if the window is closed
    void end();

    HWND window = nullptr;

private:
    static INT_PTR CALLBACK take_message(HWND dialog, UINT message, WPARAM word, LPARAM address);
    template<class Call>
    void guarded(Call call);

    bool is_noted = false;
    std::exception_ptr failure;
};

} // namespace platform
