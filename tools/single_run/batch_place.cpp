#include "tools/single_run/batch_place.h"

#include "platform/platform.h"
#include "tools/json_reading/json_reading.h"
#include "tools/single_run/run_report.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

namespace {

using platform::hold_kind;
using platform::hold_result;

constexpr int tries = 50; // for a second in all
constexpr auto time_between_tries = std::chrono::milliseconds(20);
constexpr const char* is_taken = "is in use by another run";
constexpr const char* foreign_mark = "holds a tessaline-run.json.part that is none of this program's";

// Also for a link that leads nowhere.
bool name_is_taken(const std::string& name) {
    return platform::exists(name) || platform::is_symbolic_link(name);
}

bool is_plain_file(const std::string& name) {
    return !platform::is_symbolic_link(name) && platform::file_size(name).has_value();
}

bool is_real_folder(const std::string& name) {
    return !platform::is_symbolic_link(name) && platform::is_folder(name);
}

bool has_mark(const std::string& folder) {
    return is_plain_file(platform::joined(folder, mark_name));
}

std::optional<std::string> text_of(const std::string& file) {
    const auto bytes = is_plain_file(file) ? platform::read_file(file, json_reading::largest_report) : std::nullopt;
    if (!bytes)
        return std::nullopt;
    return std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size());
}

// Whether a mark that begins so is of this program: it is empty for the moment after its making, and begins as reports
// do from then on.
bool is_of_own_mark(std::string_view beginning) {
    return report_beginning.starts_with(beginning.substr(0, report_beginning.size()));
}

bool is_own_mark(platform::held_file& held) {
    return is_of_own_mark(held.beginning(report_beginning.size()));
}

// Whether there is one, or one that only its holder can look at.
bool has_own_mark(const std::string& folder) {
    const std::string name = platform::joined(folder, mark_name);
    platform::file opened;
    if (!is_plain_file(name) || !opened.open(name, platform::open_mode::read))
        return is_plain_file(name);
    std::array<char, report_beginning.size()> beginning;
    return is_of_own_mark({beginning.data(), opened.read(beginning.data(), beginning.size())});
}

bool has_report(const std::string& folder) {
    return is_plain_file(platform::joined(folder, report_name));
}

bool has_own_report(const std::string& folder) {
    const auto text = text_of(platform::joined(folder, report_name));
    return text && is_report(*text);
}

bool is_empty(const std::string& folder) {
    const auto entries = platform::list_folder(folder);
    return entries && entries->empty();
}

// Put aside by a run, or what is left of that.
bool is_one_of_ours(const std::string& folder) {
    return is_real_folder(folder) && (has_own_report(folder) || has_own_mark(folder) || is_empty(folder));
}

} // namespace

bool is_report(std::string_view bytes) {
    return json_reading::text_in(json_reading::parsed(bytes), "program") == "tessaline-run";
}

batch_place::batch_place(std::string folder) : name(std::move(folder)), aside(name + std::string(put_aside_ending)) {}

std::string batch_place::operator/(std::string_view inside_name) const {
    return platform::joined(name, inside_name);
}

// Runs a step again while it says so: another run has changed the folder under it, or holds it and may be about to end.
template<class Try>
std::string batch_place::tried(const run_clock& clock, Try attempt) {
    for (int left = tries; left > 0 && clock.must_stop() == stop_reason::none; --left) {
        const stepped result = attempt();
        if (result.next == step::done)
            return result.complaint;
        std::this_thread::sleep_for(time_between_tries);
    }
    return is_taken;
}

// ---- what a killed run left

std::string batch_place::recover(const run_clock& clock) {
    return tried(clock, [this] { return recover_once(); });
}

batch_place::stepped batch_place::recover_once() {
    if (!is_one_of_ours(aside))
        return {};
    const bool is_whole = has_report(aside);
    if (is_whole && !(is_real_folder(name) && has_report(name)))
        return restore();
    // The run ended behind its last step but one.
    platform::held_file held;
    if (!is_empty(aside) && held.take(platform::joined(aside, is_whole ? report_name : mark_name),
                                      hold_kind::old_file) != hold_result::held)
        return {}; // whose run is at it still
    if (held.is_held() && !is_whole && !is_own_mark(held))
        return {};
    remove_folder(aside, held);
    return {};
}

// The run was killed before it could finish: what it replaced comes back.
batch_place::stepped batch_place::restore() {
    platform::held_file held;
    if (held.take(platform::joined(aside, report_name), hold_kind::old_file) != hold_result::held)
        return {step::again, {}};
    if (name_is_taken(name)) {
        if (!is_real_folder(name) || !(has_mark(name) || is_empty(name)))
            return {}; // not ours: the claim says so
        platform::held_file unfinished;
        if (has_mark(name) && unfinished.take(*this / mark_name, hold_kind::old_file) != hold_result::held)
            return {step::again, {}};
        if (unfinished.is_held() && !is_own_mark(unfinished))
            return {};
        if (!remove_folder(name, unfinished))
            return {step::done, "cannot be cleared of what a run left that was killed"};
    }
    if (!platform::held_file::lets_folders_be_renamed())
        held.release();
    if (!platform::rename_replacing(aside, name))
        return {step::done, "cannot be put back from " + aside};
    return {};
}

std::optional<std::string> batch_place::finished_report() const {
    if (!is_real_folder(name) || !has_report(name) || has_mark(name))
        return std::nullopt;
    return text_of(*this / report_name);
}

// ---- taking the folder

std::string batch_place::claim(const run_clock& clock) {
    std::string complaint = tried(clock, [this] { return claim_once(); });
    if (!complaint.empty())
        give_back();
    return complaint;
}

