#pragma once

// A file that one process at a time holds, as a sign that it works on what the file stands for.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

enum class hold_result {
    held,
    held_elsewhere, // by another process
    missing,        // there is no such file, or it went away meanwhile
    name_taken,     // by a file, where a new one was asked for
    impossible,     // failure() says why; a link and what is no plain file are among these
};

enum class hold_kind { new_file, old_file };

class held_file {
public:
    held_file() = default;
    held_file(held_file&& other) noexcept;
    held_file& operator=(held_file&& other) noexcept;
    held_file(const held_file&) = delete;
    held_file& operator=(const held_file&) = delete;
    ~held_file(); // releases

    // Makes the file, or opens the one that is there, and holds it; never follows a link in the last part of the name.
    // What was held before is released. A process that dies releases what it holds. POSIX: programs that this one
    // starts meanwhile hold it too, so that it is free only when all of them have ended; where the file system knows no
    // locks, nobody is kept away. Windows: nobody else may open the file for writing.
    hold_result take(const std::string& name, hold_kind kind);
    bool is_held() const { return handle != none; }
    void release();

    // Puts other bytes into the file, over the old ones, so that a beginning that both have never goes. False on
    // failure. Windows: they are on the disk when it returns; POSIX: behind
    // the next flush_file_system.
    bool rewrite(std::string_view bytes);
    // The first bytes of the file, at most so many; none if they cannot be read.
    std::string beginning(std::size_t most_bytes);
    // Deletes the file under the name by which it is held now, and releases it. False if it could not be deleted.
    bool remove(const std::string& name);

    // In the system's words; may be empty.
    const std::string& failure() const { return failure_text; }

    // Whether a folder can be renamed while a file in it is held. Not on Windows.
    static bool lets_folders_be_renamed();

private:
    static constexpr std::intptr_t none = -1;
    std::intptr_t handle = none;
    std::string failure_text;
};

} // namespace platform
