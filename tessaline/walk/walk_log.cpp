// How the lines of the extraction log read.

#include "tessaline/walk/walk_log.h"

#include "qlw/qlw_globals.h"
#include "qlw/trace_state.h"

#include <cstddef>
#include <string>

namespace {

std::string indent_of(int depth) {
    return std::string(static_cast<std::size_t>(depth), ' ');
}

} // namespace

bool extraction_log_is_on() {
    return trace_state().extraction_log.is_open() && get_global_bool("bcomm_use_extraction_log_file");
}

void log_placement(std::string_view kind, std::string_view name, std::string_view layer_name,
                   const transform16& transform, int depth) {
    if (!extraction_log_is_on())
        return;
    cl_output_file& log = trace_state().extraction_log;
    if (depth == 0)
        log.write_string("\n");
    log.write_format("%s%s: %s,  layer: %s, loc: %s\n", indent_of(depth), kind, name, layer_name,
                     fpt_to_text(origin_image(transform)));
    log.flush();
}

void log_image_step(int depth) {
    if (!extraction_log_is_on())
        return;
    cl_output_file& log = trace_state().extraction_log;
    if (depth == 0)
        log.write_string("\n");
    else
        log.write_format("%sProcessImage\n", indent_of(depth));
    log.flush();
}

void log_image(std::string_view file_name, std::string_view layer_name, const fpt& position) {
    if (!extraction_log_is_on())
        return;
    cl_output_file& log = trace_state().extraction_log;
    log.write_format("Image: %s,  layer: %s, loc: %s\n", file_name, layer_name, fpt_to_text(position));
    log.flush();
}

void log_end_of_walk() {
    if (!extraction_log_is_on())
        return;
    trace_state().extraction_log.write_string("End of Process Entities");
    trace_state().extraction_log.flush();
}
