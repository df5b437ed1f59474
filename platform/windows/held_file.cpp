// Files held by the sharing mode in which they are open.

#include "platform/held_file.h"

#include "platform/windows/system_words.h"

#include <utility>

namespace platform {

namespace {

HANDLE handle_of(std::intptr_t number) {
    return reinterpret_cast<HANDLE>(number);
}

bool is_plain(HANDLE opened) {
    BY_HANDLE_FILE_INFORMATION told;
    return GetFileType(opened) == FILE_TYPE_DISK && GetFileInformationByHandle(opened, &told) &&
           (told.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}

hold_result result_of(DWORD error) {
    switch (error) {
    case ERROR_SHARING_VIOLATION:
        return hold_result::held_elsewhere;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DELETE_PENDING:
        return hold_result::missing;
    case ERROR_FILE_EXISTS:
        return hold_result::name_taken;
    default:
        return hold_result::impossible;
    }
}

bool write_all(HANDLE opened, std::string_view bytes) {
    DWORD count = 0; // a report has fewer bytes than 32 bits count
    return bytes.empty() || (WriteFile(opened, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) &&
                             count == bytes.size());
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
    // Others may read it, and whoever holds it may rename and delete it.
    const HANDLE opened = CreateFileA(name.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                      nullptr, kind == hold_kind::new_file ? CREATE_NEW : OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        failure_text = words_for(error);
        return result_of(error);
    }
    handle = reinterpret_cast<std::intptr_t>(opened);
    if (is_plain(opened))
        return hold_result::held;
    failure_text = "Not a plain file";
    release();
    return hold_result::impossible;
}

void held_file::release() {
    if (is_held())
        CloseHandle(handle_of(std::exchange(handle, none)));
}

bool held_file::rewrite(std::string_view bytes) {
    const HANDLE opened = handle_of(handle);
    const bool is_done = SetFilePointer(opened, 0, nullptr, FILE_BEGIN) != INVALID_SET_FILE_POINTER &&
                         write_all(opened, bytes) && SetEndOfFile(opened) && FlushFileBuffers(opened);
    failure_text = is_done ? std::string() : words_for(GetLastError());
    return is_done;
}

std::string held_file::beginning(std::size_t most_bytes) {
    const HANDLE opened = handle_of(handle);
    std::string bytes(most_bytes, '\0');
    DWORD count = 0;
    if (SetFilePointer(opened, 0, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER ||
        !ReadFile(opened, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        count = 0;
    bytes.resize(count);
    return bytes;
}

bool held_file::remove(const std::string& name) {
    const bool is_done = DeleteFileA(name.c_str()); // goes with the last handle
    release();
    return is_done;
}

bool held_file::lets_folders_be_renamed() {
    return false;
}

} // namespace platform
