#pragma once

// Progress for a program that watches this one.

#include "platform/platform.h"

#include <functional>
#include <string_view>
#include <utility>

namespace platform {

// A line "progress 42" for each percentage that differs from the one before.
class progress_lines : public progress_window {
public:
    using sink = std::function<void(std::string_view)>;
    explicit progress_lines(sink write_text) : write(std::move(write_text)) {}

    void set_title(std::string_view) override {}
    void set_percent(int percent) override;
    void set_text(std::string_view) override {}

private:
    sink write;
    int told = -1;
};

} // namespace platform
