// Checks any bytes as the files of a batch: the same every time, with a report that can be printed, and with nothing
// found under a code that is ignored. Pictures that are slow to decode are left out: fuzz_picture has its own limits.

#include "image/decode_picture.h"
#include "tests/fuzz/batch_text.h"
#include "tests/support/files_in_memory.h"
#include "tools/batch_check/check_batch.h"
#include "tools/batch_check/first_screen.h"
#include "tools/batch_check/report_json.h"

#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::uint64_t most_pixels = 1 << 16; // so that an input takes milliseconds

bool is_slow(const std::string& bytes) {
    const auto size = image::picture_size({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    return size && std::uint64_t{size->width} * size->height > most_pixels;
}

std::string printed(const batch_check::batch_report& report) {
    batch_check::json_document document(true);
    document.add("batch", report);
    return batch_check::first_screen("batch", report) + batch_check::finding_lines(report.found) + document.text();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto all = batch_text::files_in({reinterpret_cast<const char*>(data), size});
    std::erase_if(all, [](const auto& file) { return is_slow(file.second); });
    const files_in_memory files(all, "/batches/small");
    const batch_check::batch_report report = batch_check::check_batch(files);
    if (printed(report) != printed(batch_check::check_batch(files)))
        std::abort();
    std::set<batch_check::code> found;
    for (const batch_check::finding& one : report.found.kept())
        found.insert(one.what);
    if (!batch_check::check_batch(files, found).found.kept().empty())
        std::abort();
    return 0;
}
