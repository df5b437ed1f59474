// Opens any bytes as the archive of a model file, behind a fixed header, and unpacks every picture in it.

#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/fuzz/archive_file.h"
#include "tests/fuzz/touch_model.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto m = skp::read_model(file_of_archive({data, size}));
        touch_model(*m);
        for (const sketchup::picture& p : m->pictures)
            p.load();
    } catch (const skp::format_error&) {
        return 0;
    }
    return 0;
}
