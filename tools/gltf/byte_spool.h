#pragma once

// Bytes that grow in many places at once: in memory up to a bound, beyond it in a file.

#include "platform/platform.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace gltf {

class byte_spool {
public:
    static constexpr std::size_t usual_memory = std::size_t{64} << 20U;

    // file_name: made when the memory is full, and deleted with the spool. memory: bytes kept before that.
    explicit byte_spool(std::string file_name, std::size_t memory = usual_memory);
    ~byte_spool();
    byte_spool(const byte_spool&) = delete;
    byte_spool& operator=(const byte_spool&) = delete;

    // A row of bytes of its own; all begin empty.
    using strand = std::uint32_t;
    strand begin();

    void append(strand to, std::string_view bytes) {
        strands[to].tail.append(bytes);
        kept += bytes.size();
        if (kept > most_kept)
            move_to_file();
    }

    std::uint64_t size(strand of) const { return strands[of].in_file + strands[of].tail.size(); }
    // Of all strands together.
    std::uint64_t size() const { return written + kept; }

    // Gives the bytes of a strand piece by piece, each of at most `piece` bytes. False if the file cannot be read, or
    // when `to` gives false.
    bool read(strand from, const std::function<bool(std::string_view)>& to, std::size_t piece = std::size_t{1} << 18U);

    // Appends the bytes of another strand, piece by piece. False if they cannot be read.
    bool append_strand(strand to, strand from, std::size_t piece = std::size_t{1} << 18U);

    // The file could not be written, as on a full disk: what is appended is lost.
    bool has_failed() const { return failed; }

private:
    struct segment {
        std::uint64_t offset = 0;
        std::uint64_t size = 0;
    };
    struct strand_bytes {
        std::string tail;
        std::uint64_t in_file = 0;
        std::vector<segment> segments;
    };

    void move_to_file();
    bool open_for_reading();
    bool read_piece(strand from, std::uint64_t at, std::string& piece);
    bool read_segment(const segment& one, std::string& buffer, const std::function<bool(std::string_view)>& to);

    std::vector<strand_bytes> strands;
    std::string name;
    platform::file file; // open for writing, or for reading once something has been read
    bool is_written = false;
    bool is_read = false;
    bool failed = false;
    std::size_t most_kept;
    std::size_t kept = 0;
    std::uint64_t written = 0;
};

} // namespace gltf
