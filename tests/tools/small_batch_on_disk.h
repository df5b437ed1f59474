#pragma once

#include "tests/support/temporary_folder.h"
#include "tests/tools/small_batch.h"

#include <string>

// The small batch in a folder of its own, with the full names that lead there.
inline void put_small_batch(const temporary_folder& disk, const std::string& folder) {
    const std::string full = platform::joined(platform::real_name(disk.name()).value_or(disk.name()), folder);
    for (auto [name, bytes] : small_batch::still()) {
        for (std::size_t at = bytes.find(small_batch::folder); at != std::string::npos;
             at = bytes.find(small_batch::folder, at)) {
            const std::size_t end = bytes.find('\r', at);
            const std::string inside =
                bytes.substr(at + small_batch::folder.size(), end - at - small_batch::folder.size());
            bytes.replace(at, end - at, full + with_own_separators(inside));
        }
        disk.write(platform::joined(folder, name), bytes);
    }
}
