#pragma once

// The ini files of a run: each is read once, and a write loses nothing that another process has written meanwhile.

#include "qlw/ini_text.h"

#include <map>
#include <string>
#include <string_view>

// What a write has to tell.
enum class ini_write {
    ended,           // nothing, whether the value was kept or lost
    gave_up_waiting, // the value is lost since another process held the file; said once
};

class ini_store {
public:
    // patience: milliseconds, above 0, for which a write waits for another process, until one has waited in vain.
    explicit ini_store(int patience) : patience_left(patience) {}
    ini_store() : ini_store(usual_patience) {}

    // The file as it was when it was first asked for, or after the last write through this object. A file that is
    // missing, cannot be read or is larger than any that a program writes counts as empty. name: the full name.
    const ini_text& file(const std::string& name);

    // Whether the file has been read.
    bool holds(const std::string& name) const { return files.contains(name); }

    // Makes the value under a key read so on the disk. If it does already, the file is left alone; otherwise it is read
    // again under a lock, edited, and written in one step. The folder must exist. A file that cannot be read or would
    // grow too large, or a place that takes no file, is left as it is without a word: the value is lost with the run.
    // The first write that waits in vain for another process says so; later ones, to whatever file, try without
    // waiting.
    ini_write write(const std::string& name, std::string_view section, std::string_view key, std::string_view value);

    // Milliseconds for which the next write waits; 0 once one has waited in vain.
    int patience() const { return patience_left; }

    // Forgets what has been read.
    void forget() { files.clear(); }

private:
    static constexpr int usual_patience = 2000; // a rewrite takes less than one

    std::map<std::string, ini_text> files;
    int patience_left;
};
