#include "qlw/suppression_list.h"

#include "qlw/qlw_trace.h"
#include "qlw/trace_state.h"

#include <algorithm>

bool is_source_suppressed(const cl_trace& trace) {
    const auto& sources = trace_state().suppressed_sources;
    return std::any_of(sources.begin(), sources.end(), [&](const cl_trace_source& source) {
        return source.source_file == trace.source_file && source.line == trace.line;
    });
}

void add_suppressed_source(const cl_trace_source& source) {
    trace_state().suppressed_sources.push_back(source);
}
