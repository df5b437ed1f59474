#pragma once

// A file that only a program needs while it works, beside the one that it makes.

#include <string>

class work_file {
public:
    // Chooses a name that no file has: that of `target`, a number, and the ending, as in "page.html.1.glb".
    work_file(const std::string& target, const std::string& ending);
    // Deletes the file if there is one.
    ~work_file();
    work_file(const work_file&) = delete;
    work_file& operator=(const work_file&) = delete;

    const std::string& name() const { return path; }

private:
    std::string path;
};
