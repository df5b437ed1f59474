// How an edited material file comes out of the attributes of its material.

#include "tessaline/materials/edited_material.h"

#include "qlw/qlw_trace.h"
#include "qlw/text_numbers.h"
#include "skp_ruby/skp_ruby.h"
#include "tessaline/files/decoded_file.h"
#include "tessaline/files/paths.h"

#include <stdexcept>

namespace {

constexpr std::string_view header_key = "ORNZyn Material Settings";
constexpr std::string_view chunk_key = "ORNZyn Material Settings_chunk";

// The list of chunks reaches up to the highest number that it was given; what lies between is empty.
void check_chunks(const edited_material& edited) {
    const std::int32_t listed = edited.chunks.empty() ? 0 : edited.chunks.rbegin()->first;
    if (edited.header.chunk_count > 0 && (edited.chunks.empty() || edited.header.chunk_count - 1 > listed))
        throw std::invalid_argument("an edited material lacks a chunk of its file");
}

} // namespace

bool edited_material::take(std::string_view key, std::string_view value) {
    if (key == header_key) {
        has_header = true;
        header.read(value);
        return true;
    }
    if (!key.starts_with(chunk_key))
        return false;
    const std::int32_t number = decimal_value(key.substr(chunk_key.size()));
    if (number < 0)
        throw std::invalid_argument("a chunk of an edited material has a number below 0");
    chunks.insert_or_assign(number, std::string(value));
    return true;
}

std::string restore_edited_material(const edited_material& edited, const std::string& folder,
                                    const std::string& file_name) {
    check_chunks(edited);
    cl_hex_encode decoder;
    decoder.decode_hex_string(header_key, assembled_hex_text(edited.header, edited.chunks));

    const std::string path = joined_inside(folder, file_name);
    if (path.empty() || !write_decoded_file(decoder, path)) {
        cl_trace::here("SketchUpReader::get_material_number", trace_level::user_error)
            .report("Cannot save edited Ornmaterial: %s", joined(folder, file_name));
        return {};
    }
    return path;
}
