#pragma once

// The places whose messages the user has silenced for the rest of the run. The list lives in the trace state.

#include <string>

class cl_trace;

// A place that reports.
struct cl_trace_source {
    std::string source_file;
    int line = 0;
    std::string function;
};

// Whether the place of the trace is silenced. Source file and line are compared exactly; the function does not count.
bool is_source_suppressed(const cl_trace& trace);

void add_suppressed_source(const cl_trace_source& source);
