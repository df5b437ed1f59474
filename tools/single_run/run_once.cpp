#include "tools/single_run/run_once.h"

#include "platform/platform.h"
#include "text/one_line.h"
#include "tools/single_run/batch_place.h"
#include "tools/single_run/beside.h"
#include "tools/single_run/check_batch.h"
#include "tools/single_run/convert_model.h"
#include "tools/single_run/run_inputs.h"
#include "tools/single_run/run_progress.h"
#include "tools/single_run/run_sentences.h"

namespace {

constexpr std::string_view model_name = "geometry.qlm";
constexpr std::string_view stream_name = "batch_file.txt";

struct needed_programs {
    std::string converter;
    std::string checker;
};

// Thrown by a step that fails, caught by run_once: what a run makes is taken back in one place.
struct broken_off {
    run_status status;
    std::string sentence;
};

class one_run {
public:
    explicit one_run(const run_options& asked)
        : options(asked), clock(asked.seconds), progress(asked.tells_openjd), place(settled_folder(asked.folder)) {}

    run_report perform() {
        try {
            look_at_request();
            if (!is_done_already())
                make();
        } catch (const broken_off& end) {
            report.status = end.status;
            report.sentence = end.sentence;
        }
        report.seconds = clock.seconds();
        progress.tell_status(report.sentence);
        return std::move(report);
    }

private:
    [[noreturn]] static void fail(run_status status, std::string sentence) {
        throw broken_off{status, std::move(sentence)};
    }

    void fail_if_complaint(run_status status, const std::string& complaint) const {
        fail_if_stopped();
        if (!complaint.empty())
            fail(status, place.folder() + ' ' + complaint + '.');
    }

    void fail_if_stopped() const {
        switch (clock.must_stop()) {
        case stop_reason::none:
            return;
        case stop_reason::request:
            fail(run_status::ended_by_signal, sentence_of_request());
        case stop_reason::time:
            fail(run_status::beyond_limits, sentence_of_time(options));
        }
    }

    // What is wrong before anything is read.
    void look_at_request() {
        report.folder = place.folder();
        report.settings = options.settings;
        report.model.name = platform::last_part(options.model);
        if (const std::string complaint = complaint_about_request(options, place.folder()); !complaint.empty())
            fail(run_status::usage, complaint);
        programs = {needed("tessaline"), needed("batch-check")};
    }

    static std::string needed(const std::string& program) {
        const auto found = program_beside(program);
        if (!found)
            fail(run_status::usage, "The program " + program + " is missing beside this one.");
        return *found;
    }

    // True if a finished batch of the same run is there; the report is complete then.
    bool is_done_already() {
        look_at_model();
        fail_if_complaint(run_status::not_written, place.recover(clock));
        const auto before = options.is_forced ? std::nullopt : place.finished_report();
        if (!before || !is_report(*before))
            return false;
        progress.tell_status("comparing with the finished batch");
        take(report.model, hash_file(options.model, clock), run_status::model_not_opened, options.model);
        for (const std::string& file : options.files) {
            report.files.emplace_back();
            take(report.files.back(), hash_file(file, clock), run_status::usage, file);
        }
        if (!is_same_run(*before, report) || !platform::file_size(place / stream_name))
            return false;
        report.is_skipped = true;
        report.verdict = verdict_in(*before);
        report.sentence = sentence_of_skip(options, place.folder());
        progress.tell_percent(100);
        return true;
    }

    // A model that is not there costs no folder.
    void look_at_model() const {
        platform::file model;
        if (!model.open(options.model, platform::open_mode::read))
            fail(run_status::model_not_opened, sentence_of_model(options, words_or(model.failure())));
    }

    static std::string words_or(const std::string& words) { return words.empty() ? "the system says no more" : words; }

    // unread: the status for a file that cannot be read.
    void take(file_facts& facts, const hashed_file& file, run_status unread, const std::string& name) const {
        fail_if_stopped();
        if (file.fault == file_fault::not_read)
            fail(unread, name + " cannot be read: " + words_or(file.words) + '.');
        if (file.fault == file_fault::not_written)
            fail(run_status::not_written, "The copy of " + name + " cannot be written: " + words_or(file.words) + '.');
        facts = file.facts;
    }

