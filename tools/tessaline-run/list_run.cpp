#include "tools/tessaline-run/list_run.h"

#include "platform/child_process.h"
#include "platform/platform.h"
#include "text/one_line.h"
#include "tools/json_reading/json_reading.h"
#include "tools/model_lists/model_list.h"
#include "tools/model_lists/report_table.h"
#include "tools/single_run/run_status.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::uint64_t largest_list = std::uint64_t{1} << 32U; // bytes; some ten million models

constexpr const char* refused_output = "Standard output does not take what is to be printed";

// The last line on standard error. Gives the status.
int end_with(int status, const std::string& sentence) {
    platform::write_standard_error("tessaline-run: " + on_one_line(sentence) + ".\n");
    return status;
}
int end_with(run_status status, const std::string& sentence) {
    return end_with(static_cast<int>(status), sentence);
}

std::optional<std::string> text_of(const std::string& file, std::uint64_t limit) {
    const auto bytes = platform::read_file(file, limit);
    if (!bytes)
        return std::nullopt;
    return std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size());
}

list_reading read_list(const list_options& options) {
    const auto text = text_of(options.list, largest_list);
    if (!text)
        return {{}, "The list " + options.list + " cannot be read"};
    list_reading reading = read_model_list(*text, platform::current_folder(), options.root);
    if (!reading.refusal.empty())
        reading.refusal = options.list + ": " + reading.refusal;
    return reading;
}

bool write_file(const std::string& name, std::string_view bytes) {
    platform::file file;
    const bool is_written = file.open(name, platform::open_mode::write) && file.write_all(bytes);
    return file.close() && is_written;
}

// The full name of a program on the search path; empty if it is not there.
std::string program_on_path(std::string_view name) {
    const std::string path = platform::environment_variable("PATH").value_or("");
    for (std::string_view left = path; !left.empty();) {
        const std::size_t end = std::min(left.find(':'), left.size());
        const std::string program = platform::joined(left.substr(0, end), name);
        if (program.starts_with('/') && platform::exists(program) && !platform::is_folder(program))
            return program;
        left.remove_prefix(std::min(end + 1, left.size()));
    }
    return {};
}

// GNU parallel; empty if it is missing. Another program of the same name has other options.
std::string gnu_parallel() {
    platform::child_start start;
    start.program = program_on_path("parallel");
    start.arguments = {"--version"};
    std::string said;
    start.on_output = [&said](std::string_view piece) { said += piece; };
    if (start.program.empty() || platform::run_child(start).fate != platform::child_fate::ended ||
        !said.starts_with("GNU parallel"))
        return {};
    return start.program;
}

class list_runner {
public:
    list_runner(const list_options& chosen, const model_list& models)
        : options(chosen), list(models), output(platform::absolute_name(chosen.output)),
          folder(platform::joined(output, list_folder_name)) {
        begin = std::min(options.first, list.places.size());
        end = begin + std::min(options.count.value_or(list.places.size()), list.places.size() - begin);
    }

    bool is_whole_list() const { return !options.count; }
    bool has_models() const { return begin < end; }

    // The words of every run, one after the other, each ended by a zero byte.
    std::string jobs() const {
        std::string words;
        for (std::size_t i = begin; i < end; ++i)
            for (const std::string& word : words_of(i))
                words.append(word).push_back('\0');
        return words;
    }
    std::string jobs_file() const {
        const std::string part = is_whole_list() ? "" : "." + std::to_string(begin + 1) + "-" + std::to_string(end);
        return platform::joined(folder, "jobs" + part);
    }

    // Whether the list is one of the files that belong to the run of it, which makes them anew.
    bool is_in_its_own_way() const {
        const auto place = platform::real_name(options.list);
        const auto reports = platform::real_name(platform::joined(folder, "reports"));
        if (place && reports && place->starts_with(platform::joined(*reports, "")))
            return true;
        const std::string table = platform::joined(folder, "table");
        for (const std::string& made : {jobs_file(), job_log(), table + ".csv", table + ".txt"})
            if (place && platform::real_name(made) == place)
                return true;
        return false;
    }

    // The folders for reports (each run makes those of its batch); the reports of earlier runs go, so that none speaks
    // for this one.
    bool prepare() const {
        for (std::size_t i = begin; i < end; ++i) {
            const std::string report = report_file(output, list.places[i]);
            if (!platform::make_folders(platform::parent_of(report)).is_there ||
                (!options.resumes && platform::exists(report) && !platform::delete_file(report)))
                return false;
        }
        return write_file(jobs_file(), jobs()) && (options.resumes || write_file(job_log(), ""));
    }

