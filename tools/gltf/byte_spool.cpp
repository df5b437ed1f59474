#include "tools/gltf/byte_spool.h"

#include <algorithm>

namespace gltf {

byte_spool::byte_spool(std::string file_name, std::size_t memory) : name(std::move(file_name)), most_kept(memory) {}

byte_spool::~byte_spool() {
    if (!is_written)
        return;
    file.close();
    platform::delete_file(name);
}

byte_spool::strand byte_spool::begin() {
    strands.emplace_back();
    return static_cast<strand>(strands.size() - 1);
}

// Reading moves the place in the file, so what follows a reading is appended by opening the file again.
void byte_spool::move_to_file() {
    if (!is_written || is_read) {
        file.close();
        failed = !file.open(name, is_written ? platform::open_mode::append : platform::open_mode::write) || failed;
        is_written = true;
        is_read = false;
    }
    for (strand_bytes& one : strands) {
        if (one.tail.empty())
            continue;
        failed = failed || !file.write_all(one.tail);
        // Two pieces that follow one another are one: a strand that grows alone has few.
        if (!one.segments.empty() && one.segments.back().offset + one.segments.back().size == written)
            one.segments.back().size += one.tail.size();
        else
            one.segments.push_back({written, one.tail.size()});
        written += one.tail.size();
        one.in_file += one.tail.size();
        one.tail = {};
    }
    kept = 0;
}

bool byte_spool::open_for_reading() {
    if (is_read)
        return true;
    is_read = file.close() && file.open(name, platform::open_mode::read);
    return is_read;
}

// Fills the piece with what lies at that place of the strand, or makes it shorter at the end of a segment.
bool byte_spool::read_piece(strand from, std::uint64_t at, std::string& piece) {
    const strand_bytes& one = strands[from];
    for (const segment& part : one.segments) {
        if (at >= part.size) {
            at -= part.size;
            continue;
        }
        piece.resize(static_cast<std::size_t>(std::min<std::uint64_t>(piece.size(), part.size - at)));
        return open_for_reading() && file.seek(part.offset + at) &&
               file.read(piece.data(), piece.size()) == piece.size();
    }
    piece = one.tail.substr(static_cast<std::size_t>(at), piece.size());
    return true;
}

// What is appended may move the rest of the other strand into the file, so each piece is looked for anew.
bool byte_spool::append_strand(strand to, strand from, std::size_t piece) {
    const std::uint64_t all = size(from);
    std::string bytes;
    for (std::uint64_t at = 0; at < all; at += bytes.size()) {
        bytes.resize(piece);
        if (!read_piece(from, at, bytes))
            return false;
        append(to, bytes);
    }
    return true;
}

bool byte_spool::read_segment(const segment& one, std::string& buffer,
                              const std::function<bool(std::string_view)>& to) {
    if (!file.seek(one.offset))
        return false;
    for (std::uint64_t left = one.size; left > 0;) {
        const std::size_t wanted = static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size()));
        if (file.read(buffer.data(), wanted) != wanted || !to({buffer.data(), wanted}))
            return false;
        left -= wanted;
    }
    return true;
}

bool byte_spool::read(strand from, const std::function<bool(std::string_view)>& to, std::size_t piece) {
    const strand_bytes& one = strands[from];
    if (!one.segments.empty()) {
        if (!open_for_reading())
            return false;
        std::string buffer(piece, '\0');
        for (const segment& part : one.segments)
            if (!read_segment(part, buffer, to))
                return false;
    }
    for (std::size_t at = 0; at < one.tail.size(); at += piece)
        if (!to(std::string_view(one.tail).substr(at, piece)))
            return false;
    return true;
}

} // namespace gltf
