// An open file belongs to one object, which closes it.

#include "platform/platform.h"

#include <utility>

namespace platform {

file::file(file&& other) noexcept
    : handle(std::exchange(other.handle, closed)), file_name(std::move(other.file_name)),
      failure_text(std::move(other.failure_text)) {}

file& file::operator=(file&& other) noexcept {
    if (this != &other) {
        close();
        handle = std::exchange(other.handle, closed);
        file_name = std::move(other.file_name);
        failure_text = std::move(other.failure_text);
    }
    return *this;
}

file::~file() {
    close();
}

} // namespace platform
