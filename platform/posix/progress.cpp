// Shows how far a run is: a bar on standard error.

#include "platform/posix/progress_bar.h"
#include "platform/progress_lines.h"

#include <algorithm>
#include <utility>

namespace platform {

progress_bar::progress_bar(std::string_view caption, sink write_text, bool redraws_in_place)
    : title(caption), write(std::move(write_text)), redraws(redraws_in_place) {
    draw();
}

progress_bar::~progress_bar() {
    write(redraws ? std::string("\r\x1b[K") : line() + "\n");
}

void progress_bar::set_title(std::string_view new_title) {
    title = new_title;
    draw();
}

void progress_bar::set_percent(int new_percent) {
    percent = std::clamp(new_percent, 0, 100);
    draw();
}

void progress_bar::set_text(std::string_view new_text) {
    text = new_text;
    draw();
}

// "title [##########..........] text"; the texts come with blanks of their own, which a line does not need.
std::string progress_bar::line() const {
    constexpr int width = 20; // title and text of a run stay inside 80 columns
    const auto filled = static_cast<std::size_t>(percent * width / 100);
    const auto trimmed = [](std::string_view part) {
        const auto start = part.find_first_not_of(' ');
        return start == std::string_view::npos ? std::string_view() : part.substr(start);
    };
    std::string drawn(trimmed(title));
    drawn += drawn.empty() ? "[" : " [";
    drawn.append(filled, '#').append(width - filled, '.').append("]");
    if (const auto words = trimmed(text); !words.empty())
        drawn.append(" ").append(words);
    return drawn;
}

void progress_bar::draw() const {
    // The terminal cuts what is too long for it; a bar of two lines could not be taken back. The cursor goes back to
    // the start of the line, so that a message can take the bar's place.
    if (redraws)
        write("\r\x1b[?7l" + line() + "\x1b[K\x1b[?7h\r");
}

bool run_with_progress_window(std::string_view caption, const std::function<void(progress_window&)>& work) {
    if (is_unattended()) {
        progress_lines lines(write_standard_error);
        work(lines);
        return true;
    }
    progress_bar bar(caption, write_standard_error, is_terminal(standard_stream::error));
    work(bar);
    return true;
}

} // namespace platform
