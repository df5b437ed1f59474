// Takes any bytes as the attributes of a material that carries an edited file: lines of "key=value". What the carriers
// say is put together and decoded.

#include "skp_ruby/skp_ruby.h"
#include "tessaline/materials/edited_material.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace {

void take_all(edited_material& edited, std::string_view text) {
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        const std::size_t equals = line.find('=');
        if (equals != std::string_view::npos)
            edited.take(line.substr(0, equals), line.substr(equals + 1));
        text.remove_prefix(line.size() == text.size() ? line.size() : line.size() + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    edited_material edited;
    try {
        take_all(edited, text);
    } catch (const std::invalid_argument&) { // a chunk below 0
        return 0;
    }
    const std::string assembled = assembled_hex_text(edited.header, edited.chunks);
    if (assembled.size() > size)
        std::abort();
    for (const std::string_view framed : {std::string_view(assembled), text}) {
        cl_hex_encode decoder;
        const std::int32_t count = decoder.decode_hex_string("ORNZyn Material Settings", framed);
        const bool fills_more = decoder.data.size() > framed.size() || decoder.data.size() > std::size_t{50000000};
        if (count < 0 || count > 50000000 || static_cast<std::size_t>(count) < decoder.data.size() || fills_more)
            std::abort();
    }
    return 0;
}
