#include "tools/batch_check/batch_contents.h"

#include "tools/batch_check/batch_folders.h"

#include <algorithm>

namespace batch_check {
namespace {

template<class List>
bool is_one_of(std::string_view name, const List& list) {
    return std::find(list.begin(), list.end(), name) != list.end();
}

// A name with "/" in place of either separator.
std::string with_slashes(std::string_view name) {
    std::string text(name);
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

// Whether each run takes away a file of this name before it begins.
bool is_taken_away(std::string_view folder, std::string_view name) {
    if (folder != materials_folder)
        return is_one_of(folder, emptied_folders);
    const bool is_of_a_material = name.ends_with("qlobj") || name.ends_with("OrnMaterial");
    const auto names_it = [name](std::string_view kept) { return name.find(kept) != std::string_view::npos; };
    return is_of_a_material && std::none_of(kept_materials.begin(), kept_materials.end(), names_it);
}

// Whether something other than a run of this kind makes a file of this name: a parent, or who edits materials by hand.
bool is_known(std::string_view folder, std::string_view name) {
    if (folder.empty())
        return is_one_of(name, known_files);
    return folder == images_folder || (folder == materials_folder && !is_taken_away(folder, name) &&
                                       (name.ends_with("qlobj") || name.ends_with("OrnMaterial")));
}

} // namespace

batch_contents::batch_contents(const batch_files& files) : names(files.full_names()) {
    add_folder(files, "", 0);
    for (std::string& name : names)
        name = with_slashes(name);
}

void batch_contents::add_folder(const batch_files& files, const std::string& folder, int depth) {
    const auto entries = files.list(folder);
    if (!entries)
        return;
    could_list = true;
    for (const listed_entry& entry : *entries) {
        const std::string name = in_folder(folder, entry.name);
        if (!entry.is_folder) {
            sizes[name] = entry.size;
            byte_count += entry.size;
        } else if (depth == 0) {
            add_folder(files, name, depth + 1);
        }
    }
}

std::optional<batch_contents::place> batch_contents::place_of(std::string_view full_name,
                                                              std::initializer_list<std::string_view> folders) const {
    const std::string name = with_slashes(full_name);
    const std::size_t file = name.rfind('/');
    if (file == std::string::npos || file == 0)
        return std::nullopt;
    const std::size_t folder = name.rfind('/', file - 1);
    if (folder == std::string::npos || !is_one_of(name.substr(folder + 1, file - folder - 1), folders))
        return std::nullopt;
    return place{name.substr(folder + 1), names.empty() || is_one_of(name.substr(0, folder), names)};
}

void batch_contents::report_rest(bool knows_references, findings& found) const {
    for (const auto& [file, size] : sizes) {
        const std::size_t slash = file.find('/');
        const std::string_view folder = std::string_view(file).substr(0, slash == std::string::npos ? 0 : slash);
        const std::string_view name = std::string_view(file).substr(slash == std::string::npos ? 0 : slash + 1);
        if (folder.empty() && name == mark_of_a_running_run)
            found.add(code::batch_unfinished, file, 0, "a run has not come to its end, or still goes on");
        if (referred.contains(file) || is_known(folder, name))
            continue;
        if (!is_taken_away(folder, name))
            found.add(code::extra_file, file, 0, "no run and no parent is known to make this file");
        else if (knows_references)
            found.add(code::orphan, file, 0, "nothing refers to this file");
    }
}

} // namespace batch_check
