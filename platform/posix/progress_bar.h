#pragma once

// The progress window as a line of text.

#include "platform/platform.h"

#include <functional>
#include <string>
#include <string_view>

namespace platform {

class progress_bar : public progress_window {
public:
    using sink = std::function<void(std::string_view)>;

    // write: where the text goes. redraws: whether that is a terminal, where the bar is drawn in place, with the cursor
    // at its start, and gone when it is destroyed. If not, the last state is written once, when the bar is destroyed.
    progress_bar(std::string_view caption, sink write, bool redraws);
    progress_bar(const progress_bar&) = delete;
    progress_bar& operator=(const progress_bar&) = delete;
    ~progress_bar() override;

    void set_title(std::string_view title) override;
    void set_percent(int percent) override;
    void set_text(std::string_view text) override;

private:
    std::string line() const;
    void draw() const;

    std::string title;
    std::string text;
    int percent = 0;
    sink write;
    bool redraws;
};

} // namespace platform
