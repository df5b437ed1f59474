#include "tools/single_run/check_batch.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace {

using json = nlohmann::ordered_json;

constexpr std::size_t largest_answer = std::size_t{1} << 26U; // bytes: the findings are bounded

std::string text_in(const json& object, const char* key) {
    return object.contains(key) && object[key].is_string() ? object[key].get<std::string>() : std::string();
}

std::int64_t number_in(const json& object, const char* key) {
    return object.contains(key) && object[key].is_number_integer() ? object[key].get<std::int64_t>() : 0;
}

std::string in_words(const json& finding) {
    std::string words = text_in(finding, "file");
    if (const std::int64_t line = number_in(finding, "line"); line > 0)
        words += ", line " + std::to_string(line);
    return (words.empty() ? words : words + ": ") + text_in(finding, "text");
}

// False if the text is no answer of the checker about one batch.
bool take_answer(const std::string& text, checked_batch& checked) {
    const json answer = json::parse(text, nullptr, false);
    if (!answer.is_object() || !answer.contains("batches") || !answer["batches"].is_array() ||
        answer["batches"].size() != 1 || !answer["batches"][0].is_object())
        return false;
    const json& batch = answer["batches"][0];
    const json findings =
        batch.contains("findings") && batch["findings"].is_array() ? batch["findings"] : json::array();
    const auto is_error = [](const json& finding) {
        return finding.is_object() && text_in(finding, "severity") == "error";
    };
    if (const auto first = std::find_if(findings.begin(), findings.end(), is_error); first != findings.end())
        checked.first_error = in_words(*first);
    checked.verdict = {text_in(batch, "status") == "sound", batch.contains("counts") ? batch["counts"].dump() : "{}",
                       findings.dump(), number_in(batch, "errors"), number_in(batch, "warnings")};
    return true;
}

} // namespace

checked_batch check_batch(const std::string& checker, const std::string& folder, std::uint64_t memory,
                          const run_clock& clock) {
    std::string answer;
    platform::child_start start;
    start.program = checker;
    start.arguments = {"--json", "--ignore", "batch-unfinished", folder}; // the mark stands until the batch is sound
    start.memory_limit = memory;
    start.deadline = clock.deadline();
    start.on_output = [&answer](std::string_view bytes) {
        if (answer.size() < largest_answer)
            answer += bytes;
    };
    checked_batch checked;
    checked.end = platform::run_child(start);
    checked.is_answered = checked.end.fate == platform::child_fate::ended && take_answer(answer, checked);
    return checked;
}
