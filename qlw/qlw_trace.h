#pragma once

// The one way in which the program reports anything. A caller makes a cl_trace on the spot and reports through it:
//
//     cl_trace::here("get_temporary_directory", trace_level::user_error).report("Cannot create: '%s'", name);
//
// A message stands under the stem of the source file that holds the line, or under another name that it is known by:
//
//     cl_trace("qlw_std", __LINE__, "clear_folder", trace_level::user_error, 0).report("%s", refusal);

#include "qlw/text_format.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

// Where a message goes. 3, 6 and 7 are as user_error, what is above log as plain.
namespace trace_level {
inline constexpr int plain = 0;           // debug output
inline constexpr int report = 1;          // the same, with "REPORT: "
inline constexpr int user_error = 2;      // the error dialog, then on
inline constexpr int developer_error = 4; // an error line in the debug output, no dialog
inline constexpr int fatal = 5;           // the error dialog, then the text is thrown as a std::string
inline constexpr int listed_error = 8;    // the error list if that is active, else the error dialog
inline constexpr int log_only = 9;        // only if the log file is on
inline constexpr int log = 10;            // debug output, with "LOG: "
} // namespace trace_level

class cl_trace {
public:
    // source_file: base name of the source file, as "qlw_std". line: below 1 if there is none. extra: carried along.
    cl_trace(std::string source_file, int line, std::string function, int level, int extra);

    // One that stands under the stem of the file that calls, "lamps" for ".../walk/lamps.cpp", and its line.
    static cl_trace here(std::string function, int level, std::string_view file = __builtin_FILE(),
                         int line = __builtin_LINE());

    cl_trace(const cl_trace&) = delete;
    cl_trace& operator=(const cl_trace&) = delete;
    virtual ~cl_trace();

    // Puts a title of its own over the error dialog of this object's messages. Gives the object, to report through.
    cl_trace& titled(std::string text);

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
    std::string title;         // of the error dialog; empty for the usual one
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
