#include "tools/single_run/run_sentences.h"

#include "platform/child_process.h"
#include "platform/platform.h"
#include "tools/json_reading/json_reading.h"

#include <array>
#include <cstdio>

namespace {

std::string counted(const json_reading::json& counts, const char* key, const char* one, const char* many) {
    const std::uint64_t number = json_reading::count_in(counts, key).value_or(0);
    return std::to_string(number) + ' ' + (number == 1 ? one : many);
}

} // namespace

std::string sentence_of_success(const run_options& options, const std::string& folder, const batch_verdict& verdict,
                                double seconds) {
    const json_reading::json counts = json_reading::parsed(verdict.counts);
    std::array<char, 32> time;
    std::snprintf(time.data(), time.size(), "%.2f", seconds);
    return platform::last_part(options.model) +
           " is converted: " + counted(counts, "triangles", "triangle", "triangles") + ", " +
           counted(counts, "materials", "material", "materials") + " and " + counted(counts, "lamps", "lamp", "lamps") +
           " in " + folder + " after " + time.data() + " seconds.";
}

std::string sentence_of_skip(const run_options& options, const std::string& folder) {
    return platform::last_part(options.model) + " was converted before, and nothing has changed since: " + folder +
           " stays as it is.";
}

std::string sentence_of_model(const run_options& options, const std::string& reason) {
    return options.model + " cannot be opened: " + reason + '.';
}

std::string sentence_of_refusal(const std::string& refused) {
    return "The disk does not take " + refused + '.';
}

std::string sentence_of_findings(const checked_batch& checked) {
    return "The batch is not sound: " +
           (checked.first_error.empty() ? std::string("the checker knows it for no batch") : checked.first_error) +
           (checked.verdict.errors > 1 ? ", and " + std::to_string(checked.verdict.errors - 1) + " more." : ".");
}

std::string sentence_of_request() {
    return "The run was ended by " + platform::end_request() + '.';
}

std::string sentence_of_time(const run_options& options) {
    return "The run was not done after " + std::to_string(options.seconds.value_or(0)) + " seconds.";
}
