#include "tools/batch_check/first_screen.h"

#include "text/one_line.h"
#include "tools/batch_check/largest_materials.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace batch_check {
namespace {

std::string counted(std::uint64_t count, const std::string& one, const std::string& more) {
    return (count == 0 ? "no" : std::to_string(count)) + " " + (count == 1 ? one : more);
}

std::string counted(std::uint64_t count, const std::string& what) {
    return counted(count, what, what + "s");
}

std::string in_bytes(std::uint64_t bytes) {
    constexpr std::array units = {"bytes", "KiB", "MiB", "GiB", "TiB"};
    double value = static_cast<double>(bytes);
    std::size_t unit = 0;
    for (; value >= 1024 && unit + 1 < units.size(); ++unit)
        value /= 1024;
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), unit == 0 ? "%.0f %s" : "%.1f %s", value, units[unit]);
    return text.data();
}

std::string line(const std::string& what, const std::string& value) {
    std::string text = "  " + what;
    text.resize(std::max<std::size_t>(text.size() + 1, 22), ' ');
    return text + value + "\n";
}

std::string box_of(const stream_facts& stream) {
    if (stream.low[0] > stream.high[0])
        return "empty";
    std::array<char, 200> text{};
    const triple& low = stream.low;
    const triple& high = stream.high;
    std::snprintf(text.data(), text.size(), "(%.3f, %.3f, %.3f) to (%.3f, %.3f, %.3f) metres", low[0], low[1], low[2],
                  high[0], high[1], high[2]);
    return text.data();
}

std::string lamps_of(const batch_report& report) {
    std::string text = std::to_string(report.stream.lamps.size());
    const char* between = ": ";
    for (const auto& [type, count] : report.lamps_by_type) {
        text.append(between).append(std::to_string(count)).append(" ");
        text.append(type.empty() ? "without type" : on_one_line(type));
        between = ", ";
    }
    return text;
}

std::string is_it_all_there(const batch_report& report) {
    const stream_facts& stream = report.stream;
    const bool ends = report.found.count(code::stream_cut_off) == 0 && report.found.count(code::stream_given_up) == 0;
    return "is it all there?\n" + line("stream", ends ? "to its end" : "NOT to its end") +
           line("geometry", counted(stream.triangles, "triangle") + " in " + counted(stream.meshes, "mesh", "meshes") +
                                ", " + counted(stream.edges, "edge") + ", " + counted(stream.layers, "layer")) +
           line("bounding box", box_of(stream)) + line("materials", std::to_string(stream.materials.size())) +
           line("pictures", std::to_string(report.pictures.count)) + line("lamps", lamps_of(report));
}

std::string why_is_it_black(const batch_report& report) {
    const auto count = [&](code what) { return std::to_string(report.found.count(what)); };
    return "why is it black?\n" + line("pictures missing", count(code::picture_missing)) +
           line("pictures damaged", count(code::picture_damaged)) +
           line("materials missing", count(code::material_missing)) +
           line("sides undeclared", std::to_string(report.stream.sides_without_declaration)) +
           line("lamps without power", std::to_string(report.lamps_without_power));
}

std::string why_is_it_large(const batch_report& report) {
    constexpr std::size_t shown_materials = 5;
    const stream_facts& stream = report.stream;
    std::string text = "why is it large?\n" +
                       line("all files", in_bytes(report.bytes) + " in " + counted(report.files, "file")) +
                       line("stream", in_bytes(stream.bytes)) + line("pictures", in_bytes(report.pictures.bytes)) +
                       line("equal pictures", counted(report.found.count(code::picture_equal), "copy", "copies") +
                                                  ", " + in_bytes(report.pictures.repeated_bytes)) +
                       line("equal materials", counted(report.equal_materials, "copy", "copies"));
    const char* what = "triangles";
    if (stream.triangles_without > 0) {
        text += line(what, std::to_string(stream.triangles_without) + " without a material");
        what = "";
    }
    for (const shown_material& material : largest_materials(stream, shown_materials)) {
        text += line(what, std::to_string(material.triangles) + " of " + on_one_line(material.name));
        what = "";
    }
    return text;
}

} // namespace

std::string first_screen(const std::string& folder, const batch_report& report) {
    const std::string name = on_one_line(folder);
    if (!report.is_batch)
        return name + ": not a batch\n";
    return name + "\n" + is_it_all_there(report) + why_is_it_black(report) + why_is_it_large(report);
}

std::string finding_lines(const findings& found) {
    std::string text;
    for (const finding& one : found.kept()) {
        const code_entry& entry = entry_of(one.what);
        if (entry.weight == severity::note)
            continue;
        text.append(name_of(entry.weight)).append(" ").append(entry.name).append(": ");
        if (!one.file.empty())
            text.append(on_one_line(one.file))
                .append(one.line > 0 ? ", line " + std::to_string(one.line) : "")
                .append(": ");
        text.append(one.text).append("\n");
    }
    for (const code_entry& entry : all_codes())
        if (found.left_out(entry.what) > 0 && entry.weight != severity::note)
            text.append(name_of(entry.weight))
                .append(" ")
                .append(entry.name)
                .append(": and ")
                .append(std::to_string(found.left_out(entry.what)) + " more\n");
    return text;
}

std::string sum_of(const findings& found) {
    return counted(found.count(severity::error), "error") + ", " + counted(found.count(severity::warning), "warning") +
           ", " + counted(found.count(severity::note), "note");
}

} // namespace batch_check
