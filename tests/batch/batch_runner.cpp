#include "tests/batch/batch_runner.h"

#include "image/decode_picture.h"
#include "tests/support/files_in_memory.h"
#include "tools/batch_check/check_batch.h"
#include "tools/batch_check/check_stream.h"
#include "tools/batch_check/first_screen.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

namespace {

constexpr std::string_view first_line_of_stream = "#;Tessaline Geometry";
constexpr const char* usual_stream = "batch_file.txt";

std::string bytes_of(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

// Golden files have "/" in the names of files in the batch folder, on every platform.
std::string with_own_paths(std::string text) {
    constexpr std::string_view mark = "@BATCH@";
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
        const std::size_t end = text.find_first_of("\r\n", at);
        const std::size_t size = std::min(end, text.size()) - at;
        text.replace(at, size, with_own_separators(text.substr(at, size)));
    }
    return text;
}

// The golden files of a case, without marks.
files_by_name golden_files(const std::string& case_name, const std::map<std::string, std::string>& marks) {
    const bool is_elsewhere = case_name.find('/') != std::string::npos;
    const std::string folder =
        std::string(TESSALINE_SOURCE_DIR) + (is_elsewhere ? "/" : "/tests/batch/") + case_name + "/expected";
    EXPECT_TRUE(std::filesystem::exists(folder)) << "no golden files: " << folder;
    files_by_name files;
    for (auto& [name, text] : files_below(folder))
        files[without_marks(name, marks)] = without_marks(with_own_paths(text), marks);
    return files;
}

// A line in a form that shows its end.
std::string shown(std::string_view line) {
    std::string text;
    for (const char c : line)
        text += c == '\r' ? std::string("\\r") : c == '\n' ? std::string("\\n") : std::string(1, c);
    return text;
}

std::string_view line_at(std::string_view text, std::size_t start) {
    const std::size_t feed = text.find('\n', start);
    return feed == std::string_view::npos ? text.substr(start) : text.substr(start, feed - start + 1);
}

std::string first_difference(std::string_view expected, std::string_view found) {
    std::size_t line = 1;
    std::size_t start = 0;
    while (start < expected.size() && start < found.size() && line_at(expected, start) == line_at(found, start)) {
        start += line_at(expected, start).size();
        ++line;
    }
    const auto line_or_end = [start](std::string_view text) {
        return start < text.size() ? shown(line_at(text, start)) : std::string("the end of the file");
    };
    return "line " + std::to_string(line) + "\n  expected: " + line_or_end(expected) +
           "\n  found:    " + line_or_end(found);
}

std::string copy_of(const batch& found, const std::string& case_name) {
    const std::string kept = std::string(FAILED_BATCHES) + "/" + case_name;
    std::filesystem::remove_all(kept);
    std::filesystem::create_directories(kept);
    std::filesystem::copy(found.folder(), kept, std::filesystem::copy_options::recursive);
    return kept;
}

// Fails the running test unless these codes are found and no others, notes aside.
void expect_these(const std::set<batch_check::code>& expected, const batch_check::findings& found) {
    std::set<batch_check::code> codes;
    for (const batch_check::finding& one : found.kept())
        if (batch_check::entry_of(one.what).weight != batch_check::severity::note)
            codes.insert(one.what);
    EXPECT_TRUE(codes == expected) << "found:\n" << batch_check::finding_lines(found);
}

} // namespace

files_by_name files_below(const std::string& folder) {
    files_by_name files;
    if (std::filesystem::exists(folder))
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
            if (!entry.is_directory())
                files[std::filesystem::relative(entry.path(), folder).generic_string()] = bytes_of(entry.path());
    return files;
}

std::set<std::string> folders_of_every_run() {
    return {"Batch_OrnTexture_Files", "Batch_SketchUp_Textures", "Plants",
            "ZynBatch_Images",        "ZynBatch_Lights",         "ZynBatch_Materials"};
}

batch::batch(const std::string& folder_name) : name(folder_name), full_name(outside.make_folder(folder_name)) {
    outside.make_folder("home");
    outside.make_folder("tmp");
    put_mark("@BATCH@", full_name);
}

void batch::put(const std::string& inside, std::string_view bytes) {
    outside.write(name + "/" + inside, bytes);
}

void batch::put_model(sketchup::model_builder& m, const std::string& inside, skp::classic_version version) {
    const std::vector<std::uint8_t> bytes = skp::write_classic(*m.finish(), version);
    written_models[inside] = std::string(bytes.begin(), bytes.end());
    put(inside, written_models[inside]);
}

void batch::put_mark(const std::string& mark, const std::string& text) {
    golden_marks[mark] = text;
}

void batch::expect_file(const std::string& inside, std::string_view bytes) {
    files_to_find[inside] = bytes;
}

void batch::expect_picture(const std::string& inside, encoded_picture wanted) {
    pictures_to_find[inside] = std::move(wanted);
}

void batch::set_date(std::string seconds, std::string time_zone) {
    date = std::move(seconds);
    zone = std::move(time_zone);
}

