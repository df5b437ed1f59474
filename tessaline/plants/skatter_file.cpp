// What the file of scattered components says.

#include "tessaline/plants/skatter_file.h"

#include "qlw/qlw_text_files.h"
#include "qlw/text_numbers.h"
#include "tessaline/files/paths.h"

namespace {

// Runs over the lines that are no comments.
void for_each_line(const std::string& path, const std::function<void(std::string&)>& use) {
    cl_input_file file;
    if (!file.open(path, open_failure::quiet, "skatter_file", __LINE__))
        return;
    std::string line;
    while (file.read_line(line))
        if (!line.starts_with('#'))
            use(line);
}

skatter_placement placement_from(std::string& line) {
    constexpr int unused_fields = 3;
    for (int field = 0; field < unused_fields; ++field)
        cl_input_file::read_field_csv(line);
    skatter_placement placement;
    placement.definition_name = cl_input_file::read_field_csv(line);
    for (double& element : placement.transform)
        element = double_value(cl_input_file::read_field_csv(line));
    return placement;
}

} // namespace

std::string skatter_file_path(const std::string& batch_folder) {
    return joined(batch_folder, "skatter_insts.txt");
}

void for_each_skatter_placement(const std::string& path, const std::function<void(const skatter_placement&)>& use) {
    for_each_line(path, [&use](std::string& line) { use(placement_from(line)); });
}

std::uint64_t skatter_line_count(const std::string& path) {
    std::uint64_t count = 0;
    for_each_line(path, [&count](std::string&) { ++count; });
    return count;
}
