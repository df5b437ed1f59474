#pragma once

// Which lines may follow which in a geometry stream. Stricter than a renderer, which takes records in any order: what
// the program never writes is a fault here.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

struct grammar_fault {
    std::size_t line = 0; // from 1; one behind the last line if the stream ends too early
    std::string reason;
    friend bool operator==(const grammar_fault&, const grammar_fault&) = default;
};
std::ostream& operator<<(std::ostream& out, const grammar_fault& fault);

// The first line that cannot stand where it stands, or whose text has the wrong form; nothing if the stream is a whole
// and right one. stream: the bytes of the file.
//
// Watched beside the order of lines: numbers of layers, lamps, materials and vertices (each from its first number on,
// none left out; "FACE;" and "MATL;" name only what came before), "UVQ;" records exactly where the block is textured,
// "LYRS;" exactly in an animation, the second closing line ahead of every face block but the first, the two sides of a
// face behind one another, faces without a block behind a direct light alone, and normals that are unit vectors or
// zero.
std::optional<grammar_fault> first_grammar_fault(std::string_view stream);
