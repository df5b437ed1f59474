#include "platform/posix/refused_write.h"

#include "platform/trace_file.h"

#include <cerrno>
#include <system_error>

namespace platform {

void trace_if_refused(const std::string& name, int error) {
    switch (error) {
    case EACCES:
    case EDQUOT:
    case EFBIG:
    case EIO:
    case ENOSPC:
    case EPERM:
    case EROFS:
        trace_refused_write(name, std::generic_category().message(error));
        return;
    default:
        return;
    }
}

} // namespace platform
