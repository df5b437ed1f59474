#pragma once

// What a program prints, line by line.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

class line_splitter {
public:
    // take: gets each line without its end.
    explicit line_splitter(std::function<void(std::string_view)> take_line) : take(std::move(take_line)) {}

    // The next bytes, in pieces of any size. A line longer than longest_line comes in parts.
    void add(std::string_view bytes);
    // The end: a last line that lacks its end is a line too.
    void finish();

private:
    static constexpr std::size_t longest_line = std::size_t{1} << 20U;
    void hand_out();

    std::function<void(std::string_view)> take;
    std::string gathered;
};
