#pragma once

// Bytes as gzip in base64, in pieces that a page holds as elements of its own.

#include "platform/platform.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Base64 of RFC 4648, with padding.
std::string base64_of(std::string_view bytes);

// Packs what it is given and writes it into an open file as elements <script class="piece">.
class packed_pieces {
public:
    static constexpr std::size_t usual_piece = std::size_t{3} << 18U; // bytes of gzip in an element; a multiple of 3

    explicit packed_pieces(platform::file& into, std::size_t piece = usual_piece);
    packed_pieces(const packed_pieces&) = delete;
    packed_pieces& operator=(const packed_pieces&) = delete;
    ~packed_pieces();

    // False if the file cannot be written.
    bool add(std::string_view bytes);
    // Ends the gzip and writes the last piece. Nothing may be added later.
    bool finish();

private:
    struct packer;

    bool pack(std::string_view bytes, bool is_last);
    bool write_pieces(bool is_last);

    platform::file& file;
    std::size_t piece_size;
    std::vector<std::uint8_t> block; // what the packer writes to
    std::string packed;              // and what of it stands in no element yet
    std::unique_ptr<packer> state;
};
