// How the chunks of a hexadecimal text are put together.

#include "tessaline/files/hex_chunks.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

// The text in front of the first ";", which goes with it; false, and nothing happens, if that is nowhere or first.
bool cut_field(std::string_view& text, std::string_view& field) {
    const std::size_t at = text.find(';');
    if (at == std::string_view::npos || at == 0)
        return false;
    field = text.substr(0, at);
    text.remove_prefix(at + 1);
    return true;
}

// What is beyond 32 bits is as large as they go.
std::int32_t count_in(std::string_view text) {
    constexpr long long largest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(
        std::clamp(std::strtoll(std::string(text).c_str(), nullptr, 10), -largest, largest));
}

} // namespace

void hex_header::read(std::string_view text) {
    std::string_view field;
    if (cut_field(text, field))
        total_length = field;
    if (cut_field(text, field))
        chunk_count = count_in(field);
    if (cut_field(text, field))
        last_field = field;
}

std::string assembled_hex_text(const hex_header& header, const hex_chunks_by_number& chunks) {
    const auto total = static_cast<std::size_t>(std::max(0, count_in(header.total_length)));
    std::string text;
    for (std::int32_t number = 0; number < header.chunk_count && text.size() < total; ++number) {
        const auto chunk = chunks.find(number);
        if (chunk == chunks.end())
            break;
        const std::size_t taken = std::min({chunk->second.size(), hex_chunk_length, total - text.size()});
        text.append(chunk->second, 0, taken);
        if (taken < hex_chunk_length)
            break;
    }
    return text;
}
