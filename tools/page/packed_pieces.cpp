#include "tools/page/packed_pieces.h"

#include <algorithm>
#include <limits>
#include <zlib.h>

namespace {

constexpr std::size_t block_size = std::size_t{1} << 16U;
constexpr int gzip_window = 15 + 16; // the largest window; 16 more asks for the frame of gzip
constexpr std::string_view before_piece = "<script type=\"application/octet-stream\" class=\"piece\">";
constexpr std::string_view behind_piece = "</script>\n";

} // namespace

std::string base64_of(std::string_view bytes) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t three = 0;
        for (std::size_t k = 0; k < 3; ++k)
            three = three << 8U | (k < count ? static_cast<std::uint8_t>(bytes[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k)
            text += k <= count ? digits[three >> (18 - 6 * k) & 63U] : '=';
    }
    return text;
}

struct packed_pieces::packer {
    z_stream stream{};
    bool is_ready = false;
};

packed_pieces::packed_pieces(platform::file& into, std::size_t piece)
    : file(into), piece_size(piece), block(block_size), state(std::make_unique<packer>()) {
    constexpr int memory_level = 8; // the usual one
    state->is_ready = deflateInit2(&state->stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzip_window, memory_level,
                                   Z_DEFAULT_STRATEGY) == Z_OK;
}

packed_pieces::~packed_pieces() {
    deflateEnd(&state->stream);
}

bool packed_pieces::write_pieces(bool is_last) {
    while (packed.size() >= piece_size || (is_last && !packed.empty())) {
        const std::size_t size = std::min(piece_size, packed.size());
        std::string element(before_piece);
        element += base64_of(std::string_view(packed).substr(0, size));
        element += behind_piece;
        if (!file.write_all(element))
            return false;
        packed.erase(0, size);
    }
    return true;
}

bool packed_pieces::pack(std::string_view bytes, bool is_last) {
    z_stream& stream = state->stream;
    stream.next_in = reinterpret_cast<z_const Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    int result = Z_OK;
    do {
        stream.next_out = block.data();
        stream.avail_out = static_cast<uInt>(block.size());
        result = deflate(&stream, is_last ? Z_FINISH : Z_NO_FLUSH);
        if (result == Z_STREAM_ERROR)
            return false;
        packed.append(reinterpret_cast<const char*>(block.data()), block.size() - stream.avail_out);
        if (!write_pieces(false))
            return false;
    } while (stream.avail_out == 0 || (is_last && result != Z_STREAM_END));
    return true;
}

bool packed_pieces::add(std::string_view bytes) {
    constexpr std::size_t most_at_once = std::numeric_limits<uInt>::max() / 2; // what a count of zlib holds
    for (; state->is_ready && bytes.size() > most_at_once; bytes.remove_prefix(most_at_once))
        if (!pack(bytes.substr(0, most_at_once), false))
            return false;
    return state->is_ready && pack(bytes, false);
}

bool packed_pieces::finish() {
    return state->is_ready && pack({}, true) && write_pieces(true);
}
