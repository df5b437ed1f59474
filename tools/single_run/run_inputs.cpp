#include "tools/single_run/run_inputs.h"

#include "platform/platform.h"
#include "tools/single_run/setting_line.h"

#include <algorithm>
#include <array>
#include <set>

namespace {

// Names in a batch folder that belong to the run itself.
constexpr std::array own_names = {"geometry.qlm", "batch_file.txt", "tessaline-run.json", "tessaline-run.json.part"};

// The converter reads its command line as one text, in which these stand for switches even inside a name.
constexpr std::array switches = {" -load_all_layers", " -incl_edge_lines", " -incl_views",
                                 " -all_atts",        " -is_animation",    "-progress "};

bool can_be_passed(const std::string& folder) {
    const bool has_switch = std::any_of(switches.begin(), switches.end(),
                                        [&](const char* one) { return folder.find(one) != std::string::npos; });
    const bool breaks_quotes = folder.find(' ') != std::string::npos && folder.find('"') != std::string::npos;
    return !has_switch && !breaks_quotes && folder.find('\n') == std::string::npos;
}

bool lies_in(const std::string& file, const std::string& folder) {
    const auto real_file = platform::real_name(file);
    const auto real_folder = platform::real_name(folder);
    return real_file && real_folder && real_file->starts_with(*real_folder + platform::path_separator);
}

std::string complaint_about_folder(const std::string& folder) {
    const std::string last = platform::last_part(folder);
    if (last.empty() || last == "." || last == "..")
        return "The batch folder needs a name of its own.";
    if (!can_be_passed(folder))
        return "The converter cannot be told the name of the batch folder " + folder + '.';
    return {};
}

std::string complaint_about_files(const std::vector<std::string>& files) {
    std::set<std::string> names(own_names.begin(), own_names.end());
    for (const std::string& file : files) {
        if (platform::is_folder(file))
            return file + " is a folder; --with takes files.";
        if (!platform::file_size(file))
            return file + " is no file that can be copied into the batch folder.";
        if (!names.insert(platform::last_part(file)).second)
            return "The name of " + file + " is taken in the batch folder.";
    }
    return {};
}

} // namespace

std::string settled_folder(const std::string& name) {
    std::string full = platform::absolute_name(name);
    while (full.size() > 1 && full.back() == platform::path_separator)
        full.pop_back();
    return full;
}

std::string complaint_about_report_file(const run_options& options) {
    const std::string inside = settled_folder(options.folder) + platform::path_separator;
    if (options.json.empty() || !platform::absolute_name(options.json).starts_with(inside))
        return {};
    return options.json + " lies in the batch folder, which is made anew.";
}

std::string complaint_about_request(const run_options& options, const std::string& folder) {
    if (std::string complaint = complaint_about_folder(folder); !complaint.empty())
        return complaint;
    if (std::string complaint = complaint_about_files(options.files); !complaint.empty())
        return complaint;
    for (const std::string& file : options.files)
        if (lies_in(file, folder))
            return file + " lies in the batch folder, which is made anew.";
    if (lies_in(options.model, folder))
        return options.model + " lies in the batch folder, which is made anew.";
    return {};
}

std::string add_settings(const std::string& option_file, const std::map<std::string, std::string>& settings) {
    if (settings.empty())
        return {};
    constexpr std::uint64_t largest_option_file = std::uint64_t{1} << 30U; // bytes
    std::string text;
    if (platform::exists(option_file)) {
        const auto bytes = platform::read_file(option_file, largest_option_file);
        if (!bytes)
            return "the option file cannot be read";
        text.assign(reinterpret_cast<const char*>(bytes->data()), bytes->size());
        if (!text.empty() && text.back() != '\n')
            text += "\r\n";
    }
    for (const auto& [name, value] : settings)
        text += setting_line(name, value);
    platform::file file;
    if (!file.open(option_file, platform::open_mode::write) || !file.write_all(text))
        return file.failure();
    return file.close() ? std::string() : "the disk refused it";
}
