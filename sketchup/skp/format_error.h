#pragma once

// The one exception of the file readers. It never crosses the C interface.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace skp {

enum class failure {
    not_a_model, // the bytes are no SketchUp model at all
    too_new,     // a model of a version or container that is newer than any known
    damaged,     // a model whose bytes contradict the format
};

struct format_error : std::runtime_error {
    // offset: in bytes from the start of the file (of the unpacked document in an archive).
    // where: the class or tag being read; reason: what is wrong, in words.
    // what() reads "offset 18422, CFace: loop count 900000 needs 3600000 bytes, 512 left".
    format_error(failure failure_kind, std::uint64_t offset, const std::string& where, const std::string& reason)
        : std::runtime_error("offset " + std::to_string(offset) + ", " + where + ": " + reason), why(failure_kind) {}
    failure why;
};

} // namespace skp
