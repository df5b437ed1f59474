#pragma once

// The file of --json.

#include "platform/held_file.h"
#include "platform/platform.h"

#include <string>
#include <string_view>

// A plain file is replaced whole and at once by write(), and stays as it was if that never comes: the bytes go to a
// file beside it, which write() renames. A link stays, and the file behind it is replaced. A device or a pipe is
// written to.
class report_file {
public:
    report_file() = default;
    report_file(const report_file&) = delete;
    report_file& operator=(const report_file&) = delete;
    ~report_file(); // leaves nothing that is not finished

    // Makes sure that there is a place for the bytes. Why there is none, in words; empty if there is one.
    std::string open(const std::string& name);
    // False if the bytes could not be written; true also for a file that was never opened.
    bool write(std::string_view bytes);

private:
    std::string target;
    std::string beside; // what is renamed
    platform::held_file unfinished;
    platform::file device;
};
