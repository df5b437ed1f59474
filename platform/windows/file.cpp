// Plain files over the system's handles.

#include "platform/platform.h"

#include "platform/windows/refused_write.h"
#include "platform/windows/system_words.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t largest_step = 0x40000000; // the calls count in 32 bits

HANDLE handle_of(std::intptr_t number) {
    return reinterpret_cast<HANDLE>(number);
}

struct opening {
    DWORD access;
    DWORD disposition;
};

opening opening_for(open_mode mode) {
    switch (mode) {
    case open_mode::read:
        return {GENERIC_READ, OPEN_EXISTING};
    case open_mode::write:
        return {GENERIC_WRITE, CREATE_ALWAYS};
    case open_mode::write_new:
        return {GENERIC_WRITE, CREATE_NEW};
    case open_mode::append:
        return {FILE_APPEND_DATA | SYNCHRONIZE, OPEN_ALWAYS};
    }
    return {GENERIC_READ, OPEN_EXISTING};
}

// The trace itself is appended to.
bool makes_output(open_mode mode) {
    return mode == open_mode::write || mode == open_mode::write_new;
}

// The system tells of a folder as if the user lacked a right, and of a long name as if it led nowhere.
std::string fault_of(const std::string& name, DWORD error) {
    if (name.size() > longest_name)
        return "The name has more than " + std::to_string(longest_name) + " characters";
    return is_folder(name) ? "Is a folder" : words_for(error);
}

} // namespace

bool file::open(const std::string& name, open_mode mode) {
    close();
    failure_text.clear();
    const opening how = opening_for(mode);
    const HANDLE opened = name.size() > longest_name ? INVALID_HANDLE_VALUE
                                                     : CreateFileA(name.c_str(), how.access, FILE_SHARE_READ, nullptr,
                                                                   how.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        failure_text = fault_of(name, error);
        if (makes_output(mode))
            trace_if_refused(name, error);
        return false;
    }
    if (mode == open_mode::read && GetFileType(opened) != FILE_TYPE_DISK) {
        CloseHandle(opened);
        failure_text = "Not a plain file";
        return false;
    }
    handle = reinterpret_cast<std::intptr_t>(opened);
    file_name = makes_output(mode) ? name : std::string();
    return true;
}

std::size_t file::read(void* buffer, std::size_t size) {
    std::size_t total = 0;
    while (is_open() && total < size) {
        DWORD count = 0;
        const auto step = static_cast<DWORD>(std::min(size - total, largest_step));
        if (!ReadFile(handle_of(handle), static_cast<char*>(buffer) + total, step, &count, nullptr)) {
            failure_text = words_for(GetLastError());
            break;
        }
        if (count == 0)
            break;
        total += count;
    }
    return total;
}

bool file::write_all(std::string_view bytes) {
    if (!is_open())
        return false;
    while (!bytes.empty()) {
        DWORD count = 0;
        const auto step = static_cast<DWORD>(std::min(bytes.size(), largest_step));
        if (!WriteFile(handle_of(handle), bytes.data(), step, &count, nullptr) || count == 0) {
            const DWORD error = GetLastError();
            failure_text = words_for(error);
            if (!file_name.empty())
                trace_if_refused(file_name, error);
            return false;
        }
        bytes.remove_prefix(count);
    }
    return true;
}

bool file::seek(std::uint64_t offset) {
    LARGE_INTEGER place;
    place.QuadPart = static_cast<LONGLONG>(offset);
    return is_open() && SetFilePointerEx(handle_of(handle), place, nullptr, FILE_BEGIN);
}

bool file::close() {
    return is_open() && CloseHandle(handle_of(std::exchange(handle, closed)));
}

} // namespace platform
