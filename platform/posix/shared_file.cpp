// Locks between processes, and replacing a file under them.

#include "platform/posix/shared_file.h"

#include "platform/platform.h"

#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

using clock = std::chrono::steady_clock;
constexpr auto time_between_tries = std::chrono::milliseconds(1);
constexpr mode_t permission_bits = 07777;

lock_result lock_before(int descriptor, clock::time_point deadline) {
    while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return lock_result::impossible;
        if (clock::now() >= deadline)
            return lock_result::held_elsewhere;
        std::this_thread::sleep_for(time_between_tries);
    }
    return lock_result::taken;
}

// Whether the name still leads to the open file: the last holder may have deleted it while we waited.
bool still_names(const std::string& name, int descriptor) {
    struct stat named;
    struct stat open;
    return stat(name.c_str(), &named) == 0 && fstat(descriptor, &open) == 0 && named.st_dev == open.st_dev &&
           named.st_ino == open.st_ino;
}

// Gives a new file the permissions of the old one, if there is one that may be written.
bool take_over_permissions(const std::string& from, const std::string& to) {
    struct stat status;
    if (stat(from.c_str(), &status) != 0)
        return errno == ENOENT;
    const bool is_read_only = (status.st_mode & S_IWUSR) == 0; // a privileged user heeds the mark as well
    return S_ISREG(status.st_mode) && !is_read_only && access(from.c_str(), W_OK) == 0 &&
           chmod(to.c_str(), status.st_mode & permission_bits) == 0;
}

bool write_new_file(const std::string& name, std::string_view bytes) {
    file output;
    return output.open(name, open_mode::write) && output.write_all(bytes) && output.close();
}

} // namespace

file_lock::~file_lock() {
    if (handle < 0)
        return;
    unlink(lock_name.c_str()); // while it is held: whoever waits sees that the name leads elsewhere and opens it anew
    ::close(static_cast<int>(handle));
}

lock_result file_lock::take(const std::string& name, int patience) {
    const clock::time_point deadline = clock::now() + std::chrono::milliseconds(patience);
    for (;;) {
        const int descriptor = ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
        if (descriptor < 0)
            return lock_result::impossible;
        const lock_result result = lock_before(descriptor, deadline);
        if (result == lock_result::taken && still_names(name, descriptor)) {
            handle = descriptor;
            lock_name = name;
            return result;
        }
        ::close(descriptor);
        if (result != lock_result::taken)
            return result;
    }
}

bool replace_file(const std::string& name, std::string_view bytes) {
    const std::string target = real_name(name).value_or(name);
    const std::string fresh = target + ".new";
    if (write_new_file(fresh, bytes) && take_over_permissions(target, fresh) && rename_replacing(fresh, target))
        return true;
    delete_file(fresh);
    return false;
}

edit_result edit_file(const std::string& name, std::uint64_t limit, int patience, const file_editor& edit) {
    file_lock lock;
    const lock_result locked = lock.take(name + ".lock", patience);
    if (locked != lock_result::taken)
        return locked == lock_result::held_elsewhere ? edit_result::held_elsewhere : edit_result::impossible;
    const auto bytes = read_file(name, limit);
    if (!bytes && exists(name))
        return edit_result::impossible;
    const auto edited = edit(bytes ? std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size()) : "");
    return !edited || replace_file(name, *edited) ? edit_result::done : edit_result::impossible;
}

} // namespace platform
