#include "sketchup/skp/byte_cursor.h"

namespace skp {

void byte_cursor::fail_short(const std::string& what, std::uint64_t size) const {
    fail(what + "needs " + std::to_string(size) + " bytes, " + std::to_string(left()) + " left");
}

} // namespace skp
