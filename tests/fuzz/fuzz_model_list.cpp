// Reads any bytes as a list of models and as the report of a run: the models of a list make the same list again, and
// whatever a report holds becomes one row.

#include "tools/model_lists/model_list.h"
#include "tools/model_lists/report_table.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void check_list(const std::string& text) {
    const list_reading read = read_model_list(text, "/house/folder", std::nullopt);
    if (!read.refusal.empty())
        return;
    std::string again;
    for (std::size_t i = 0; i < read.list.places.size(); ++i)
        again.append(read.list.model(i)).push_back('\0');
    const list_reading same = read_model_list(again, "/other", read.list.root + "/");
    if (!same.refusal.empty() || same.list.root != read.list.root || same.list.places != read.list.places)
        std::abort();
}

void check_report(const std::string& report) {
    const table_row row = row_of_report("a\nb", report);
    if (row.status < 0 || row.status > 7)
        std::abort();
    const std::string text = table_as_text({row});
    if (std::count(text.begin(), text.end(), '\n') != 3 || table_as_csv({row}).back() != '\n')
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    check_list(text);
    check_report(text);
    return 0;
}
