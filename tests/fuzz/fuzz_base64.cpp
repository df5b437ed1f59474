// Decodes any bytes as base64 text.

#include "skp_ruby/base64.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = decode_base64({reinterpret_cast<const char*>(data), size});
    if (bytes.size() > size * 3 / 4)
        std::abort();
    return 0;
}
