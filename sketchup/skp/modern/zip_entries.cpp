#include "sketchup/skp/modern/zip_entries.h"

#include "sketchup/skp/format_error.h"

#include <zip.h>

namespace skp::modern {
namespace {

[[noreturn]] void refuse(std::size_t start, const std::string& where, const std::string& reason) {
    throw format_error(failure::damaged, start, where, reason);
}

// An archive over bytes that stay where they are; null, with the reason in why, if they are none.
zip_t* open_archive(const std::uint8_t* bytes, std::size_t size, std::string& why) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(bytes, size, 0, &error);
    zip_t* archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
    if (archive == nullptr) {
        why = zip_error_strerror(&error);
        zip_source_free(source);
    }
    zip_error_fini(&error);
    return archive;
}

constexpr zip_uint64_t sizes_are_known = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD;

// What is wrong with what the directory says of an entry; null if nothing is.
const char* fault_of(const zip_stat_t& entry, std::size_t archive_size) {
    if ((entry.valid & sizes_are_known) != sizes_are_known)
        return "its size is not announced";
    if ((entry.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && entry.encryption_method != ZIP_EM_NONE)
        return "it is encrypted";
    if (entry.comp_method != ZIP_CM_STORE && entry.comp_method != ZIP_CM_DEFLATE)
        return "it is packed in an unknown way";
    if (entry.comp_size > archive_size || entry.size > most_unpacked_per_packed * entry.comp_size)
        return "it cannot be as large as announced";
    return nullptr;
}

struct file_closer {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

// The bytes of an entry; false if they are not as many as announced or their checksum is wrong.
bool unpack(zip_t* archive, zip_uint64_t place, std::vector<std::uint8_t>& bytes) {
    const std::unique_ptr<zip_file_t, file_closer> file(zip_fopen_index(archive, place, 0));
    if (!file)
        return false;
    std::size_t done = 0;
    while (done < bytes.size()) {
        const zip_int64_t n = zip_fread(file.get(), bytes.data() + done, bytes.size() - done);
        if (n <= 0)
            return false;
        done += static_cast<std::size_t>(n);
    }
    std::uint8_t beyond; // the checksum is compared when the end is met
    return zip_fread(file.get(), &beyond, 1) == 0;
}

} // namespace

zip_entries::zip_entries(std::shared_ptr<const std::vector<std::uint8_t>> file, std::size_t start)
    : file_(std::move(file)), start_(start) {
    std::string why;
    archive_ = open_archive(file_->data() + start_, file_->size() - start_, why);
    if (archive_ == nullptr)
        refuse(start_, "archive", why);
    try {
        list_entries();
    } catch (...) {
        zip_discard(archive_);
        throw;
    }
}

zip_entries::~zip_entries() {
    zip_discard(archive_);
}

void zip_entries::list_entries() {
    const auto count = static_cast<zip_uint64_t>(zip_get_num_entries(archive_, 0));
    const std::uint64_t most = most_unpacked(file_->size() - start_);
    std::uint64_t total = 0;
    places_.reserve(count);
    for (zip_uint64_t i = 0; i < count; ++i) {
        zip_stat_t entry;
        const char* name = zip_get_name(archive_, i, ZIP_FL_ENC_RAW);
        if (name == nullptr || zip_stat_index(archive_, i, 0, &entry) != 0)
            refuse(start_, "archive", "entry " + std::to_string(i) + " has no name or size");
        places_.emplace(name, i);
        // Entries may share packed bytes, which would multiply them.
        if (entry.size > most - total)
            refuse(start_, "archive", "its entries cannot be as large as announced");
        total += entry.size;
    }
}

std::vector<std::uint8_t> zip_entries::read(const std::string& name) {
    const auto place = places_.find(name);
    if (place == places_.end())
        refuse(start_, name, "the archive lacks it");
    zip_stat_t entry;
    if (zip_stat_index(archive_, place->second, 0, &entry) != 0)
        refuse(start_, name, "the archive does not describe it");
    if (const char* fault = fault_of(entry, file_->size() - start_))
        refuse(start_, name, fault);
    std::vector<std::uint8_t> bytes(entry.size);
    if (!unpack(archive_, place->second, bytes))
        refuse(start_, name, "it does not unpack to " + std::to_string(entry.size) + " bytes");
    return bytes;
}

} // namespace skp::modern
