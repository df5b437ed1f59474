// Changes the bytes of one entry of an archive and packs all anew, since a byte changed in packed data only ever meets
// its checksum. Now and then the archive's own bytes are changed instead.

#include "sketchup/skp/writer/zip_archive.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>
#include <zip.h>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace {

constexpr zip_uint64_t most_entries = 100;
constexpr zip_uint64_t longest_entry = 1 << 16;
constexpr std::size_t room_to_grow = 256;

// The entries of an archive that can be unpacked; none if it is no archive.
std::vector<skp::archive_entry> entries_of(const std::uint8_t* data, std::size_t size) {
    std::vector<skp::archive_entry> entries;
    zip_source_t* source = zip_source_buffer_create(data, size, 0, nullptr);
    zip_t* archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, nullptr);
    if (archive == nullptr) {
        zip_source_free(source);
        return entries;
    }
    const auto count = std::min(static_cast<zip_uint64_t>(zip_get_num_entries(archive, 0)), most_entries);
    for (zip_uint64_t i = 0; i < count; ++i) {
        zip_stat_t stat;
        zip_file_t* file = nullptr;
        if (zip_stat_index(archive, i, 0, &stat) == 0 && stat.size <= longest_entry)
            file = zip_fopen_index(archive, i, 0);
        if (file == nullptr)
            continue;
        std::vector<std::uint8_t> bytes(stat.size);
        if (zip_fread(file, bytes.data(), bytes.size()) == static_cast<zip_int64_t>(bytes.size()))
            entries.push_back({zip_get_name(archive, i, ZIP_FL_ENC_RAW), std::move(bytes)});
        zip_fclose(file);
    }
    zip_discard(archive);
    return entries;
}

void mutate(std::vector<std::uint8_t>& bytes) {
    const std::size_t size = bytes.size();
    bytes.resize(size + room_to_grow);
    bytes.resize(LLVMFuzzerMutate(bytes.data(), size, bytes.size()));
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size,
                                               unsigned int seed) {
    constexpr unsigned int every_so_many = 8;
    std::vector<skp::archive_entry> entries = entries_of(data, size);
    if (entries.empty() || seed % every_so_many == 0)
        return LLVMFuzzerMutate(data, size, max_size);
    mutate(entries[seed / every_so_many % entries.size()].bytes);
    try {
        const std::vector<std::uint8_t> packed = skp::zip_archive(entries);
        if (packed.size() > max_size)
            return LLVMFuzzerMutate(data, size, max_size);
        std::copy(packed.begin(), packed.end(), data);
        return packed.size();
    } catch (const std::runtime_error&) { // two entries of one name
        return LLVMFuzzerMutate(data, size, max_size);
    }
}
