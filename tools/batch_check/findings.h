#pragma once

// What the checker has found, bounded: of each code the first few are kept, all are counted.

#include "tools/batch_check/codes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace batch_check {

struct finding {
    code what = code::not_a_batch;
    std::string file;     // from the batch folder on, with "/"; empty if it is about the folder
    std::size_t line = 0; // from 1; 0 if it is about the whole file
    std::string text;
};

class findings {
public:
    static constexpr std::size_t kept_of_a_code = 20;

    // ignored: codes that count as not found.
    explicit findings(std::set<code> ignored = {}) : ignored_codes(std::move(ignored)) {}

    void add(code what, std::string file, std::size_t line, std::string text);

    // In the order of finding.
    const std::vector<finding>& kept() const { return all; }
    std::uint64_t count(code what) const { return counts[static_cast<std::size_t>(what)]; }
    std::uint64_t count(severity weight) const;
    // How many of a code are counted and not kept.
    std::uint64_t left_out(code what) const;

private:
    std::set<code> ignored_codes;
    std::vector<finding> all;
    std::array<std::uint64_t, static_cast<std::size_t>(code::option_order) + 1> counts{};
};

// A text as a finding quotes it: in quotation marks, on one line (text/one_line.h), cut to some 80 bytes, and with
// the last part alone of what is a full name, so that a report does not depend on where a folder lies.
std::string in_quotes(std::string_view text);

} // namespace batch_check
