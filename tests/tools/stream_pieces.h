#pragma once

// Pieces from which tests put streams together, and what they expect of them.

#include "tests/support/files_in_memory.h"
#include "tools/batch_check/check_stream.h"
#include "tools/batch_check/first_screen.h"
#include "tools/batch_reading/line_source.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace stream_pieces {

using lines = std::vector<std::string>;

inline lines joined(std::initializer_list<lines> parts) {
    lines all;
    for (const lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

inline std::string text_of(const lines& all) {
    std::string text;
    for (const std::string& line : all)
        text += line + "\r\n";
    return text;
}

inline const lines head = {"#;Tessaline Geometry, new extractor",
                           "#;09/09/2001  01:46:40 GMT",
                           "DFFC;ffffff",
                           "DFBC;ffffff",
                           "DFEC;000000",
                           "#;"};
inline const lines pass = {"#;", "PASS;0", "#;"};
inline const lines end = {"#;", "END;"};
inline const lines layer_table = {"LYIN;0", "LYNM;Layer0", "LYIN;1", "LYNM;Walls"};
inline const lines state = {"TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"};
inline const lines face_head = {"#; ProcessFace MESH", "MESH;"};
inline const lines lamp_head = {"#; Process Group Lamp", "MESH;", "LITE;0"};
inline const lines close = {"EMSH;"};
inline const lines end_of_lamp = {"EMSH; END OF LAMP"};
inline const lines wall = {"MATF;COL%3a0012_Wall.OrnMaterial", "MTX2;1", "MATI;10"};
inline const lines point_light = {"#; Process Instance Lamp Direct Light", "LGHT;0"};
inline const lines edges = {"#;", "#;EDGES"};

// A triangle whose vertices have the numbers from `first` on.
inline lines triangle(int first) {
    const auto number = [first](int corner) { return std::to_string(first + corner); };
    return {"NORM;(0,0,1)",      "VERT;(0,0,0)",
            "ADDV;" + number(0), "NORM;(0,0,1)",
            "VERT;(2.54,0,0)",   "ADDV;" + number(1),
            "NORM;(0,0,1)",      "VERT;(0,2.54,0)",
            "ADDV;" + number(2), "FACE;" + number(0) + "," + number(1) + "," + number(2)};
}

inline lines textured_triangle(int first, const std::string& uvq = "UVQ;(0.5,1.5,1)") {
    lines all;
    for (const std::string& line : triangle(first)) {
        all.push_back(line);
        if (line.starts_with("NORM;"))
            all.push_back(uvq);
    }
    return all;
}

inline const lines face_block = joined({face_head, state, triangle(0), close});

// The four vertex groups and two triangles of an image.
inline lines image(int first) {
    const auto number = [first](int corner) { return std::to_string(first + corner); };
    lines all = {"TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"};
    int corner = 0;
    for (const char* uvq : {"UVQ;(0,0,0)", "UVQ;(1,0,0)", "UVQ;(1,1,0)", "UVQ;(0,1,0)"}) {
        const lines vertex = {"NORM;(0,0,1)", uvq, "VERT;(1,2,3)", "ADDV;" + number(corner++)};
        all.insert(all.end(), vertex.begin(), vertex.end());
    }
    all.push_back("FACE;" + number(0) + ", " + number(1) + ", " + number(2));
    all.push_back("FACE;" + number(2) + ", " + number(3) + ", " + number(0));
    return all;
}

inline const lines edge_head = {"#;MESH for Edges", "MESH;", "TLAY;Layer0", "CULL;0", "MATL;1", "MAT2;1"};

inline lines beams(int count) {
    lines all;
    for (int first = 0; first < 16 * count; first += 4) {
        const std::string normal = first % 16 < 8 ? "NORM;(1,0,0)" : "NORM;(0,1,0)"; // of two sides each
        for (int corner = 0; corner < 4; ++corner) {
            const lines vertex = {normal, "VERT;(0,0,0)", "ADDV;" + std::to_string(first + corner)};
            all.insert(all.end(), vertex.begin(), vertex.end());
        }
        const auto number = [first](int corner) { return std::to_string(first + corner); };
        all.push_back("FACE;" + number(0) + "," + number(1) + "," + number(2));
        all.push_back("FACE;" + number(2) + "," + number(3) + "," + number(0));
    }
    return all;
}

using batch_check::code;

inline batch_check::findings found_in(const std::string& text) {
    batch_check::findings found;
    files_in_memory::bytes_in_memory stream(text);
    batch_check::check_stream(stream, "batch_file.txt", found);
    return found;
}

inline batch_check::findings found_in(std::initializer_list<lines> parts) {
    return found_in(text_of(joined(parts)));
}

inline void expect_nothing(const batch_check::findings& found) {
    EXPECT_TRUE(found.kept().empty()) << batch_check::finding_lines(found);
}

// The first finding has that code and that line.
inline void expect_first(const batch_check::findings& found, code what, std::size_t line) {
    ASSERT_FALSE(found.kept().empty());
    const batch_check::finding& first = found.kept().front();
    EXPECT_EQ(batch_check::entry_of(first.what).name, batch_check::entry_of(what).name)
        << batch_check::finding_lines(found);
    EXPECT_EQ(first.line, line) << batch_check::finding_lines(found);
}

// What stands between the first nine lines and the last two.
inline void expect_good(std::initializer_list<lines> body) {
    expect_nothing(found_in({head, pass, joined(body), end}));
}

// line: counted from the first line of the body, which is 1.
inline void expect_bad(std::size_t line, code what, std::initializer_list<lines> body) {
    expect_first(found_in({head, pass, joined(body), end}), what, head.size() + pass.size() + line);
}

} // namespace stream_pieces
