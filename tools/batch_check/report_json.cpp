#include "tools/batch_check/report_json.h"

#include "platform/platform.h"
#include "tools/batch_check/largest_materials.h"

#include <nlohmann/json.hpp>

namespace batch_check {
namespace {

using json = nlohmann::ordered_json;

// Names of files travel in the platform's own encoding.
std::string utf8(const std::string& text) {
    return platform::utf8_from_own(text);
}

json counts_of(const batch_report& report) {
    const stream_facts& stream = report.stream;
    return {{"layers", stream.layers},
            {"meshes", stream.meshes},
            {"vertices", stream.vertices},
            {"triangles", stream.triangles},
            {"lines", stream.edges},
            {"materials", stream.materials.size()},
            {"lamps", stream.lamps.size()},
            {"pictures", report.pictures.count},
            {"bytes", report.bytes},
            {"files", report.files},
            {"stream_bytes", stream.bytes},
            {"picture_bytes", report.pictures.bytes},
            {"equal_picture_bytes", report.pictures.repeated_bytes},
            {"equal_materials", report.equal_materials},
            {"triangles_without_material", stream.triangles_without},
            {"sides_undeclared", stream.sides_without_declaration},
            {"lamps_without_power", report.lamps_without_power}};
}

// A list, since two declarations may have one name.
json triangles_by_material(const stream_facts& stream) {
    constexpr std::size_t listed_materials = 100;
    json all = json::array();
    for (const shown_material& material : largest_materials(stream, listed_materials))
        all.push_back({{"material", utf8(material.name)}, {"triangles", material.triangles}});
    return all;
}

json box_of(const stream_facts& stream) {
    if (stream.low[0] > stream.high[0])
        return nullptr;
    return {stream.low, stream.high};
}

json finding_of(const finding& one) {
    const code_entry& entry = entry_of(one.what);
    return {{"code", entry.name},
            {"severity", name_of(entry.weight)},
            {"file", utf8(one.file)},
            {"line", one.line},
            {"text", utf8(one.text)}};
}

json findings_of(const findings& found) {
    json all = json::array();
    for (const finding& one : found.kept())
        all.push_back(finding_of(one));
    for (const code_entry& entry : all_codes())
        if (const std::uint64_t more = found.left_out(entry.what); more > 0)
            all.push_back(finding_of({entry.what, "", 0, "and " + std::to_string(more) + " more"}));
    return all;
}

// The last part of a folder's name, however many separators end it; the full name's if the name is "." or "..".
std::string name_of_batch(const std::string& folder) {
    const auto part = [](std::string name) {
        while (name.size() > 1 && (name.back() == '/' || name.back() == platform::path_separator))
            name.pop_back();
        return platform::last_part(name);
    };
    const std::string last = part(folder);
    if (last != "." && last != "..")
        return last;
    return part(platform::real_name(folder).value_or(platform::absolute_name(folder)));
}

json batch_of(const std::string& folder, const batch_report& report, bool is_strict) {
    json types = json::object();
    for (const auto& [type, count] : report.lamps_by_type)
        types[utf8(type)] = count;
    return {{"batch", utf8(name_of_batch(folder))},
            {"status", status_of(report, is_strict)},
            {"counts", counts_of(report)},
            {"box_metres", box_of(report.stream)},
            {"lamps_by_type", types},
            {"triangles_by_material", triangles_by_material(report.stream)},
            {"findings", findings_of(report.found)},
            {"errors", report.found.count(severity::error)},
            {"warnings", report.found.count(severity::warning)},
            {"notes", report.found.count(severity::note)}};
}

} // namespace

std::string_view status_of(const batch_report& report, bool is_strict) {
    return !report.is_batch ? "not a batch" : report.is_sound(is_strict) ? "sound" : "findings";
}

struct json_document::content {
    json batches = json::array();
};

json_document::json_document(bool is_strict) : all(std::make_unique<content>()), warnings_count(is_strict) {}

json_document::~json_document() = default;

void json_document::add(const std::string& folder, const batch_report& report) {
    all->batches.push_back(batch_of(folder, report, warnings_count));
}

std::string json_document::text() const {
    const json document = {
        {"format", 1}, {"program", "batch-check"}, {"version", TESSALINE_VERSION}, {"batches", all->batches}};
    return document.dump(1, ' ', false, json::error_handler_t::replace) + "\n";
}

} // namespace batch_check
