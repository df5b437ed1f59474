// How the file of a plant comes into the batch folder.

#include "tessaline/plants/plant_file.h"

#include "qlw/qlw_text_files.h"
#include "qlw/qlw_trace.h"
#include "skp_ruby/base64.h"
#include "tessaline/files/paths.h"

#include <string_view>

namespace {

void write_plant_file(const std::string& path, std::string text) {
    cl_output_file file;
    if (!file.open_binary(path, open_failure::quiet))
        return;
    std::erase(text, '\n');
    const std::string bytes = decode_base64(text);
    file.write_data(bytes.data(), bytes.size());
}

void report_old_data(std::string_view name) {
    cl_trace::here("SketchUpReader::Write_Zyn_plant", trace_level::user_error)
        .report("'Old 64' base Plant found:\n%s\nPlease send this model to Quillon Systems for testing.", name);
}

} // namespace

std::string placed_plant_file(std::string_view file_name, const plant_description& plant,
                              const std::string& batch_folder) {
    const std::string name = platform::own_from_utf8(bare_name_of(file_name));
    const std::string folder = joined(batch_folder, plant_folder_name);
    platform::make_folder(folder); // no fault if it exists
    std::string path = joined(folder, name);
    if (platform::exists(path))
        return path;
    if (!plant.plant_data64.empty())
        write_plant_file(path, plant.plant_data64);
    else if (!plant.plant_data.empty())
        report_old_data(name);
    return path;
}
