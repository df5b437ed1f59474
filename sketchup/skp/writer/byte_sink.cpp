#include "sketchup/skp/writer/byte_sink.h"

namespace skp {

void byte_sink::append(const void* first, std::size_t count) {
    const auto* bytes = static_cast<const std::uint8_t*>(first);
    bytes_.insert(bytes_.end(), bytes, bytes + count);
}

} // namespace skp
