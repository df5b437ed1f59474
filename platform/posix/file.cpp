// Plain files over the system's descriptors.

#include "platform/platform.h"

#include "platform/posix/refused_write.h"
#include "platform/posix/write_all.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// The kernel hands over at most this much in one call; a larger request is only cut.
constexpr std::size_t largest_step = 0x7ffff000;

int flags_of(open_mode mode) {
    switch (mode) {
    case open_mode::read:
        return O_RDONLY;
    case open_mode::write:
        return O_WRONLY | O_CREAT | O_TRUNC;
    case open_mode::write_new:
        return O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    case open_mode::append:
        return O_WRONLY | O_CREAT | O_APPEND;
    }
    return O_RDONLY;
}

// The trace itself is appended to.
bool makes_output(open_mode mode) {
    return mode == open_mode::write || mode == open_mode::write_new;
}

std::string words_for(int error) {
    return std::generic_category().message(error);
}

// Why the descriptor is of no use for the mode; empty if it is of use.
std::string fault_of(int descriptor, open_mode mode) {
    struct stat status;
    if (fstat(descriptor, &status) != 0)
        return words_for(errno);
    if (S_ISDIR(status.st_mode))
        return words_for(EISDIR); // reading one opens without complaint
    return mode == open_mode::read && !S_ISREG(status.st_mode) ? "Not a plain file" : "";
}

// Only opening must not wait: bytes for a pipe may wait until its reader has taken those before.
bool let_writing_wait(int descriptor) {
    const int flags = fcntl(descriptor, F_GETFL);
    return flags >= 0 && fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) == 0;
}

} // namespace

bool file::open(const std::string& name, open_mode mode) {
    close();
    failure_text.clear();
    int descriptor = -1;
    do {
        descriptor = ::open(name.c_str(), flags_of(mode) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
    } while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0) {
        const int error = errno;
        failure_text = words_for(error);
        if (makes_output(mode))
            trace_if_refused(name, error);
        return false;
    }
    failure_text = fault_of(descriptor, mode);
    if (failure_text.empty() && !let_writing_wait(descriptor))
        failure_text = words_for(errno);
    if (!failure_text.empty()) {
        ::close(descriptor);
        return false;
    }
    handle = descriptor;
    file_name = makes_output(mode) ? name : std::string();
    return true;
}

std::size_t file::read(void* buffer, std::size_t size) {
    std::size_t total = 0;
    while (is_open() && total < size) {
        const ssize_t count =
            ::read(static_cast<int>(handle), static_cast<char*>(buffer) + total, std::min(size - total, largest_step));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failure_text = words_for(errno);
        if (count <= 0)
            break;
        total += static_cast<std::size_t>(count);
    }
    return total;
}

bool file::write_all(std::string_view bytes) {
    if (!is_open())
        return false;
    if (platform::write_all(static_cast<int>(handle), bytes))
        return true;
    const int error = errno;
    failure_text = words_for(error);
    if (!file_name.empty())
        trace_if_refused(file_name, error);
    return false;
}

bool file::seek(std::uint64_t offset) {
    return is_open() && lseek(static_cast<int>(handle), static_cast<off_t>(offset), SEEK_SET) >= 0;
}

bool file::close() {
    if (!is_open())
        return false;
    const int descriptor = static_cast<int>(std::exchange(handle, closed));
    // An interrupted close has released the descriptor all the same: trying again could close another file.
    return ::close(descriptor) == 0 || errno == EINTR;
}

std::optional<std::vector<std::byte>> read_file(const std::string& name, std::uint64_t limit) {
    const auto size = file_size(name);
    file input;
    if (!size || *size > limit || !input.open(name, open_mode::read))
        return std::nullopt;
    std::vector<std::byte> bytes(static_cast<std::size_t>(*size));
    bytes.resize(input.read(bytes.data(), bytes.size())); // shorter if someone cut the file meanwhile
    return input.failure().empty() ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace platform
