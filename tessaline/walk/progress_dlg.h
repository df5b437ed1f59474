#pragma once

// The one window of a run. The conversion takes place while the window is being set up; no input is ever read from it,
// so a run cannot be stopped.

namespace platform {
class progress_window;
}

class cl_skp_progress_dlg {
public:
    // Opens the window, runs the conversion of theApp's paths and closes it. A window that cannot be opened ends the
    // run without a conversion and without a word.
    void DoModal();

    // What happens while the window is set up: the bar at 0, then the whole conversion.
    void OnInitDialog(platform::progress_window& opened);

    // Shows a percentage. Does nothing while the window is not open.
    void show_percent(int percent);

private:
    platform::progress_window* window = nullptr;
};

// Tells the user how far the walk is. percent: 0 to 100; more, which a walk that meets content twice gives, fills the
// bar. Does nothing while there is no dialog.
void update_progress(int percent);
