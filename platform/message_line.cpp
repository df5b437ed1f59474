#include "platform/message_line.h"

namespace platform {

std::string message_line(std::string_view title, std::string_view text) {
    std::string line(title);
    if (!title.empty())
        line += ": ";
    line += text;
    if (line.empty() || line.back() != '\n')
        line += '\n';
    return line;
}

} // namespace platform