    platform::child_end run(const std::string& parallel) const {
        platform::child_start start;
        start.program = parallel;
        start.arguments = {"--plain", "--will-cite", "--ungroup", "--null"};
        for (const std::string& word :
             {std::string("--arg-file"), jobs_file(), std::string("--max-args"), std::to_string(words_of(begin).size()),
              std::string("--jobs"), options.jobs, std::string("--joblog"), job_log(), std::string("--retries"),
              options.tries, std::string("--termseq"), std::string("TERM,5000,KILL,25")})
            start.arguments.push_back(word);
        if (options.resumes)
            start.arguments.push_back("--resume-failed");
        // The words of a job are quoted for the shell by GNU parallel, and only they: what they hold is never a
        // replacement string.
        start.arguments.push_back("exec");
        start.environment = {{"PARALLEL_SHELL", "/bin/sh"}, {"PARALLEL", std::nullopt}};
        start.grace = std::chrono::seconds(6);            // its runs have five of them
        start.on_output = platform::write_standard_error; // standard output is for the table
        start.on_errors = platform::write_standard_error;
        return platform::run_child(start);
    }

    std::vector<table_row> rows() const {
        std::vector<table_row> rows;
        for (std::size_t i = begin; i < end; ++i)
            rows.push_back(row_of_report(list.places[i],
                                         text_of(report_file(output, list.places[i]), json_reading::largest_report)));
        return rows;
    }

    // Prints the table, and writes it if it is that of the whole list. Gives the status.
    int show_table() const {
        const std::vector<table_row> all = rows();
        const std::string text = table_as_text(all);
        const bool is_printed = platform::write_standard_output(text);
        const std::string table = platform::joined(folder, "table");
        if (is_whole_list() && (!platform::make_folders(folder).is_there ||
                                !write_file(table + ".csv", table_as_csv(all)) || !write_file(table + ".txt", text)))
            return end_with(run_status::not_written, "The table cannot be written to " + folder);
        if (!is_printed)
            return end_with(run_status::not_written, refused_output);
        const int status = highest_status(all);
        return end_with(status, status == 0 ? "All models are done" : "Not all models are done; the table tells why");
    }

private:
    std::string job_log() const { return jobs_file() + ".log"; }

    std::vector<std::string> words_of(std::size_t number) const {
        std::vector<std::string> words = {platform::program_path()};
        words.insert(words.end(), options.run_words.begin(), options.run_words.end());
        const std::string& place = list.places[number];
        for (const std::string& word :
             {std::string("--json"), report_file(output, place), list.model(number), batch_folder(output, place)})
            words.push_back(word);
        return words;
    }

    const list_options& options;
    const model_list& list;
    std::string output;
    std::string folder;
    std::size_t begin = 0;
    std::size_t end = 0;
};

} // namespace

int run_list(const list_options& options) {
    const platform::end_requests requests;
    const std::string parallel = gnu_parallel();
    if (parallel.empty())
        return end_with(run_status::usage,
                        "GNU parallel is not installed; a list is run with it (Debian: package parallel)");
    const list_reading reading = read_list(options);
    if (!reading.refusal.empty())
        return end_with(run_status::usage, reading.refusal);
    const list_runner runner(options, reading.list);
    if (!runner.has_models())
        return end_with(run_status::usage,
                        "The list has only " + std::to_string(reading.list.places.size()) + " models");
    if (runner.is_in_its_own_way())
        return end_with(run_status::usage, options.list + " would be replaced by a file that belongs to the list");
    if (options.resumes && text_of(runner.jobs_file(), largest_list) != runner.jobs())
        return end_with(run_status::usage, "There is nothing to resume: " + runner.jobs_file() +
                                               " is missing or was written for another list or other options");
    if (!runner.prepare())
        return end_with(run_status::not_written, "The folders of the list cannot be written in " + options.output);
    const platform::child_end ended = runner.run(parallel);
    if (ended.fate == platform::child_fate::called_off)
        return end_with(run_status::ended_by_signal,
                        "Ended by " + platform::end_request() + "; the same command goes on from here");
    if (ended.fate == platform::child_fate::not_started)
        return end_with(run_status::usage, parallel + " cannot be started: " + ended.words);
    return runner.show_table();
}

int print_table(const list_options& options) {
    const list_reading reading = read_list(options);
    if (!reading.refusal.empty())
        return end_with(run_status::usage, reading.refusal);
    const list_runner runner(options, reading.list);
    if (runner.is_in_its_own_way())
        return end_with(run_status::usage, options.list + " would be replaced by a file that belongs to the list");
    return runner.show_table();
}

int print_count(const list_options& options) {
    const list_reading reading = read_list(options);
    if (!reading.refusal.empty())
        return end_with(run_status::usage, reading.refusal);
    if (!platform::write_standard_output(std::to_string(reading.list.places.size()) + "\n"))
        return end_with(run_status::not_written, refused_output);
    return 0;
}
