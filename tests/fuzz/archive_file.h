#pragma once

// A model file of 2025 apart: its header, and the archive behind it.

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

// The file that an archive is the rest of.
inline std::vector<std::uint8_t> file_of_archive(std::span<const std::uint8_t> archive) {
    constexpr auto header = std::to_array<std::uint8_t>({
        0xFF, 0xFE, 0xFF, 14, 'S', 0, 'k', 0,  'e', 0, 't', 0, 'c', 0, 'h', 0, 'U', 0, 'p', 0,
        ' ',  0,    'M',  0,  'o', 0, 'd', 0,  'e', 0, 'l', 0,                                 // a counted text
        0xFF, 0xFE, 0xFF, 8,  '{', 0, '2', 0,  '5', 0, '.', 0, '0', 0, '.', 0, '1', 0, '}', 0, // another
        'V',  'F',  'F',  8,  0,   1, 0,   17, 0,   0, 0,   0, 0,                              // and eight bytes
    });
    std::vector<std::uint8_t> file(header.size() + archive.size());
    std::copy(archive.begin(), archive.end(), std::copy(header.begin(), header.end(), file.begin()));
    return file;
}

// The archive in a model file; empty if there is none.
inline std::vector<std::uint8_t> archive_of_file(std::span<const std::uint8_t> file) {
    constexpr auto mark = std::to_array<std::uint8_t>({'P', 'K', 3, 4});
    return {std::search(file.begin(), file.end(), mark.begin(), mark.end()), file.end()};
}
