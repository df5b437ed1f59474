#pragma once

// The files that lie beside model.dat, by their names in the archive.

#include <cstdint>
#include <string>
#include <vector>

namespace skp::modern {

class entry_source {
public:
    entry_source() = default;
    entry_source(const entry_source&) = delete;
    entry_source& operator=(const entry_source&) = delete;
    virtual ~entry_source() = default;

    virtual bool has(const std::string& name) const = 0;
    // The whole entry, unpacked. Throws format_error if it is missing or damaged.
    virtual std::vector<std::uint8_t> read(const std::string& name) = 0;
};

} // namespace skp::modern
