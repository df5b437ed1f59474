#pragma once

// All files of a batch in one text, so that an input of the fuzzer is a whole folder.

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace batch_text {

// Stands ahead of each file, with its name and a line feed behind it. The character stands in no text of a batch.
inline const std::string beginning_of_file = "\x1d";

// Of equal names the last file counts; what stands ahead of the first is passed over.
inline std::map<std::string, std::string> files_in(std::string_view text) {
    std::map<std::string, std::string> files;
    std::size_t at = text.find(beginning_of_file);
    while (at != std::string_view::npos) {
        const std::size_t next = text.find(beginning_of_file, at + 1);
        const std::string_view one = text.substr(at + 1, next == std::string_view::npos ? next : next - at - 1);
        const std::size_t feed = one.find('\n');
        files[std::string(one.substr(0, feed))] = feed == std::string_view::npos ? "" : one.substr(feed + 1);
        at = next;
    }
    return files;
}

} // namespace batch_text
