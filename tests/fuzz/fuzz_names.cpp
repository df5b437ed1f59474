// Takes any bytes as the name of a material: what is escaped is safe and comes back, and no file name leads away.

#include "platform/platform.h"
#include "tessaline/files/paths.h"
#include "tessaline/materials/name_escaping.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void expect(bool holds) {
    if (!holds)
        std::abort();
}

bool leads_away(const std::string& name) {
    const std::string path = joined_inside("folder", name);
    return !path.empty() && (path.rfind(platform::path_separator) != std::string("folder").size() ||
                             path.find('\0') != std::string::npos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string name(reinterpret_cast<const char*>(data), size);
    const std::string encoded = url_encode_name(name);
    if (encoded != name)
        expect(url_decode_name(encoded) == name && !joined_inside("folder", encoded).empty());
    expect(url_decode_name(name).size() <= name.size());
    expect(!leads_away(encoded) && !leads_away(url_encode_name(url_decode_name(name))));
    const std::string filtered = filter_file_name(name);
    expect(filter_file_name(filtered) == filtered && !leads_away(filtered));
    return 0;
}
