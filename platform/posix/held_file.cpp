// Files held by a lock of the system.

#include "platform/held_file.h"

#include "platform/posix/write_all.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr mode_t any_user = 0666; // the user's mask takes its share

// Whether the name leads to the open file: the last holder may have deleted or renamed it.
bool names(const std::string& name, int descriptor) {
    struct stat named;
    struct stat open;
    return lstat(name.c_str(), &named) == 0 && fstat(descriptor, &open) == 0 && named.st_dev == open.st_dev &&
           named.st_ino == open.st_ino;
}

bool is_plain(int descriptor) {
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

bool is_locked_elsewhere(int descriptor) {
    int result = 0;
    do {
        result = flock(descriptor, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    return result != 0 && errno == EWOULDBLOCK;
}

} // namespace

held_file::held_file(held_file&& other) noexcept
    : handle(std::exchange(other.handle, none)), failure_text(std::move(other.failure_text)) {}

held_file& held_file::operator=(held_file&& other) noexcept {
    release();
    handle = std::exchange(other.handle, none);
    failure_text = std::move(other.failure_text);
    return *this;
}

held_file::~held_file() {
    release();
}

hold_result held_file::take(const std::string& name, hold_kind kind) {
    release();
    failure_text.clear();
    // Without O_CLOEXEC: who is started holds it too.
    const int how = kind == hold_kind::new_file ? O_CREAT | O_EXCL : 0;
    const int opened = open(name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | how, any_user);
    if (opened < 0) {
        const int error = errno;
        failure_text = std::generic_category().message(error);
        return error == ENOENT   ? hold_result::missing
               : error == EEXIST ? hold_result::name_taken
                                 : hold_result::impossible;
    }
    handle = opened;
    hold_result result = hold_result::held;
    if (!is_plain(opened)) {
        failure_text = "Not a plain file";
        result = hold_result::impossible;
    } else if (is_locked_elsewhere(opened))
        result = hold_result::held_elsewhere;
    else if (!names(name, opened))
        result = hold_result::missing;
    if (result != hold_result::held)
        release();
    return result;
}

void held_file::release() {
    if (is_held())
        ::close(static_cast<int>(std::exchange(handle, none)));
}

bool held_file::rewrite(std::string_view bytes) {
    const int descriptor = static_cast<int>(handle);
    const bool is_done = lseek(descriptor, 0, SEEK_SET) == 0 && write_all(descriptor, bytes) &&
                         ftruncate(descriptor, static_cast<off_t>(bytes.size())) == 0;
    failure_text = is_done ? std::string() : std::generic_category().message(errno);
    return is_done;
}

std::string held_file::beginning(std::size_t most_bytes) {
    std::string bytes(most_bytes, '\0');
    ssize_t count = 0;
    do {
        count = pread(static_cast<int>(handle), bytes.data(), bytes.size(), 0);
    } while (count < 0 && errno == EINTR);
    bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return bytes;
}

bool held_file::remove(const std::string& name) {
    const bool is_done = unlink(name.c_str()) == 0;
    release();
    return is_done;
}

bool held_file::lets_folders_be_renamed() {
    return true;
}

} // namespace platform
