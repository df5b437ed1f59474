#pragma once

// One table of what became of the models of a list, from the report that the run of each one has written.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct table_row {
    std::string model; // its place below the common folder
    int status = 0;    // of its run
    std::optional<double> seconds;
    std::optional<std::uint64_t> memory_bytes; // the most that the run has occupied
    std::optional<std::uint64_t> triangles;
    std::optional<std::uint64_t> findings; // errors and warnings of the checker
    std::vector<std::string> codes;        // of these findings, each once
    std::string sentence;                  // why the run failed; empty for status 0
};

// The status of a model whose run has left no report, or one that cannot be read: it was ended before it could.
inline constexpr int status_without_report = 6;

// The row of a model. report: the bytes of its report; nothing if there is none. Whatever the report lacks stays
// nothing; one that tells no status from 0 to 7 counts as none. Never fails.
table_row row_of_report(const std::string& model, const std::optional<std::string>& report);

// 0 if all models are done, or were so before; else the highest of their statuses.
int highest_status(const std::vector<table_row>& rows);

// Comma-separated values as RFC 4180 has them but with LF, a head first: model, status, seconds, memory_bytes,
// triangles, findings, codes, sentence. Names stand as their bytes are; a quotation mark is doubled, and a field that
// needs it stands in quotation marks.
std::string table_as_csv(const std::vector<table_row>& rows);

// For people: aligned columns, the model last so that names of any length and alphabet fit; behind it the codes of its
// findings or the sentence. Control characters stand as \xHH. The last line sums up.
std::string table_as_text(const std::vector<table_row>& rows);
