// Turns a model into a batch that can be trusted, and says by its status what became of it.

#include "platform/child_process.h"
#include "platform/platform.h"
#include "text/one_line.h"
#include "tools/command_line/answers.h"
#include "tools/single_run/report_file.h"
#include "tools/single_run/run_inputs.h"
#include "tools/single_run/run_once.h"
#include "tools/tessaline-run/list_command.h"

#include <new>
#include <string>
#include <vector>

namespace {

std::string usage() {
    std::string text =
        "usage: tessaline-run [OPTIONS] MODEL BATCH_FOLDER\n"
        "Converts MODEL in BATCH_FOLDER, which is made, and checks what is left there. Only a folder that holds\n"
        "tessaline-run.json is a finished batch; of a run that fails nothing is left.\n"
        "  --with FILE          copy a file of the parent into the folder: settings, views, scattered components\n"
        "  --option NAME=VALUE  a setting, over what the option file says\n"
        "  --force              convert again though nothing has changed since the batch was finished\n"
        "  --seconds N          the most that the run may take\n"
        "  --memory SIZE        the most that each program may take, such as 2G\n"
        "  --json FILE          write the report of the run there, too, however it ends\n"
        "  --progress openjd    tell the progress on standard output, as the Open Job Description has it\n"
        "Status:\n";
    for (const status_row& row : status_table())
        text += "  " + std::to_string(static_cast<int>(row.status)) + "  " + std::string(row.meaning) + '\n';
    return has_lists ? text.append(list_usage) : text;
}

// The last line is a sentence.
int told(run_report report) {
    if (report.status == run_status::done && !platform::write_standard_output(on_one_line(report.sentence) + '\n')) {
        report.status = run_status::not_written;
        report.sentence += " Standard output does not take this sentence.";
    }
    if (report.status != run_status::done)
        platform::write_standard_error("tessaline-run: " + on_one_line(report.sentence) + '\n');
    return static_cast<int>(report.status);
}

int run_with(const run_options& options) {
    const platform::end_requests noted;
    report_file json;
    run_report report;
    if (report.sentence = complaint_about_report_file(options); !report.sentence.empty()) {
        report.status = run_status::usage;
        return told(report);
    }
    if (!options.json.empty())
        if (const std::string words = json.open(options.json); !words.empty()) {
            report.status = run_status::not_written;
            report.sentence = "The report cannot be written to " + options.json + ": " + words + '.';
            return told(report);
        }
    try {
        report = run_once(options);
    } catch (const std::bad_alloc&) {
        report.status = run_status::beyond_limits;
        report.sentence = "There is not enough memory.";
    }
    if (!json.write(text_of_report(report))) {
        if (report.status == run_status::done)
            report.status = run_status::not_written;
        report.sentence += " The report could not be written to " + options.json + '.';
    }
    return told(report);
}

} // namespace

int main(int argc, char** argv) {
    const std::string usage_text = usage();
    if (const auto status = run_list_command(argc, argv, usage_text))
        return *status;
    if (const auto status =
            answer_at_once(argc, argv, "tessaline-run", usage_text,
                           {"--with", "--option", "--force", "--seconds", "--memory", "--json", "--progress"},
                           static_cast<int>(run_status::not_written)))
        return *status;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.empty())
        return refuse_command_line(usage_text);
    const read_options read = read_run_options(arguments);
    if (!read.complaint.empty()) {
        platform::write_standard_error("tessaline-run: " + on_one_line(read.complaint) + '\n');
        return static_cast<int>(run_status::usage);
    }
    return run_with(read.options);
}
