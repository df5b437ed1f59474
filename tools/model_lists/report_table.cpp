#include "tools/model_lists/report_table.h"

#include "text/one_line.h"
#include "tools/json_reading/json_reading.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

using json_reading::count_in;
using json_reading::json;
using json_reading::text_in;
using json_reading::value_in;

constexpr int highest_known_status = 7;

// Notes are no findings that anybody has to look at.
std::vector<std::string> codes_in(const json& findings) {
    std::vector<std::string> codes;
    if (findings.is_array())
        for (const json& finding : findings)
            if (const std::string code = text_in(finding, "code");
                !code.empty() && text_in(finding, "severity") != "note" &&
                std::find(codes.begin(), codes.end(), code) == codes.end())
                codes.push_back(code);
    return codes;
}

table_row row_without_report(const std::string& model, std::string sentence) {
    table_row row;
    row.model = model;
    row.status = status_without_report;
    row.sentence = std::move(sentence);
    return row;
}

void append_field(std::string& line, std::string_view field) {
    if (field.find_first_of(",\"\r\n") == std::string_view::npos) {
        line += field;
        return;
    }
    line += '"';
    for (const char letter : field)
        line.append(letter == '"' ? 2 : 1, letter);
    line += '"';
}

template<typename... Values>
std::string formed(const char* format, Values... values) {
    std::string text(static_cast<std::size_t>(std::snprintf(nullptr, 0, format, values...)), '\0');
    std::snprintf(text.data(), text.size() + 1, format, values...);
    return text;
}

std::string number_text(const std::optional<std::uint64_t>& number) {
    return number ? std::to_string(*number) : "";
}

std::string seconds_text(const std::optional<double>& seconds) {
    return seconds ? formed("%.3f", *seconds) : "";
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

std::string text_line(const table_row& row) {
    constexpr double mebibyte = 1048576.0;
    const std::string memory =
        row.memory_bytes ? formed("%.1f", static_cast<double>(*row.memory_bytes) / mebibyte) : "-";
    const auto shown = [](const std::string& text) { return text.empty() ? std::string("-") : text; };
    std::string line =
        formed("%6d %9s %9s %10s %8s  ", row.status, shown(seconds_text(row.seconds)).c_str(), memory.c_str(),
               shown(number_text(row.triangles)).c_str(), shown(number_text(row.findings)).c_str());
    line += on_one_line(row.model);
    const std::string why = row.sentence.empty() ? joined(row.codes) : row.sentence;
    return line + (why.empty() ? "" : ": " + on_one_line(why)) + "\n";
}

} // namespace

table_row row_of_report(const std::string& model, const std::optional<std::string>& report) {
    if (!report)
        return row_without_report(model, "its run has left no report");
    const json parsed = json_reading::parsed(*report);
    const auto status = count_in(parsed, "status");
    if (!status || *status > highest_known_status)
        return row_without_report(model, "the report of its run cannot be read");
    table_row row;
    row.model = model;
    row.status = static_cast<int>(*status);
    if (const json& seconds = value_in(parsed, "seconds"); seconds.is_number())
        row.seconds = seconds.get<double>();
    row.memory_bytes = count_in(parsed, "peak_memory_bytes");
    row.triangles = count_in(value_in(parsed, "counts"), "triangles");
    const auto errors = count_in(parsed, "errors");
    const auto warnings = count_in(parsed, "warnings");
    if (errors && warnings)
        row.findings = *errors + *warnings;
    row.codes = codes_in(value_in(parsed, "findings"));
    if (row.status != 0)
        row.sentence = text_in(parsed, "sentence");
    return row;
}

int highest_status(const std::vector<table_row>& rows) {
    int highest = 0;
    for (const table_row& row : rows)
        highest = std::max(highest, row.status);
    return highest;
}

std::string table_as_csv(const std::vector<table_row>& rows) {
    std::string table = "model,status,seconds,memory_bytes,triangles,findings,codes,sentence\n";
    for (const table_row& row : rows) {
        append_field(table, row.model);
        for (const std::string& field :
             {std::to_string(row.status), seconds_text(row.seconds), number_text(row.memory_bytes),
              number_text(row.triangles), number_text(row.findings), joined(row.codes), row.sentence})
            append_field(table += ',', field);
        table += '\n';
    }
    return table;
}

std::string table_as_text(const std::vector<table_row>& rows) {
    std::string table = "status   seconds       MiB  triangles findings  model\n";
    for (const table_row& row : rows)
        table += text_line(row);
    const auto done = std::count_if(rows.begin(), rows.end(), [](const table_row& row) { return row.status == 0; });
    const auto all = static_cast<std::ptrdiff_t>(rows.size());
    return table + formed("%td models, %td done, %td not done\n", all, done, all - done);
}
