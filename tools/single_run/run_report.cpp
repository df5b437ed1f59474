#include "tools/single_run/run_report.h"

#include "platform/platform.h"
#include "tools/json_reading/json_reading.h"

#include <cmath>

namespace {

using json_reading::count_in;
using json_reading::json;
using json_reading::parsed;
using json_reading::value_in;
using json_reading::written;

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
    const json now = parsed(text_of_report(wanted));
    const auto same = [&](const char* key) { return value_in(before, key) == value_in(now, key); };
    const auto same_of_model = [&](const char* key) {
        return value_in(value_in(before, "model"), key) == value_in(value_in(now, "model"), key);
    };
    return same("format") && same("version") && same("folder") && same("files") && same("options") &&
           same_of_model("bytes") && same_of_model("xxh128");
}

batch_verdict verdict_in(std::string_view bytes) {
    const json before = parsed(bytes);
    batch_verdict verdict;
    if (!before.is_object())
        return verdict;
    verdict.is_sound = true;
    if (before.contains("counts"))
        verdict.counts = written(value_in(before, "counts"));
    if (before.contains("findings"))
        verdict.findings = written(value_in(before, "findings"));
    verdict.errors = count_in(before, "errors").value_or(0);
    verdict.warnings = count_in(before, "warnings").value_or(0);
    return verdict;
}
