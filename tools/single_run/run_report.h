#pragma once

// What a run has to say of itself: its report, as the file tessaline-run.json and the option --json have it.

#include "tools/single_run/hashed_file.h"
#include "tools/single_run/run_status.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// What the checker found, as its own report says it.
struct batch_verdict {
    bool is_sound = false;
    std::string counts = "{}";   // JSON
    std::string findings = "[]"; // JSON
    std::uint64_t errors = 0;
    std::uint64_t warnings = 0;
};

struct run_report {
    run_status status = run_status::done;
    std::string sentence;
    bool is_skipped = false;
    std::string folder; // full name
    file_facts model;
    std::vector<file_facts> files; // of the parent
    std::map<std::string, std::string> settings;
    double seconds = 0;
    std::uint64_t peak_memory_bytes = 0; // of the converter; 0 if it did not run
    std::vector<std::string> messages;   // of the converter to its user
    batch_verdict verdict;
};

// How every report begins. The mark of a run that is at work holds no more than that.
inline constexpr std::string_view report_beginning = "{\n \"format\": 1,\n \"program\": \"tessaline-run\"";

// One object on lines of its own; texts of the system's encoding as UTF-8.
std::string text_of_report(const run_report& report);

// Whether the finished batch with that report was made of the same model, files, settings and program, in the same
// folder. bytes: of the report.
bool is_same_run(std::string_view bytes, const run_report& wanted);

// What the report of a finished batch says of its content; nothing for bytes that are no report. Never fails.
batch_verdict verdict_in(std::string_view bytes);
