// Opens any bytes as a model and touches what came of it.

#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/fuzz/touch_model.h"

#include <cstddef>
#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto m = skp::read_model(std::vector<std::uint8_t>(data, data + size));
        touch_model(*m);
        for (const sketchup::picture& p : m->pictures)
            p.load();
    } catch (const skp::format_error&) {
        return 0;
    }
    return 0;
}
