#pragma once

// What was reported while the object lives: tracing is enabled and every line goes to a log file of the test's own.
// Dialogs are answered with OK.

#include "tests/support/answering_desktop.h"
#include "tests/support/temporary_folder.h"

#include <iosfwd>
#include <set>
#include <string>
#include <vector>

struct traced_line {
    std::string source;    // "qlw_globals"
    std::string function;  // as the reporter names itself
    std::string text;      // with "REPORT: " or "*** ERROR: " in front where the level puts it there
    bool is_shown = false; // to the user, in a dialog

    friend bool operator==(const traced_line&, const traced_line&) = default;
};

inline constexpr bool in_a_dialog = true; // the last member of a line that the user saw

void PrintTo(const traced_line& line, std::ostream* out);

class captured_trace {
public:
    captured_trace();
    ~captured_trace();
    captured_trace(const captured_trace&) = delete;
    captured_trace& operator=(const captured_trace&) = delete;

    // The lines so far, oldest first; they are forgotten by the call.
    std::vector<traced_line> take();

private:
    std::size_t line_count() const;

    const temporary_folder folder;
    const std::string log_name = folder / "trace.txt";
    answering_desktop desktop;
    std::set<std::size_t> shown_lines; // counted from 0
};
