#include "tools/single_run/run_inputs.h"

#include "platform/platform.h"
#include "text/letter_case.h"
#include "tools/single_run/setting_line.h"

#include <algorithm>
#include <array>
#include <set>

namespace {

// Names in a batch folder that belong to the run itself.
constexpr std::array own_names = {"geometry.qlm", "batch_file.txt", "tessaline-run.json", "tessaline-run.json.part",
                                  "tessaline-run.settings"};

// The converter reads its command line as one text, in which these stand for switches even inside a name.
constexpr std::array switches = {" -load_all_layers", " -incl_edge_lines", " -incl_views",
                                 " -all_atts",        " -is_animation",    "-progress "};

bool can_be_passed(const std::string& folder) {
    const bool has_switch = std::any_of(switches.begin(), switches.end(),
                                        [&](const char* one) { return folder.find(one) != std::string::npos; });
    const bool breaks_quotes = folder.find(' ') != std::string::npos && folder.find('"') != std::string::npos;
    return !has_switch && !breaks_quotes && folder.find_first_of("\r\n") == std::string::npos;
}

// Where the name leads, or would lead if there were such a file: without links, "." and "..".
std::string real_place(const std::string& name) {
    if (const auto real = platform::real_name(name))
        return *real;
    const std::string full = settled_folder(name);
    const std::string above = platform::parent_of(full);
    const auto real_above = platform::real_name(above + platform::path_separator);
    return platform::joined(real_above || above.empty() ? real_above.value_or(above) : real_place(above),
                            platform::last_part(full));
}

bool lies_in(const std::string& file, const std::string& folder) {
    return real_place(file).starts_with(platform::joined(real_place(folder), ""));
}

std::string without_separators_at_end(std::string name) {
    while (name.size() > 1 && name.back() == platform::path_separator)
        name.pop_back();
    return name;
}

// given: as it stands on the command line.
std::string complaint_about_folder(const std::string& given, const std::string& folder) {
    const std::string last = platform::last_part(without_separators_at_end(given));
    if (platform::last_part(folder).empty() || last == "." || last == "..")
        return "The batch folder needs a name of its own.";
    if (!can_be_passed(folder))
        return "The converter cannot be told the name of the batch folder " + folder + '.';
    return {};
}

// One for all names that the file system takes for the same.
std::string name_in_folder(const std::string& file) {
    const std::string name = platform::last_part(file);
    return platform::has_drive_letters ? lower_case(name) : name;
}

std::string complaint_about_files(const std::vector<std::string>& files) {
    std::set<std::string> names(own_names.begin(), own_names.end());
    for (const std::string& file : files) {
        if (platform::is_folder(file))
            return file + " is a folder; --with takes files.";
        if (!platform::file_size(file))
            return file + " is no file that can be copied into the batch folder.";
        if (!names.insert(name_in_folder(file)).second)
            return "The name of " + file + " is taken in the batch folder.";
    }
    return {};
}

} // namespace

std::string settled_folder(const std::string& name) {
    const std::string full = platform::absolute_name(name);
    if (full.empty() || platform::has_drive_letters) // where ".." is gone already
        return without_separators_at_end(full);
    std::string settled;
    for (std::size_t begin = 0; begin < full.size();) {
        const std::size_t end = std::min(full.find(platform::path_separator, begin), full.size());
        const std::string part = full.substr(begin, end - begin);
        begin = end + 1;
        if (part == "..") { // of what a link leads to, if the folder before it is one
            const auto above = platform::real_name(std::string(settled).append(1, platform::path_separator) + part);
            settled = without_separators_at_end(above.value_or(platform::parent_of(settled)));
        } else if (!part.empty() && part != ".")
            settled.append(settled.ends_with(platform::path_separator) ? 0 : 1, platform::path_separator).append(part);
    }
    return settled.empty() ? std::string(1, platform::path_separator) : settled;
}

std::string complaint_about_report_file(const run_options& options) {
    if (options.json.empty())
        return {};
    const std::string place = real_place(options.json);
    if (lies_in(options.json, options.folder) || place == real_place(options.folder))
        return options.json + " lies in the batch folder, which is made anew.";
    const auto is_it = [&place](const std::string& read) { return real_place(read) == place; };
    if (is_it(options.model) || std::any_of(options.files.begin(), options.files.end(), is_it))
        return options.json + " is a file that the run reads; its report would replace it.";
    return {};
}

std::string complaint_about_request(const run_options& options, const std::string& folder) {
    if (std::string complaint = complaint_about_folder(options.folder, folder); !complaint.empty())
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
    platform::delete_file(option_file); // what is written to is new: it is no link to a file of somebody else
    platform::file file;
    if (!file.open(option_file, platform::open_mode::write_new) || !file.write_all(text))
        return file.failure();
    return file.close() ? std::string() : "the disk refused it";
}
