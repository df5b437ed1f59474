// How the text of the ground plane's material comes out of the model.

#include "tessaline/ground_plane.h"

#include "tessaline/dictionary_values.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string_view>

namespace {

constexpr std::size_t chunk_length = 400000;          // characters of every chunk but the last
constexpr std::size_t most_text = 400 * chunk_length; // no material file comes near it; a wrong length may

// Cuts a field with its ";" off the text; empty, with nothing cut, if there is no ";" behind at least one character.
std::string cut_header_field(std::string_view& text) {
    const std::size_t at = text.find(';');
    if (at == std::string_view::npos || at == 0)
        return {};
    std::string field(text.substr(0, at));
    text.remove_prefix(at + 1);
    return field;
}

std::size_t count_from(const std::string& text) {
    return static_cast<std::size_t>(std::max(0L, std::strtol(text.c_str(), nullptr, 10)));
}

std::optional<std::string> text_under(SUAttributeDictionaryRef dictionary, const std::string& key) {
    typed_value value;
    SUAttributeDictionaryGetValue(dictionary, key.c_str(), value.out());
    return value.text();
}

} // namespace

std::optional<std::string>
assembled_ground_plane(const std::function<std::optional<std::string>(const std::string&)>& text_of) {
    const std::string header = text_of("hex_data").value_or(std::string());
    std::string_view left = header;
    const std::string total_text = cut_header_field(left);
    const std::size_t chunks = count_from(cut_header_field(left));
    const std::string last_field = cut_header_field(left);
    if (chunks == 0 || total_text.empty() || last_field.empty())
        return std::nullopt;
    if (!text_of("hex_data_chunk" + std::to_string(chunks - 1)))
        return std::nullopt;
    const std::size_t total = std::min(count_from(total_text), most_text);
    std::string assembled(total, '\0');
    for (std::size_t number = 0; number < chunks && number * chunk_length < total; ++number) {
        const std::string chunk = text_of("hex_data_chunk" + std::to_string(number)).value_or(std::string());
        const std::size_t from = number * chunk_length;
        const std::size_t length = std::min({chunk.size(), chunk_length, total - from});
        assembled.replace(from, length, chunk, 0, length);
    }
    return assembled;
}

std::optional<std::string> ground_plane_text(SUAttributeDictionaryRef dictionary, bool& saved) {
    typed_value answer;
    if (SUAttributeDictionaryGetValue(dictionary, "Ground_Plane_Saved", answer.out()) == SU_ERROR_NONE)
        saved = answer.boolean().value_or(false);
    if (!saved)
        return std::nullopt;
    return assembled_ground_plane([dictionary](const std::string& key) { return text_under(dictionary, key); });
}
