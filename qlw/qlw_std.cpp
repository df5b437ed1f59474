// Finds folders and files by name and makes folders that are missing.

#include "qlw/qlw_std.h"

#include "qlw/folder_refusal.h"
#include "qlw/qlw_identity.h"
#include "qlw/qlw_trace.h"
#include "qlw/replace_all.h"
#include "qlw/text_format.h"

#include <algorithm>

std::string application_folder;

namespace {

constexpr char separator = platform::path_separator;
constexpr path_rules own_rules = platform::has_drive_letters ? path_rules::windows : path_rules::posix;

// The name without one separator at its end; the root stays as it is.
std::string without_separator_at_end(std::string path) {
    const bool ends_so = path.ends_with(separator) || (platform::has_drive_letters && path.ends_with('/'));
    if (path.size() > 1 && ends_so)
        path.pop_back();
    return path;
}

// The folder in which a folder stands; empty for a bare word. What stands in the root has the root.
std::string parent_of(const std::string& path) {
    const std::size_t last = path.rfind(separator);
    if (last == std::string::npos)
        return {};
    return path.substr(0, std::max<std::size_t>(last, 1));
}

template<class... Arguments>
void trace_making(int line, int level, std::string_view format, const Arguments&... arguments) {
    cl_trace::here("qlw_make_sure_directory_exists", level, __builtin_FILE(), line).report(format, arguments...);
}

std::string made_if_missing(const std::string& folder) {
    if (!folder.empty())
        make_directory_tree(folder);
    return folder;
}

// Puts a separator behind a folder; nothing stands for the current folder and stays nothing.
std::string as_first_piece(const std::string& folder) {
    return folder.empty() || folder.ends_with(separator) ? folder : folder + separator;
}

} // namespace

void fix_path_separators(std::string& path) {
    path = with_fixed_separators(path, own_rules);
}

bool path_exists(const std::string& path, const std::string&) {
    return platform::exists(without_separator_at_end(path));
}

int qlw_make_sure_directory_exists(std::string path) {
    if (platform::has_drive_letters)
        std::replace(path.begin(), path.end(), '/', separator);
    path = without_separator_at_end(path);
    if (path_exists(path))
        return 1;
    if (const std::string parent = parent_of(path); !parent.empty()) {
        trace_making(__LINE__, trace_level::plain, "Making sub-folder: %s", parent);
        if (!qlw_make_sure_directory_exists(parent)) {
            trace_making(__LINE__, trace_level::plain, "Returning False: %s", path);
            return 0;
        }
    }
    trace_making(__LINE__, trace_level::plain, "calling qlw_mkdir: %s", path);
    platform::make_folder(path);
    if (!path_exists(path))
        trace_making(__LINE__, trace_level::developer_error, "Could not create folder: %s", path);
    trace_making(__LINE__, trace_level::plain, "Directory created: %s", path);
    return 1;
}

int make_directory_tree(std::string path) {
    while (path.size() > 1 && path.ends_with(separator))
        path.pop_back();
    if (path_exists(path) || platform::make_folder(path))
        return 1;
    const std::string parent = parent_of(path);
    if (parent.empty() || parent == path)
        return 0;
    make_directory_tree(parent);
    return platform::make_folder(path);
}

std::string get_temporary_directory() {
    std::string folder = platform::temporary_folder();
    if (folder.empty())
        folder = platform::environment_variable("TEMP").value_or(std::string());
    if (folder.empty())
        folder = platform::last_resort_temporary_folder;
    make_directory_tree(folder);
    if (!path_exists(folder)) {
        cl_trace::here("get_temporary_directory", trace_level::user_error)
            .report("Cannot create temporary folder: %s", folder);
        folder = platform::last_resort_temporary_folder;
    }
    return as_first_piece(folder);
}

std::string get_application_data_folder() {
    return made_if_missing(platform::user_config_folder());
}

std::string get_documents_folder() {
    return platform::documents_folder();
}

std::string get_user_data_folder() {
    return made_if_missing(as_first_piece(get_documents_folder()) + std::string(ini_base_name));
}

std::string get_application_folder() {
    if (application_folder.empty())
        return {};
    const std::string appl = std::string(1, separator) + "appl";
    if (path_exists(application_folder + appl))
        return application_folder;
    constexpr std::string_view wide_form = "Program Files";
    constexpr std::string_view narrow_form = "Program Files (x86)";
    std::string narrow = application_folder;
    replace_all(narrow, wide_form, narrow_form);
    if (path_exists(narrow + appl)) {
        application_folder = narrow;
        return narrow;
    }
    for (const int level : {trace_level::plain, trace_level::user_error})
        cl_trace::here("get_application_folder", level)
            .report("Application appl folder not found: %s", application_folder + appl);
    return application_folder;
}

std::string resolve_file_path(const std::string& folder, const std::string& subfolder, const std::string& name) {
    std::string fixed = name;
    fix_path_separators(fixed);
    if (fixed.find(':') != std::string::npos || fixed.starts_with(separator))
        return fixed;
    // A name with a prefix such as "PF:" holds a colon and is complete as well.
    std::string first = as_first_piece(get_application_folder());
    if (!subfolder.empty())
        first += "appl" + std::string(1, separator) + subfolder + separator;
    else
        made_if_missing(first);
    return first + as_first_piece(folder) + fixed;
}

std::string windows_version_text(const platform::os_version& version) {
    if (!version.description.empty())
        return version.description;
    struct known_version {
        int platform_id;
        int major;
        int minor; // -1: any
        std::string_view name;
    };
    constexpr known_version known[] = {
        {1, 4, 0, "95"}, {1, 4, 10, "98"},         {2, 4, -1, "NT 4"},      {2, 5, 0, "2000"},
        {2, 5, 1, "XP"}, {2, 5, 2, "2003 Server"}, {2, 6, 0, "Vista/2008"}, {2, 6, 1, "7"},
    };
    const auto* const found = std::find_if(std::begin(known), std::end(known), [&](const known_version& item) {
        return item.platform_id == version.platform_id && item.major == version.major &&
               (item.minor == -1 || item.minor == version.minor);
    });
    const std::string name =
        found != std::end(known)
            ? std::string(found->name)
            : format_text("%d%d%02d", version.platform_id, version.major, version.minor).value_or(std::string());
    return format_text("Windows %s Build: %d %s", name, version.build, version.service_pack).value_or(std::string());
}

std::string get_windows_version_text() {
    return windows_version_text(platform::system_version());
}
