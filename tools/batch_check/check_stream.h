#pragma once

// Whether a stream is whole and well-formed: every line in its place, every number in its form, every number that
// refers to something leading to it.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"
#include "tools/batch_check/stream_facts.h"

#include <cstdint>
#include <string>

namespace batch_check {

// What is kept of a stream, in bytes: the names of layers, materials and files, those of materials twice, and 64 for
// each of them and each lamp.
inline constexpr std::uint64_t most_kept_of_a_stream = std::uint64_t{128} << 20U;

// Reads a stream to its end, in memory of its longest line and of what is kept of it. file: how findings name it.
// Behind a line that cannot stand where it stands the check goes on with the next item that it can make out; a stream
// of which more than most_kept would have to be kept is not read further.
stream_facts check_stream(byte_source& stream, const std::string& file, findings& found,
                          std::uint64_t most_kept = most_kept_of_a_stream);

} // namespace batch_check
