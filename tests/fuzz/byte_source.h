#pragma once

// Any bytes as numbers, for the targets that make geometry of them.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// Past the end all bytes are 0.
class byte_source {
public:
    byte_source(const std::uint8_t* data, std::size_t size) : bytes_(data, size) {}
    bool is_empty() const { return bytes_.empty(); }
    int next() {
        if (bytes_.empty())
            return 0;
        const int byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }
    // Mostly whole, so that lines meet; sometimes beside that by less or more than the tolerance of openings.
    double coordinate() {
        static constexpr std::array<double, 8> beside = {0, 0, 0, 0, 1e-9, 4e-4, -9e-4, 1.1e-3};
        const int byte = next();
        return byte % 32 + beside[static_cast<std::size_t>(byte / 32)];
    }

private:
    std::span<const std::uint8_t> bytes_;
};
