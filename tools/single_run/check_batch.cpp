#include "tools/single_run/check_batch.h"

#include "tools/json_reading/json_reading.h"

#include <algorithm>

namespace {

using json_reading::count_in;
using json_reading::json;
using json_reading::text_in;
using json_reading::value_in;

std::string in_words(const json& finding) {
    std::string words = text_in(finding, "file");
    if (const std::uint64_t line = count_in(finding, "line").value_or(0); line > 0)
        words += ", line " + std::to_string(line);
    return (words.empty() ? words : words + ": ") + text_in(finding, "text");
}

} // namespace

bool take_answer(std::string_view text, checked_batch& checked) {
    const json answer = json_reading::parsed(text);
    const json& batches = value_in(answer, "batches");
    if (!batches.is_array() || batches.size() != 1 || !batches[0].is_object())
        return false;
    const json& batch = batches[0];
    const json& counts = value_in(batch, "counts");
    const json& findings = value_in(batch, "findings");
    const auto is_error = [](const json& finding) { return text_in(finding, "severity") == "error"; };
    if (findings.is_array())
        if (const auto first = std::find_if(findings.begin(), findings.end(), is_error); first != findings.end())
            checked.first_error = in_words(*first);
    checked.verdict = {text_in(batch, "status") == "sound", counts.is_object() ? json_reading::written(counts) : "{}",
                       findings.is_array() ? json_reading::written(findings) : "[]",
                       count_in(batch, "errors").value_or(0), count_in(batch, "warnings").value_or(0)};
    return true;
}

checked_batch check_batch(const std::string& checker, const std::string& folder, std::uint64_t memory,
                          const run_clock& clock) {
    std::string answer;
    platform::child_start start;
    start.program = checker;
    start.arguments = {"--json", "--ignore", "batch-unfinished", folder}; // the mark stands until the batch is sound
    start.memory_limit = memory;
    start.deadline = clock.deadline();
    start.on_output = [&answer](std::string_view bytes) {
        if (answer.size() < json_reading::largest_report)
            answer += bytes;
    };
    checked_batch checked;
    checked.end = platform::run_child(start);
    checked.is_answered = checked.end.fate == platform::child_fate::ended && take_answer(answer, checked);
    return checked;
}
