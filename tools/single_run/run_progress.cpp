#include "tools/single_run/run_progress.h"

#include "platform/platform.h"
#include "text/one_line.h"

void run_progress::tell_status(std::string_view text) const {
    if (wanted)
        platform::write_standard_output("openjd_status: " + on_one_line(text) + '\n');
}

void run_progress::tell_percent(int percent) {
    if (!wanted || percent <= told)
        return;
    told = percent;
    platform::write_standard_output("openjd_progress: " + std::to_string(percent) + '\n');
}
