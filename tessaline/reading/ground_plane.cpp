// How the text of the ground plane's material comes out of the model.

#include "tessaline/reading/ground_plane.h"

#include "tessaline/files/hex_chunks.h"
#include "tessaline/model/dictionary_values.h"

#include <cstdint>
#include <utility>

namespace {

std::optional<std::string> text_under(SUAttributeDictionaryRef dictionary, const std::string& key) {
    typed_value value;
    SUAttributeDictionaryGetValue(dictionary, key.c_str(), value.out());
    return value.text();
}

} // namespace

std::optional<std::string>
assembled_ground_plane(const std::function<std::optional<std::string>(const std::string&)>& text_of) {
    hex_header header;
    header.read(text_of("hex_data").value_or(std::string()));
    if (header.chunk_count < 1 || !header.is_complete())
        return std::nullopt;
    const auto key_of = [](std::int32_t number) { return "hex_data_chunk" + std::to_string(number); };
    if (!text_of(key_of(header.chunk_count - 1)))
        return std::nullopt;
    hex_chunks_by_number chunks;
    // The text ends at the first chunk that is missing, so that a count beyond all chunks costs nothing.
    for (std::int32_t number = 0; number < header.chunk_count; ++number) {
        auto chunk = text_of(key_of(number));
        if (!chunk)
            break;
        chunks.emplace(number, std::move(*chunk));
    }
    return assembled_hex_text(header, chunks);
}

std::optional<std::string> ground_plane_text(SUAttributeDictionaryRef dictionary, bool& saved) {
    typed_value answer;
    if (SUAttributeDictionaryGetValue(dictionary, "Ground_Plane_Saved", answer.out()) == SU_ERROR_NONE)
        saved = answer.boolean().value_or(false);
    if (!saved)
        return std::nullopt;
    return assembled_ground_plane([dictionary](const std::string& key) { return text_under(dictionary, key); });
}
