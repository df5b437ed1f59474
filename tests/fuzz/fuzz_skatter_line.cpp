// Reads any bytes as one line of the file of scattered components.

#include "tessaline/skatter_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const skatter_placement placement = skatter_placement_from({reinterpret_cast<const char*>(data), size});
    if (placement.definition_name.size() > size)
        std::abort();
    return 0;
}
