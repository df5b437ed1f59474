#include "tools/page/work_file.h"

#include "platform/platform.h"

work_file::work_file(const std::string& target, const std::string& ending) {
    int number = 1;
    do
        path = target + "." + std::to_string(number++) + ending;
    while (platform::exists(path));
}

work_file::~work_file() {
    platform::delete_file(path);
}
