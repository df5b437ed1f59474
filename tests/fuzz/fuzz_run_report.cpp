// Reads any bytes as the report of a finished batch and as an answer of the checker: what is taken from them makes a
// report again, from which the same is taken.

#include "tools/single_run/batch_place.h"
#include "tools/single_run/check_batch.h"
#include "tools/single_run/run_report.h"
#include "tools/single_run/run_sentences.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void expect(bool is_true) {
    if (!is_true)
        std::abort();
}

void expect_same_again(const run_report& report) {
    const std::string text = text_of_report(report);
    expect(is_report(text));
    expect(is_same_run(text, report));
    const batch_verdict again = verdict_in(text);
    expect(again.errors == report.verdict.errors && again.warnings == report.verdict.warnings);
    expect(again.counts == report.verdict.counts && again.findings == report.verdict.findings);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    run_report report;
    report.verdict = verdict_in(bytes);
    is_report(bytes);
    is_same_run(bytes, report);
    expect_same_again(report);
    checked_batch checked;
    if (!take_answer(bytes, checked))
        return 0;
    report.verdict = checked.verdict;
    expect_same_again(report);
    expect(sentence_of_findings(checked).ends_with('.'));
    return 0;
}
