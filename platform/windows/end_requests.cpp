// Events of the console by which this process is asked to end.

#include "platform/child_process.h"

#include <atomic>

#include <windows.h>

namespace platform {

namespace {

constexpr DWORD nothing_noted = ~DWORD{0};

// The system calls the handler in a thread of its own, which knows no object.
std::atomic<DWORD> noted_event = nothing_noted;

BOOL WINAPI note_event(DWORD event) {
    DWORD before = nothing_noted;
    noted_event.compare_exchange_strong(before, event);
    if (event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT)
        Sleep(INFINITE); // the process is ended when this returns, and some seconds later in any case
    return TRUE;
}

} // namespace

end_requests::end_requests() {
    SetConsoleCtrlHandler(note_event, TRUE);
}

end_requests::~end_requests() {
    SetConsoleCtrlHandler(note_event, FALSE);
    noted_event = nothing_noted;
}

std::string end_request() {
    switch (noted_event) {
    case nothing_noted:
        return {};
    case CTRL_C_EVENT:
        return "Ctrl-C";
    case CTRL_BREAK_EVENT:
        return "Ctrl-Break";
    default:
        return "the closing of the console";
    }
}

} // namespace platform
