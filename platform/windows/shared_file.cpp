// Reading and editing files that other programs write meanwhile, under the lock that the system's own calls for ini
// files take: it covers the whole file, and the system refuses the bytes to whoever does not hold it.

#include "platform/platform.h"

#include "platform/windows/system_handle.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace platform {

namespace {

using clock = std::chrono::steady_clock;
constexpr auto time_between_tries = std::chrono::milliseconds(1);
constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool means_wait(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
}

// Tries until it succeeds, fails for another reason than somebody else's hold on the file, or the time is over.
template<class Try>
edit_result done_before(clock::time_point deadline, Try attempt) {
    while (!attempt()) {
        if (!means_wait(GetLastError()))
            return edit_result::impossible;
        if (clock::now() >= deadline)
            return edit_result::held_elsewhere;
        std::this_thread::sleep_for(time_between_tries);
    }
    return edit_result::done;
}

enum class lock_kind { shared, exclusive };

// An open file under a lock, which ends with it.
class locked_file {
public:
    locked_file(const std::string& name, lock_kind kind, clock::time_point deadline) {
        const bool writes = kind == lock_kind::exclusive;
        const DWORD access = writes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
        if (name.size() > longest_name)
            return;
        how_opened = done_before(deadline, [&] {
            file = owned(CreateFileA(name.c_str(), access, share_all, nullptr, writes ? OPEN_ALWAYS : OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr));
            return file != nullptr;
        });
        if (how_opened != edit_result::done)
            return;
        const DWORD how = LOCKFILE_FAIL_IMMEDIATELY | (writes ? LOCKFILE_EXCLUSIVE_LOCK : 0UL);
        OVERLAPPED from_the_start = {};
        how_opened = GetFileType(file.get()) != FILE_TYPE_DISK ? edit_result::impossible : done_before(deadline, [&] {
            return LockFileEx(file.get(), how, 0, MAXDWORD, MAXDWORD, &from_the_start) != FALSE;
        });
    }

    edit_result opened() const { return how_opened; }
    explicit operator bool() const { return how_opened == edit_result::done; }

    std::optional<std::string> bytes(std::uint64_t limit) const {
        LARGE_INTEGER size;
        if (!GetFileSizeEx(file.get(), &size) || static_cast<std::uint64_t>(size.QuadPart) > limit)
            return std::nullopt;
        std::string text(static_cast<std::size_t>(size.QuadPart), '\0');
        std::size_t done = 0;
        for (DWORD count = 0; done < text.size(); done += count)
            if (!ReadFile(file.get(), text.data() + done, step_of(text.size() - done), &count, nullptr) || count == 0)
                break;
        text.resize(done);
        return text;
    }

    // Writes over what is there, which is how the others behind the lock do it: who has the file open keeps it.
    bool replace_bytes(std::string_view text) const {
        if (SetFilePointer(file.get(), 0, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER)
            return false;
        while (!text.empty()) {
            DWORD count = 0;
            if (!WriteFile(file.get(), text.data(), step_of(text.size()), &count, nullptr) || count == 0)
                return false;
            text.remove_prefix(count);
        }
        return SetEndOfFile(file.get());
    }

private:
    static DWORD step_of(std::size_t size) {
        constexpr std::size_t largest_step = 0x40000000;
        return static_cast<DWORD>(std::min(size, largest_step));
    }

    system_handle file;
    edit_result how_opened = edit_result::impossible;
};

clock::time_point deadline_in(int milliseconds) {
    return clock::now() + std::chrono::milliseconds(milliseconds);
}

} // namespace

std::optional<std::vector<std::byte>> read_file(const std::string& name, std::uint64_t limit) {
    constexpr int patience = 500; // a program that writes an ini file holds it for less than one
    const locked_file input(name, lock_kind::shared, deadline_in(patience));
    const auto text = input ? input.bytes(limit) : std::nullopt;
    if (!text)
        return std::nullopt;
    const auto* const first = reinterpret_cast<const std::byte*>(text->data());
    return std::vector<std::byte>(first, first + text->size());
}

edit_result edit_file(const std::string& name, std::uint64_t limit, int patience, const file_editor& edit) {
    const bool was_missing = !exists(name);
    bool is_done = false;
    bool is_empty = false;
    {
        const locked_file edited(name, lock_kind::exclusive, deadline_in(patience));
        if (!edited)
            return edited.opened();
        const auto before = edited.bytes(limit);
        if (!before)
            return edit_result::impossible;
        const auto after = edit(*before);
        is_done = !after || edited.replace_bytes(*after);
        if (!is_done) // the disk is full: there was room for the old bytes
            edited.replace_bytes(*before);
        is_empty = before->empty() && (!after || !is_done);
    }
    if (was_missing && is_empty)
        delete_file(name);
    return is_done ? edit_result::done : edit_result::impossible;
}

} // namespace platform
