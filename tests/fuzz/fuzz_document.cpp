// Reads any bytes as the document that describes a material.

#include "sketchup/skp/format_error.h"
#include "sketchup/skp/modern/material_document.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto document = skp::modern::read_material_document({data, size}, "material.xml");
        if (document.type > sketchup::material_type::colorized)
            std::abort();
    } catch (const skp::format_error&) {
        return 0;
    }
    return 0;
}
