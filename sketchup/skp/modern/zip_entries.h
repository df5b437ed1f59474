#pragma once

// The entries of the archive in a model file.

#include "sketchup/skp/modern/entry_source.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

struct zip;

namespace skp::modern {

// Deflate packs at most 258 bytes into 2 bits, so 1032 : 1. An entry that announces more lies about its size.
inline constexpr std::uint64_t most_unpacked_per_packed = 1100;

// The most bytes that all entries together may unpack to: real models reach 10 : 1, but a small one may hold a blank
// picture. Without it a file of 20 MB could ask for 22 GB.
constexpr std::uint64_t most_unpacked(std::uint64_t archive_bytes) {
    constexpr std::uint64_t of_any_archive = std::uint64_t{256} << 20;
    constexpr std::uint64_t per_byte = 64;
    return std::min(most_unpacked_per_packed * archive_bytes, of_any_archive + per_byte * archive_bytes);
}

class zip_entries : public entry_source {
public:
    // file: a model file, kept alive as long as this. start: where its archive begins; offsets count from there.
    // Names are bytes as they stand, which is UTF-8 although the archive does not say so; the first of equal names
    // wins. Throws format_error if there is no archive, or if all entries together announce more than the archive can
    // hold.
    zip_entries(std::shared_ptr<const std::vector<std::uint8_t>> file, std::size_t start);
    ~zip_entries() override;

    bool has(const std::string& name) const override { return places_.contains(name); }
    // Also refuses entries that are encrypted, packed by anything but deflate, or not of the announced size.
    std::vector<std::uint8_t> read(const std::string& name) override;

private:
    void list_entries();

    std::shared_ptr<const std::vector<std::uint8_t>> file_;
    std::size_t start_;
    zip* archive_ = nullptr;
    std::unordered_map<std::string, std::uint64_t> places_;
};

} // namespace skp::modern
