#pragma once

// Counts what files of the archive container hold, place by place, without knowing what it means: records of the
// documents by their numbers, elements and attributes of the XML documents by their names, entries by theirs.

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Of all that stands at one path. "model.dat/500/502" are the records 502 in the records 500 of model.dat,
// "material.xml/materialDocument/material/@name" the attributes name, "entries/meta/meta.dat" an entry of the archive.
struct counted_place {
    std::size_t seen = 0;
    std::size_t empty = 0;                    // of those seen
    std::size_t zero = 0;                     // whose bytes are all zero, where it holds no records
    std::map<std::string, std::size_t> parts; // how many of those seen have a part of that name, at least once
};

class archive_census {
public:
    // Adds a whole file. Throws std::runtime_error if it is no archive, or a record reaches beyond the one around it.
    void add(const std::vector<std::uint8_t>& file);

    const std::map<std::string, counted_place>& places() const { return places_; }

private:
    std::map<std::string, counted_place> places_;
};

enum class lack { absent, empty, zero };

struct finding {
    std::string path;
    lack what;
    std::size_t times;
};

// What is never absent, empty or zero in `real`, and is in `ours`, at places that both have.
std::vector<finding> lacks_of(const archive_census& ours, const archive_census& real);
