#include "tools/single_run/convert_model.h"

#include "platform/child_process.h"
#include "platform/platform.h"
#include "tools/single_run/beside.h"
#include "tools/single_run/converter_words.h"
#include "tools/single_run/run_sentences.h"

namespace {

using platform::child_end;
using platform::child_fate;

struct refusal {
    std::string words;
    bool is_for_memory = false;
};

// The converter has but a number for it, so the model is opened once more by the program that has the reader's words.
// fallback: what is said where that program is missing, or opens the model.
refusal words_of_the_reader(const std::string& model, std::uint64_t memory, const run_clock& clock,
                            const std::string& fallback) {
    refusal refused = {fallback, false};
    const auto dump = program_beside("skp-dump");
    if (!dump)
        return refused;
    const std::string beginning = "skp-dump: " + model + ": ";
    line_splitter lines([&](std::string_view line) {
        if (line.starts_with(beginning))
            refused.words = line.substr(beginning.size());
    });
    platform::child_start start;
    start.program = *dump;
    start.arguments = {"--summary", model};
    start.memory_limit = memory;
    start.deadline = clock.deadline();
    start.on_errors = [&](std::string_view bytes) { lines.add(bytes); };
    platform::run_child(start);
    lines.finish();
    refused.is_for_memory = refused.words == "not enough memory";
    return refused;
}

constexpr const char* not_enough_memory = "The converter did not get on with the memory that it was given.";
// Why the converter did not do its work, where its end alone tells it.
void look_at_end(const child_end& end, const converter_words& said, std::uint64_t memory, converted_model& converted) {
    // Where there is no room for a program the system ends it by a signal while it is loaded, or its loader gives up.
    const bool found_no_room = memory != 0 && !said.has_begun && (end.fate != child_fate::ended || end.number != 0);
    if (said.out_of_memory || found_no_room)
        converted = {run_status::beyond_limits, not_enough_memory, {}, {}, 0};
    else if (end.fate == child_fate::crashed)
        converted = {run_status::ended_by_signal, "The converter was ended by " + end.words + '.', {}, {}, 0};
    else if (end.fate == child_fate::not_started)
        converted = {run_status::usage, "The converter cannot be started: " + end.words + '.', {}, {}, 0};
    else if (end.number != 0)
        converted = {run_status::not_sound,
                     "The converter ended with status " + std::to_string(end.number) + ", which it never does.",
                     {},
                     {},
                     0};
}

// Why there is no stream, or not all that belongs to the batch.
void look_at_files(const std::string& folder, const converter_words& said, std::uint64_t memory, const run_clock& clock,
                   converted_model& converted) {
    if (!said.refused_model.empty()) {
        const std::string model = platform::joined(folder, "geometry.qlm");
        const refusal refused = words_of_the_reader(model, memory, clock, said.refused_model);
        converted.status = refused.is_for_memory ? run_status::beyond_limits : run_status::model_not_opened;
        converted.words = refused.is_for_memory ? not_enough_memory : refused.words;
    } else if (!platform::file_size(platform::joined(folder, "batch_file.txt"))) {
        converted.status = run_status::not_written;
        converted.words = said.refused_write.empty() ? "The stream of the batch could not be made."
                                                     : sentence_of_refusal(said.refused_write);
    } else if (said.lost_options) {
        converted.status = run_status::not_written;
        converted.words = "The option file could not be written anew.";
    }
}

// The converter keeps some settings for later runs. Here it finds none of the user's and keeps none there, so that what
// a batch holds depends on what its report names.
class private_settings {
public:
    explicit private_settings(const std::string& batch) : folder(platform::joined(batch, private_settings_name)) {}

    bool make() const { return platform::make_folder(folder); }
    bool remove() const { return platform::clear_folder(folder) && platform::delete_empty_folder(folder); }
    std::vector<std::pair<std::string, std::optional<std::string>>> variables() const {
        return {{"XDG_CONFIG_HOME", folder}, {"APPDATA", folder}};
    }

private:
    std::string folder;
};

converted_model without_settings_folder(const char* words) {
    converted_model converted;
    converted.status = run_status::not_written;
    converted.words = words;
    return converted;
}

} // namespace

converted_model convert_model(const std::string& converter, const std::string& folder, std::uint64_t memory,
                              const run_clock& clock, const std::function<void(int)>& on_progress) {
    const private_settings settings(folder);
    if (!settings.make())
        return without_settings_folder("The folder for the settings of the converter cannot be made.");
    converter_words said(on_progress, platform::debug_output);
    platform::child_start start;
    start.program = converter;
    start.arguments = {platform::joined(folder, "geometry.qlm"), platform::joined(folder, "batch_file.txt")};
    start.environment = settings.variables();
    start.environment.insert(start.environment.end(), {{"TESSALINE_TRACE", "-"}, {"TESSALINE_UNATTENDED", "1"}});
    start.memory_limit = memory;
    start.deadline = clock.deadline();
    start.on_errors = [&](std::string_view bytes) { said.add(bytes); };
    const child_end end = platform::run_child(start);
    said.finish();
    converted_model converted;
    if (!settings.remove())
        converted = without_settings_folder("The folder for the settings of the converter cannot be removed.");
    else if (clock.must_stop() == stop_reason::none) {
        look_at_end(end, said, memory, converted);
        if (converted.status == run_status::done)
            look_at_files(folder, said, memory, clock, converted);
    }
    converted.messages = said.messages;
    converted.refused_write = said.refused_write;
    converted.peak_memory_bytes = end.peak_memory_bytes;
    return converted;
}
