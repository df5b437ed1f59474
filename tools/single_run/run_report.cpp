#include "tools/single_run/run_report.h"

#include "platform/platform.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace {

using json = nlohmann::ordered_json;

std::string utf8(const std::string& text) {
    return platform::utf8_from_own(text);
}

json of_file(const file_facts& file) {
    return {{"name", utf8(file.name)}, {"bytes", file.bytes}, {"xxh128", file.xxh128}};
}

json of_files(const std::vector<file_facts>& files) {
    json list = json::array();
    for (const file_facts& file : files)
        list.push_back(of_file(file));
    return list;
}

json of_settings(const std::map<std::string, std::string>& settings) {
    json object = json::object();
    for (const auto& [name, value] : settings)
        object[name] = utf8(value);
    return object;
}

json of_messages(const std::vector<std::string>& messages) {
    json list = json::array();
    for (const std::string& message : messages)
        list.push_back(utf8(message));
    return list;
}

constexpr int deepest_value = 16; // a report has four levels; writing takes a level of the stack for each

// Discarded for what is no JSON. What lies deeper than any report does is left out.
json parsed(std::string_view text) {
    return json::parse(
        text, [](int depth, json::parse_event_t, const json&) { return depth < deepest_value; }, false);
}

// 0 for what is no whole number.
std::int64_t number_in(const json& object, const char* key) {
    return object.contains(key) && object[key].is_number_integer() ? object[key].get<std::int64_t>() : 0;
}

std::string written(const json& value, int indentation) {
    return value.dump(indentation, ' ', false, json::error_handler_t::replace);
}

} // namespace

std::string text_of_report(const run_report& report) {
    json object = {{"format", 1},
                   {"program", "tessaline-run"},
                   {"version", TESSALINE_VERSION},
                   {"status", static_cast<int>(report.status)},
                   {"sentence", utf8(report.sentence)},
                   {"skipped", report.is_skipped},
                   {"folder", utf8(report.folder)},
                   {"model", of_file(report.model)},
                   {"files", of_files(report.files)},
                   {"options", of_settings(report.settings)},
                   {"seconds", std::round(report.seconds * 1000) / 1000},
                   {"peak_memory_bytes", report.peak_memory_bytes},
                   {"messages", of_messages(report.messages)},
                   {"counts", parsed(report.verdict.counts)},
                   {"findings", parsed(report.verdict.findings)},
                   {"errors", report.verdict.errors},
                   {"warnings", report.verdict.warnings}};
    return written(object, 1) + '\n';
}

bool is_same_run(std::string_view bytes, const run_report& wanted) {
    const json before = parsed(bytes);
    if (!before.is_object())
        return false;
    const json now = parsed(text_of_report(wanted));
    const auto same = [&](const char* key) { return before.contains(key) && before[key] == now[key]; };
    const auto same_of_model = [&](const char* key) {
        return before["model"].is_object() && before["model"].contains(key) &&
               before["model"][key] == now["model"][key];
    };
    return same("format") && same("version") && same("folder") && same("files") && same("options") &&
           before.contains("model") && same_of_model("bytes") && same_of_model("xxh128");
}

batch_verdict verdict_in(std::string_view bytes) {
    const json before = parsed(bytes);
    batch_verdict verdict;
    if (!before.is_object())
        return verdict;
    verdict.is_sound = true;
    if (before.contains("counts"))
        verdict.counts = written(before["counts"], -1);
    if (before.contains("findings"))
        verdict.findings = written(before["findings"], -1);
    verdict.errors = number_in(before, "errors");
    verdict.warnings = number_in(before, "warnings");
    return verdict;
}
