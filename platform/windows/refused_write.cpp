#include "platform/windows/refused_write.h"

#include "platform/trace_file.h"
#include "platform/windows/system_words.h"

namespace platform {

constexpr DWORD quota_exceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which the headers of MinGW-w64 lack

void trace_if_refused(const std::string& name, DWORD error) {
    switch (error) {
    case ERROR_ACCESS_DENIED:
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_WRITE_FAULT:
    case ERROR_WRITE_PROTECT:
    case quota_exceeded:
        trace_refused_write(name, words_for(error));
        return;
    default:
        return;
    }
}

} // namespace platform
