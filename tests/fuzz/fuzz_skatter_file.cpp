// Reads any bytes as the list of scattered components: each line that is counted gives one placement.

#include "qlw/trimmed.h"
#include "tessaline/plants/skatter_file.h"
#include "tests/support/temporary_folder.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const temporary_folder folder;
    const std::string file =
        folder.write("skatter_insts.txt", std::string_view(reinterpret_cast<const char*>(data), size));
    std::uint64_t placements = 0;
    for_each_skatter_placement(file, [&](const skatter_placement& placement) {
        ++placements;
        if (trimmed(placement.definition_name) != placement.definition_name)
            std::abort();
    });
    if (placements != skatter_line_count(file))
        std::abort();
    return 0;
}
