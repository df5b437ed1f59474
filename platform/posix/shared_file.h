#pragma once

// What editing a file beside other processes is made of.

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

enum class lock_result {
    taken,
    held_elsewhere, // for longer than one was ready to wait
    impossible,     // the lock file cannot be made, or its file system knows no locks
};

// Keeps other processes from what the lock file stands for. The lock file exists only while somebody holds or awaits
// the lock. A process that dies gives the lock back.
class file_lock {
public:
    file_lock() = default;
    file_lock(const file_lock&) = delete;
    file_lock& operator=(const file_lock&) = delete;
    ~file_lock();

    // Waits until nobody else holds the lock of that name, in this process or another, for `patience` milliseconds; 0
    // tries once. At most one lock for each object.
    lock_result take(const std::string& name, int patience);

private:
    std::string lock_name;
    std::intptr_t handle = -1;
};

// Puts other bytes into a file in one step: whoever opens it gets the old bytes or the new ones, whole. A missing file
// is made. Permissions stay, and so does a link: the file behind it changes. False on failure, which leaves the file as
// it was; a file that may not be written is such a failure. Between two that may write it a file_lock must stand.
bool replace_file(const std::string& name, std::string_view bytes);

} // namespace platform
