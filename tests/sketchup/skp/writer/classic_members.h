#pragma once

// What stands in the members of the objects of classic files: whether it is ever null, empty or zero. Reads by a table
// of its own and shares nothing with the reader, so that what it says of a file is a second opinion.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>

// One member of one class. A member of a body without a tag belongs to the object around it.
struct member_facts {
    std::size_t files = 1; // in how many files the member occurs
    std::size_t times = 0; // how often it was read
    std::size_t empty = 0; // how often it was null, empty, false or zero, in every part
    // Of a member that holds named records: the names that it has every time.
    std::optional<std::set<std::string>> names;
};

// By class and path: "CFace.drawing.material".
using classic_facts = std::map<std::string, member_facts>;

// The facts of one file. Throws std::runtime_error, with the place in it, if the file does not follow the table to its
// last byte.
classic_facts facts_of_classic(std::span<const std::uint8_t> file);

// Those of several files together: the sums of the counts, the names that all have.
void add_facts(classic_facts& sum, const classic_facts& more);
