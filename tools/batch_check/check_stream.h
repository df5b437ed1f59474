#pragma once

// Whether a stream is whole and well-formed: every line in its place, every number in its form, every number that
// refers to something leading to it.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"
#include "tools/batch_check/stream_facts.h"

#include <string>

namespace batch_check {

// Reads a stream to its end, in memory of its longest line and the names in it. file: how findings name it. Behind a
// line that cannot stand where it stands the check goes on with the next item that it can make out.
stream_facts check_stream(byte_source& stream, const std::string& file, findings& found);

} // namespace batch_check
