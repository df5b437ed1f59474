#pragma once

// How a message stands on a console.

#include <string>
#include <string_view>

namespace platform {

// "title: text", or the text alone if the title is empty, with a line feed at the end.
std::string message_line(std::string_view title, std::string_view text);

} // namespace platform
