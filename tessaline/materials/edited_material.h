#pragma once

// A material file that was edited by another program and travels in the attributes of its material.

#include "tessaline/files/hex_chunks.h"

#include <string>
#include <string_view>

// The attribute values of one material that carry it.
struct edited_material {
    // Takes a value if its key is that of the header or of a chunk; false for any other key. A chunk whose number is
    // below 0 throws std::invalid_argument.
    bool take(std::string_view key, std::string_view value);
    // Whether there is a header that names a length and has its last field.
    bool is_complete() const { return has_header && header.is_complete(); }

    bool has_header = false;
    hex_header header;
    hex_chunks_by_number chunks;
};

// Writes the file that the values carry into the folder, in place of an old one. Gives its full name; empty if it could
// not be made, which is reported. A chunk number of the header's above all chunks throws std::invalid_argument, and the
// old file stays. A text that does not decode leaves an empty file.
std::string restore_edited_material(const edited_material& edited, const std::string& folder,
                                    const std::string& file_name);
