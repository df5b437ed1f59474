#pragma once

// What the converter says on standard error while a run watches it: its progress, its trace, and messages for the user.
// Its status says nothing, so that these lines and the files are all there is to tell causes apart.

#include "tools/single_run/line_splitter.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class converter_words {
public:
    // on_progress: gets each percentage. on_trace: gets each line of the trace, with its line end.
    converter_words(std::function<void(int)> on_progress, std::function<void(std::string_view)> on_trace);

    void add(std::string_view bytes) { lines.add(bytes); }
    void finish() { lines.finish(); }

    // The first hundred lines for the user; those behind them are dropped.
    std::vector<std::string> messages;
    std::string refused_model;  // what the trace says of a model that cannot be opened; empty if it says nothing
    std::string refused_write;  // the first thing that the disk refused, with the reason; empty if nothing was refused
    bool has_begun = false;     // it told of its progress
    bool lost_options = false;  // the option file could not be rewritten
    bool out_of_memory = false; // it ended for want of memory

private:
    void take(std::string_view line);
    void take_trace(std::string_view line);

    std::function<void(int)> progress;
    std::function<void(std::string_view)> trace;
    line_splitter lines;
};
