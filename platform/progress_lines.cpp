#include "platform/progress_lines.h"

#include <algorithm>
#include <string>

namespace platform {

void progress_lines::set_percent(int percent) {
    const int shown = std::clamp(percent, 0, 100);
    if (shown == told)
        return;
    told = shown;
    write("progress " + std::to_string(shown) + '\n');
}

} // namespace platform
