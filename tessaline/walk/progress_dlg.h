#pragma once

// The one window of a run. The conversion takes place while the window is being set up; no input is ever read from it,
// so a run cannot be stopped.

#include <functional>
#include <utility>

namespace platform {
class progress_window;
}

class cl_skp_progress_dlg {
public:
    // work: the conversion. The dialog knows no more of it, so that the walk below can know the dialog.
    explicit cl_skp_progress_dlg(std::function<void()> work) : conversion(std::move(work)) {}

    // Opens the window, runs the conversion and closes it. A window that cannot be opened ends the
    // run without a conversion and without a word.
    void DoModal();

    // What happens while the window is set up: the bar at 0, then the whole conversion.
    void OnInitDialog(platform::progress_window& opened);

    // Shows a percentage. Does nothing while the window is not open.
    void show_percent(int percent);

private:
    std::function<void()> conversion;
    platform::progress_window* window = nullptr;
};

// Tells the user how far the walk is. percent: 0 to 100; more, which a walk that meets content twice gives, fills the
// bar. Does nothing while there is no dialog.
void update_progress(int percent);
