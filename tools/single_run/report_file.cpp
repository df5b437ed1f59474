#include "tools/single_run/report_file.h"

#include "tools/content_hash/content_hash.h"

namespace {

using platform::hold_kind;
using platform::hold_result;

// A name that nobody else gives a file, always the same for one report, so that what a killed run has left is taken up
// by the next; of one length, so that a name of any length may have one beside it.
std::string name_beside(const std::string& target) {
    const std::string name = platform::last_part(target);
    return target.substr(0, target.size() - name.size()) + ".tessaline-run." + content_hash_of(name) + ".part";
}

} // namespace

report_file::~report_file() {
    if (unfinished.is_held())
        unfinished.remove(beside);
}

std::string report_file::open(const std::string& name) {
    if (platform::exists(name) && !platform::file_size(name))
        return device.open(name, platform::open_mode::write) ? std::string() : device.failure();
    target = platform::real_name(name).value_or(name);
    beside = name_beside(target);
    hold_result result = unfinished.take(beside, hold_kind::new_file);
    if (result == hold_result::name_taken)
        result = unfinished.take(beside, hold_kind::old_file);
    if (result == hold_result::held)
        return {};
    if (result == hold_result::held_elsewhere)
        return "another run writes it";
    return unfinished.failure().empty() ? "the system says no more" : unfinished.failure();
}

bool report_file::write(std::string_view bytes) {
    if (device.is_open())
        return device.write_all(bytes) && device.close();
    if (!unfinished.is_held())
        return true;
    if (!unfinished.rewrite(bytes) || !platform::rename_replacing(beside, target))
        return false;
    unfinished.release();
    return true;
}
