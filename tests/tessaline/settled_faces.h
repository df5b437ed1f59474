#pragma once

// Faces whose sides a test settles itself, and what a square of 100 inches is in the stream.

#include "tests/tessaline/reader_fixture.h"

#include <string>

inline const std::string plain_head =
    lines({"#; ProcessFace MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"});
inline const std::string end_of_block = lines({"EMSH;"});

// A model whose faces are written with sides that a test settles itself.
class settled_faces_test : public reader_test {
protected:
    // Writes the first face of the model with sides that are settled already.
    int write_first_face(const face_side& front, const face_side& back) { return write_face(0, front, back); }
    int write_face(std::size_t index, const face_side& front, const face_side& back) {
        return reader.write_face_sides({faces()[index], identity16, false, "Layer0", true}, front, back);
    }

    static face_side side(int number, bool textured = false) {
        face_side result;
        result.number = number;
        result.textured = textured;
        return result;
    }
    static face_side glowing(int number) {
        face_side result = side(number);
        result.glows = true;
        return result;
    }
};

// The vertices of a square of 100 inches, numbered from `base`, and its triangles.
inline std::string square_from(int base) {
    const auto number = [base](int n) { return std::to_string(base + n); };
    return lines({"NORM;(0,0,1)", "VERT;(2.54,0,0)", "ADDV;" + number(0), "NORM;(0,0,1)", "VERT;(0,2.54,0)",
                  "ADDV;" + number(1), "NORM;(0,0,1)", "VERT;(0,0,0)", "ADDV;" + number(2), "NORM;(0,0,1)",
                  "VERT;(2.54,2.54,0)", "ADDV;" + number(3), "FACE;" + number(0) + "," + number(1) + "," + number(2),
                  "FACE;" + number(1) + "," + number(0) + "," + number(3)});
}