std::string tested_program() {
    const char* other = std::getenv("TESSALINE_TESTED_PROGRAM");
    return other != nullptr ? other : TESSALINE_PROGRAM;
}

program_result batch::run(const std::vector<std::string>& more_arguments) const {
    std::vector<std::string> arguments = {*this / "geometry.qlm"};
    arguments.insert(arguments.end(), more_arguments.begin(), more_arguments.end());
    return run_with(arguments);
}

program_start batch::start_with(const std::vector<std::string>& arguments, const std::string& current_folder) const {
    program_start start = {tested_program(), arguments, current_folder, settings_in(outside / "home")};
    const auto fixed = date.empty() ? std::nullopt : std::optional(date);
    for (environment_change& one : std::vector<environment_change>{{"TESSALINE_TRACE", std::nullopt},
                                                                   {"SOURCE_DATE_EPOCH", fixed},
                                                                   {"TMPDIR", outside / "tmp"},
                                                                   {"TMP", outside / "tmp"},
                                                                   {"TZ", zone}})
        start.environment.push_back(std::move(one));
    return start;
}

program_result batch::run_with(const std::vector<std::string>& arguments, const std::string& current_folder) const {
    program_result result = run_program(start_with(arguments, current_folder));
    EXPECT_EQ(result.end, "");
    expect_findings(*this);
    return result;
}

files_by_name batch::files() const {
    return files_below(full_name);
}

std::set<std::string> batch::folders() const {
    std::set<std::string> folders;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(full_name))
        if (entry.is_directory())
            folders.insert(std::filesystem::relative(entry.path(), full_name).generic_string());
    return folders;
}

std::string without_marks(std::string text, const std::map<std::string, std::string>& marks) {
    for (std::size_t at = text.find('@'); at != std::string::npos;) {
        const auto found = std::find_if(marks.begin(), marks.end(), [&](const auto& mark) {
            return text.compare(at, mark.first.size(), mark.first) == 0;
        });
        if (found == marks.end()) {
            at = text.find('@', at + 1);
            continue;
        }
        text.replace(at, found->first.size(), found->second);
        at = text.find('@', at + found->second.size());
    }
    return text;
}

std::vector<std::string> differences(const files_by_name& expected, const files_by_name& found) {
    std::vector<std::string> all;
    for (const auto& [name, text] : expected)
        if (!found.contains(name))
            all.push_back(name + " is missing");
        else if (found.at(name) != text)
            all.push_back(name + " differs in " + first_difference(text, found.at(name)));
    for (const auto& [name, text] : found)
        if (!expected.contains(name))
            all.push_back(name + " is not expected");
    return all;
}

std::string difference_from(const encoded_picture& wanted, std::string_view text) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    if (image::format_of_bytes(bytes) != wanted.format)
        return "is of another format";
    const auto decoded = image::decode_picture(bytes);
    if (!decoded)
        return "does not decode";
    if (decoded->extent() != wanted.pixels.extent())
        return "has another size or depth";
    for (std::size_t i = 0; i < decoded->bytes().size(); ++i)
        if (std::abs(int{decoded->bytes()[i]} - int{wanted.pixels.bytes()[i]}) > wanted.tolerance)
            return "differs in byte " + std::to_string(i) + " of its pixels";
    return {};
}

void expect_findings(const batch& found) {
    const files_by_name files = found.files();
    for (const auto& [name, bytes] : files) {
        if (name == usual_stream || !bytes.starts_with(first_line_of_stream))
            continue;
        batch_check::findings seen;
        files_in_memory::bytes_in_memory stream(bytes);
        batch_check::check_stream(stream, name, seen);
        expect_these(found.expected_codes(), seen);
    }
    const auto usual = files.find(usual_stream);
    if (usual != files.end() && usual->second.starts_with(first_line_of_stream))
        expect_these(found.expected_codes(),
                     batch_check::check_batch(*batch_check::folder_on_disk(found.folder())).found);
}

void expect_batch(const batch& found, const std::string& case_name, const std::set<std::string>& folders) {
    files_by_name expected = golden_files(case_name, found.marks());
    expected.insert(found.models().begin(), found.models().end());
    expected.insert(found.expected_files().begin(), found.expected_files().end());
    files_by_name files = found.files();
    for (const auto& [name, wanted] : found.expected_pictures()) {
        EXPECT_TRUE(files.contains(name)) << name << " is missing";
        EXPECT_EQ(difference_from(wanted, files[name]), "") << name;
        files.erase(name);
    }
    for (const std::string& one : differences(expected, files))
        ADD_FAILURE() << one;
    EXPECT_EQ(found.folders(), folders);
    expect_findings(found);
    if (testing::Test::HasFailure())
        GTEST_LOG_(INFO) << "what was found is in " << copy_of(found, case_name);
}

void expect_run(const batch& prepared, const std::string& case_name, const std::vector<std::string>& more_arguments) {
    const program_result outcome = prepared.run(more_arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, quiet_errors);
    expect_batch(prepared, case_name);
}
