#include "tools/single_run/hashed_file.h"

#include "platform/platform.h"
#include "tools/content_hash/content_hash.h"

#include <vector>

namespace {

constexpr std::size_t step = std::size_t{1} << 20; // bytes between two looks at the clock

hashed_file failed(hashed_file&& so_far, file_fault fault, const std::string& words) {
    so_far.fault = fault;
    so_far.words = words;
    return std::move(so_far);
}

// to: null to read alone.
hashed_file read_through(const std::string& from, const std::string* to, const run_clock& clock) {
    hashed_file result;
    result.facts.name = platform::last_part(from);
    platform::file source;
    if (!source.open(from, platform::open_mode::read))
        return failed(std::move(result), file_fault::not_read, source.failure());
    platform::file target;
    if (to != nullptr && !target.open(*to, platform::open_mode::write_new))
        return failed(std::move(result), file_fault::not_written, target.failure());
    content_hash hash;
    std::vector<char> buffer(step);
    for (std::size_t count = step; count == step;) {
        if (clock.must_stop() != stop_reason::none)
            return failed(std::move(result), file_fault::stopped, {});
        count = source.read(buffer.data(), buffer.size());
        if (!source.failure().empty())
            return failed(std::move(result), file_fault::not_read, source.failure());
        const std::string_view bytes(buffer.data(), count);
        hash.add(bytes);
        result.facts.bytes += count;
        if (to != nullptr && !target.write_all(bytes))
            return failed(std::move(result), file_fault::not_written, target.failure());
    }
    if (to != nullptr && !target.close())
        return failed(std::move(result), file_fault::not_written, {});
    result.facts.xxh128 = hash.digest();
    return result;
}

} // namespace

hashed_file hash_file(const std::string& name, const run_clock& clock) {
    return read_through(name, nullptr, clock);
}

hashed_file copy_file(const std::string& from, const std::string& to, const run_clock& clock) {
    return read_through(from, &to, clock);
}
