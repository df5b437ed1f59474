#include "sketchup/skp/writer/zip_archive.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <zip.h>

namespace skp {

namespace {

constexpr zip_uint16_t midnight = 0;
constexpr zip_uint16_t first_of_january_1980 = 0x0021; // the earliest date that the format can state

constexpr zip_uint32_t level = 6; // the library's own 9 takes nine times as long on records and saves nothing

[[noreturn]] void fail(const std::string& what) {
    throw std::runtime_error("cannot make an archive: " + what);
}

struct source_freer {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
struct archive_discarder {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using source_pointer = std::unique_ptr<zip_source_t, source_freer>;
using archive_pointer = std::unique_ptr<zip_t, archive_discarder>;

void add(zip_t* archive, const archive_entry& entry) {
    zip_source_t* bytes = zip_source_buffer(archive, entry.bytes.data(), entry.bytes.size(), 0);
    const zip_int64_t at = bytes == nullptr ? -1 : zip_file_add(archive, entry.name.c_str(), bytes, 0);
    if (at < 0) {
        zip_source_free(bytes);
        fail(entry.name + ": " + zip_strerror(archive));
    }
    const auto place = static_cast<zip_uint64_t>(at);
    if (zip_set_file_compression(archive, place, ZIP_CM_DEFLATE, level) != 0 ||
        zip_file_set_dostime(archive, place, midnight, first_of_january_1980, 0) != 0)
        fail(entry.name + ": " + zip_strerror(archive));
}

std::vector<std::uint8_t> bytes_of(zip_source_t* source) {
    zip_stat_t state;
    if (zip_source_stat(source, &state) != 0 || zip_source_open(source) != 0)
        fail("nothing was written");
    std::vector<std::uint8_t> bytes(state.size);
    const zip_int64_t count = zip_source_read(source, bytes.data(), bytes.size());
    zip_source_close(source);
    if (count < 0 || static_cast<std::size_t>(count) != bytes.size())
        fail("it is shorter than announced");
    return bytes;
}

} // namespace

std::vector<std::uint8_t> zip_archive(const std::vector<archive_entry>& entries) {
    const source_pointer memory(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    if (!memory)
        fail("no memory");
    archive_pointer archive(zip_open_from_source(memory.get(), ZIP_CREATE | ZIP_TRUNCATE, nullptr));
    if (!archive)
        fail("no memory");
    zip_source_keep(memory.get()); // closing the archive lets go of one hold, we read through the other
    for (const archive_entry& entry : entries)
        add(archive.get(), entry);
    if (zip_close(archive.get()) != 0)
        fail(zip_strerror(archive.get()));
    static_cast<void>(archive.release()); // it is gone now
    return bytes_of(memory.get());
}

} // namespace skp