    // From an empty folder to a finished batch; of what a failure leaves nothing stays.
    void make() {
        fail_if_complaint(run_status::not_written, place.claim(clock));
        try {
            copy_in();
            convert();
            check();
            finish();
        } catch (broken_off& end) {
            if (const std::string complaint = place.abandon(); !complaint.empty())
                end.sentence += " The folder " + complaint + '.';
            throw;
        } catch (...) {
            place.abandon();
            throw;
        }
    }

    void copy_in() {
        progress.tell_status("copying the model");
        progress.tell_percent(0);
        take(report.model, copy_file(options.model, place / model_name, clock), run_status::model_not_opened,
             options.model);
        report.files.clear();
        for (const std::string& file : options.files) {
            report.files.emplace_back();
            take(report.files.back(), copy_file(file, place / platform::last_part(file), clock), run_status::usage,
                 file);
        }
        if (const std::string words = add_settings(place / option_file_name, options.settings); !words.empty())
            fail(run_status::not_written, "The settings cannot be written: " + words + '.');
    }

    void convert() {
        progress.tell_status("converting the model");
        progress.tell_percent(percent_of_copy);
        const converted_model converted =
            convert_model(programs.converter, place.folder(), options.memory, clock, [this](int percent) {
                progress.tell_percent(percent_of_copy + percent * (percent_of_walk - percent_of_copy) / 100);
            });
        report.peak_memory_bytes = converted.peak_memory_bytes;
        report.messages = converted.messages;
        refused_write = converted.refused_write;
        for (const std::string& message : converted.messages)
            platform::write_standard_error("tessaline: " + on_one_line(message) + '\n');
        fail_if_stopped();
        if (converted.status == run_status::model_not_opened)
            fail(converted.status, sentence_of_model(options, converted.words));
        if (converted.status != run_status::done)
            fail(converted.status, converted.words);
    }

    void check() {
        progress.tell_status("checking the batch");
        progress.tell_percent(percent_of_walk);
        const checked_batch checked = check_batch(programs.checker, place.folder(), options.memory, clock);
        fail_if_stopped();
        report.verdict = checked.verdict;
        if (checked.is_answered && checked.verdict.is_sound)
            return;
        // What the disk refused is missing, whatever else the checker has to say of it.
        if (!refused_write.empty())
            fail(run_status::not_written, sentence_of_refusal(refused_write));
        if (!checked.is_answered)
            fail_for_checker(checked.end);
        fail(run_status::not_sound, sentence_of_findings(checked));
    }

    [[noreturn]] void fail_for_checker(const platform::child_end& end) const {
        if (end.fate == platform::child_fate::not_started)
            fail(run_status::usage, "The checker cannot be started: " + end.words + '.');
        const bool is_crash = end.fate == platform::child_fate::crashed;
        if (is_crash &&
            (options.memory == 0 || end.words != "SIGABRT")) // which is what a program of C++ does without memory
            fail(run_status::ended_by_signal, "The checker was ended by " + end.words + '.');
        if (options.memory != 0)
            fail(run_status::beyond_limits, "The checker did not get on with the memory that it was given.");
        fail(run_status::not_sound, "The checker gave no answer that can be read.");
    }

    void finish() {
        report.sentence = sentence_of_success(options, place.folder(), report.verdict, clock.seconds());
        report.seconds = clock.seconds();
        if (const std::string complaint = place.finish(text_of_report(report)); !complaint.empty())
            fail(run_status::not_written, place.folder() + ' ' + complaint + '.');
        progress.tell_percent(100);
    }

    // Where a run stands when the model is copied, and when it is converted.
    static constexpr int percent_of_copy = 5;
    static constexpr int percent_of_walk = 90;

    const run_options& options;
    run_clock clock;
    run_progress progress;
    batch_place place;
    needed_programs programs;
    run_report report;
    std::string refused_write;
};

} // namespace

run_report run_once(const run_options& options) {
    return one_run(options).perform();
}
