#pragma once

// The small text files of a batch: lines that end in CR LF, read whole.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace batch_check {

class small_text {
public:
    // Files with more of either count as not readable.
    static constexpr std::uint64_t most_bytes = std::uint64_t{64} << 20U;
    static constexpr std::size_t most_lines = 1'000'000;

    // Nothing if the file cannot be read. Lines with another end than CR LF are one finding of that code, and count.
    static std::optional<small_text> read(const batch_files& files, const std::string& file, code wrong_end,
                                          findings& found);

    std::size_t line_count() const { return starts.size(); }
    std::string_view line(std::size_t index) const; // from 0, without its end

private:
    std::string bytes;
    std::vector<std::size_t> starts;
};

// Where findings about a small text go.
struct finding_place {
    findings& found;
    const std::string& file;

    // index: of the line, from 0.
    void report(code what, std::size_t index, const std::string& text) const { found.add(what, file, index + 1, text); }
};

} // namespace batch_check