// What a claim has done before it failed.
void batch_place::give_back() {
    if (made_folder)
        platform::delete_empty_folder(name); // holds the mark of another run if that was quicker
    if (has_put_aside)
        platform::rename_replacing(aside, name); // else the other run, or the next one, has it back
    else
        std::for_each(made_parents.rbegin(), made_parents.rend(), platform::delete_empty_folder);
    old_report.release();
}

batch_place::stepped batch_place::claim_once() {
    if (!has_put_aside)
        if (stepped result = recover_once(); result.next == step::again || !result.complaint.empty())
            return result;
    if (platform::is_symbolic_link(name))
        return {step::done, "is a link"};
    if (!platform::exists(name))
        return make_folder();
    if (!platform::is_folder(name))
        return {step::done, "is no folder"};
    return claim_old_folder();
}

batch_place::stepped batch_place::claim_old_folder() {
    if (has_report(name))
        return put_aside(); // with a mark beside it, which no run has left there
    if (has_mark(name))
        return take_over_unfinished();
    if (!platform::list_folder(name))
        return {platform::exists(name) ? step::done : step::again, "cannot be read"};
    if (is_empty(name))
        return make_mark();
    if (has_mark(name) || has_report(name)) // since then
        return {step::again, {}};
    return {step::done, "exists, is not empty and holds no " + std::string(report_name)};
}

batch_place::stepped batch_place::take_over_unfinished() {
    switch (mark.take(*this / mark_name, hold_kind::old_file)) {
    case hold_result::held:
        break;
    case hold_result::impossible:
        return {step::done, "holds a mark that cannot be written: " + mark.failure()};
    default:
        return {step::again, {}};
    }
    if (!is_own_mark(mark)) {
        mark.release();
        return {step::done, foreign_mark};
    }
    made_folder = true; // by the run before
    if (platform::clear_folder(name, mark_name))
        return {};
    mark.release();
    return {step::done, "cannot be cleared of what a run left that was killed"};
}

batch_place::stepped batch_place::put_aside() {
    if (!has_report(name)) // since then
        return {step::again, {}};
    if (!has_own_report(name))
        return {step::done, "holds a " + std::string(report_name) + " that is none of this program's"};
    if (is_one_of_ours(aside)) // of a run that removes it
        return {step::again, {}};
    if (name_is_taken(aside))
        return {step::done, "cannot be put aside: " + aside + " exists"};
    switch (old_report.take(*this / report_name, hold_kind::old_file)) {
    case hold_result::held:
        break;
    case hold_result::impossible:
        return {step::done, "cannot be replaced: " + old_report.failure()};
    default:
        return {step::again, {}};
    }
    if (!platform::held_file::lets_folders_be_renamed())
        old_report.release();
    if (!platform::rename_replacing(name, aside)) {
        old_report.release();
        return {step::done, "cannot be put aside"};
    }
    has_put_aside = true;
    return make_folder();
}

batch_place::stepped batch_place::make_folder() {
    const std::vector<std::string> made = platform::make_folders(platform::parent_of(name)).made;
    made_parents.insert(made_parents.end(), made.begin(), made.end());
    if (platform::make_folder(name)) {
        made_folder = true;
        return make_mark();
    }
    // Another run may have made it, or removed one above it that it had made.
    if (name_is_taken(name) || !platform::exists(platform::parent_of(name)))
        return {step::again, {}};
    return {step::done, "cannot be made: the folder above it takes nothing"};
}

batch_place::stepped batch_place::make_mark() {
    switch (mark.take(*this / mark_name, hold_kind::new_file)) {
    case hold_result::held:
        break;
    case hold_result::impossible:
        return {step::done, "cannot be written: " + mark.failure()};
    default:
        return {step::again, {}}; // another run was quicker
    }
    if (mark.rewrite(report_beginning))
        return {};
    const std::string words = mark.failure();
    mark.remove(*this / mark_name);
    return {step::done, "cannot be written: " + words};
}

// ---- the end of a run

// The mark or report goes last, so that what is left of a removal that is broken off is known as ours.
bool batch_place::remove_folder(const std::string& folder, platform::held_file& held) {
    if (has_report(folder) &&
        !platform::rename_replacing(platform::joined(folder, report_name), platform::joined(folder, mark_name)))
        return false;
    if (!platform::clear_folder(folder, mark_name))
        return false;
    const std::string last = platform::joined(folder, mark_name);
    if (held.is_held() ? !held.remove(last) : name_is_taken(last) && !platform::delete_file(last))
        return false;
    return platform::delete_empty_folder(folder);
}

std::string batch_place::finish(std::string_view report) {
    if (!mark.rewrite(report))
        return "cannot be written: " + mark.failure();
    if (!platform::flush_file_system(name))
        return "was refused by its disk";
    if (!platform::rename_replacing(*this / mark_name, *this / report_name))
        return "cannot be marked as finished";
    if (has_put_aside)
        discard_put_aside();
    mark.release();
    return {};
}

// Only when the disk knows the new batch as finished. What cannot be removed now, the next run removes.
void batch_place::discard_put_aside() {
    platform::flush_file_system(name);
    remove_folder(aside, old_report);
    has_put_aside = false;
}

std::string batch_place::abandon() {
    std::string complaint;
    const bool is_clear = platform::clear_folder(name, mark_name);
    if (!is_clear || !mark.remove(*this / mark_name))
        complaint = "cannot be cleared; the next run will try again";
    else if (made_folder)
        platform::delete_empty_folder(name); // a disk that is mounted there stays
    mark.release();
    if (has_put_aside && !(complaint.empty() && platform::rename_replacing(aside, name)))
        complaint = "cannot be put back yet from " + aside;
    old_report.release();
    if (!has_put_aside)
        std::for_each(made_parents.rbegin(), made_parents.rend(), platform::delete_empty_folder);
    return complaint;
}
