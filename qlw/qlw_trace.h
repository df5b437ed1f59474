#pragma once

// The one way in which the program reports anything. A caller makes a cl_trace on the spot and reports through it:
//
//     cl_trace("qlw_std", __LINE__, "clear_folder", 2, 0).report("Cannot remove folder: '%s'", name);
//
// The level decides where the message goes:
//   0 debug output; 1 the same with "REPORT: "; 10 with "LOG: "; above 10 as 0
//   2, 3, 6, 7 the error dialog, then on; 5 the error dialog, then the text is thrown as a std::string
//   4 a developer's error: an error line in the debug output, no dialog
//   8 the error list if that is active, else the error dialog; 9 only if the log file is on

#include "qlw/text_format.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

class cl_trace {
public:
    // source_file: base name of the source file, as "qlw_std". line: below 1 if there is none. extra: carried along.
    cl_trace(std::string source_file, int line, std::string function, int level, int extra);
    cl_trace(const cl_trace&) = delete;
    cl_trace& operator=(const cl_trace&) = delete;
    virtual ~cl_trace();

    // Formats as printf does and routes the message by its level. A plain %g has six digits. A format that does not fit
    // its arguments is reported with a fixed text in front instead. Does nothing while tracing is not enabled, or while
    // this object is inside another report.
    template<class... Arguments>
    void report(std::string_view format, const Arguments&... arguments) {
        const std::array<text_argument, sizeof...(arguments)> list{text_argument(arguments)...};
        report_list(format, list);
    }

    void report_list(std::string_view format, std::span<const text_argument> arguments);

    // Writes one line with the location in front to the debug output, and to the log file if that is on. Afterwards the
    // object's source file, function and message are empty and its line is -1.
    void write_trace_line(std::string_view text);

    bool busy = false; // inside report; stops a message that comes back through the error dialog
    std::string source_file;
    int line;
    std::string function;
    std::string message;       // the finished text
    std::string location_text; // "     (Error occurred in %s line: %d)"
    std::string last_message;  // the three most recent errors of this object
    std::string previous_message;
    std::string oldest_message;
    int level;
    int extra; // no effect on the routing
};

// Whether a report at level 0 reaches anybody. For reports that a face causes: putting them into words costs more than
// the face does.
bool traces_are_heard();
