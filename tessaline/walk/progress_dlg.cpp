// What the user sees while the conversion runs.

#include "tessaline/walk/progress_dlg.h"

#include "platform/platform.h"
#include "qlw/text_format.h"
#include "tessaline/state/run_state.h"

#include <algorithm>

void cl_skp_progress_dlg::DoModal() {
    platform::run_with_progress_window("Tessaline Progress",
                                       [this](platform::progress_window& opened) { OnInitDialog(opened); });
}

void cl_skp_progress_dlg::OnInitDialog(platform::progress_window& opened) {
    window = &opened;
    window->set_percent(0);
    conversion();
    window = nullptr;
}

void cl_skp_progress_dlg::show_percent(int percent) {
    if (!window)
        return;
    window->set_title(" Converting Model Geometry");
    window->set_percent(std::clamp(percent, 0, 100));
    window->set_text(format_text(" %d%% Complete,  Please Wait...", percent).value_or(std::string()));
}

void update_progress(int percent) {
    if (progress_dialog)
        progress_dialog->show_percent(percent);
}
