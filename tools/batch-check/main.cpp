// Says whether batch folders are whole and well-formed, and what they hold.

#include "platform/platform.h"
#include "text/one_line.h"
#include "tools/batch_check/check_batch.h"
#include "tools/batch_check/codes.h"
#include "tools/batch_check/first_screen.h"
#include "tools/batch_check/report_json.h"
#include "tools/command_line/answers.h"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace batch_check;

constexpr std::string_view usage = "usage: batch-check [OPTIONS] BATCH_FOLDER...\n"
                                   "Says whether each folder holds a whole and well-formed batch, and what it holds.\n"
                                   "  --json           one JSON document on standard output instead of words\n"
                                   "  --json=FILE      the same into a file, beside the words\n"
                                   "  --strict         warnings make a batch unsound too\n"
                                   "  --ignore CODE    nothing of this kind counts; may be given more than once\n"
                                   "  --list-codes     print every kind of finding\n"
                                   "Status 0 if all are sound, 1 if anything was found, 2 if one is no batch, or if\n"
                                   "what is found cannot be written.\n";

constexpr std::string_view json_into = "--json=";
constexpr int status_sound = 0;
constexpr int status_findings = 1;
constexpr int status_no_batch = 2;
constexpr const char* refused_output = "standard output takes nothing";

struct request {
    std::vector<std::string> folders;
    std::set<code> ignored;
    bool prints_json = false;
    std::string json_file; // empty for none
    bool is_strict = false;
};

int refuse(const std::string& reason) {
    platform::write_standard_error("batch-check: " + reason + "\n");
    return status_no_batch;
}

// Why a folder is not sound, in one line.
std::string reason_of(const batch_report& report) {
    if (report.is_batch)
        return sum_of(report.found);
    return report.found.kept().empty() ? "not a batch" : report.found.kept()[0].text;
}

// Says why a folder is not sound; gives its status.
int told_status(const request& asked, const std::string& folder, const batch_report& report) {
    if (report.is_sound(asked.is_strict))
        return status_sound;
    platform::write_standard_error("batch-check: " + on_one_line(folder) + ": " + reason_of(report) + "\n");
    return report.is_batch ? status_findings : status_no_batch;
}

bool write_file(const std::string& name, std::string_view bytes) {
    platform::file file;
    return file.open(name, platform::open_mode::write) && file.write_all(bytes) && file.close();
}

int check_all(const request& asked) {
    json_document document(asked.is_strict);
    int status = status_sound;
    bool is_printed = true;
    for (const std::string& folder : asked.folders) {
        const batch_report report = batch_check::check_batch(*folder_on_disk(folder), asked.ignored);
        document.add(folder, report);
        if (!asked.prints_json)
            is_printed &= platform::write_standard_output(first_screen(folder, report) + finding_lines(report.found));
        status = std::max(status, told_status(asked, folder, report));
    }
    const std::string json = document.text();
    if (asked.prints_json)
        is_printed &= platform::write_standard_output(json);
    if (!asked.json_file.empty() && !write_file(asked.json_file, json))
        return refuse("cannot write " + on_one_line(asked.json_file));
    return is_printed ? status : refuse(refused_output);
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answer_at_once(argc, argv, "batch-check", usage,
                                           {"--json", "--json=", "--strict", "--ignore", "--list-codes"}))
        return *status;
    request asked;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--list-codes") {
            return platform::write_standard_output(code_list()) ? status_sound : refuse(refused_output);
        }
        asked.is_strict |= argument == "--strict";
        asked.prints_json |= argument == "--json";
        if (argument == "--ignore") {
            const auto ignored = i + 1 < argc ? code_named(argv[++i]) : std::nullopt;
            if (!ignored)
                return refuse(std::string("--ignore needs a code of --list-codes"));
            asked.ignored.insert(*ignored);
        } else if (argument.starts_with(json_into)) {
            asked.json_file = argument.substr(json_into.size());
        } else if (!argument.starts_with('-')) {
            asked.folders.emplace_back(argument);
        }
    }
    if (asked.folders.empty())
        return refuse_command_line(usage);
    return check_all(asked);
}
