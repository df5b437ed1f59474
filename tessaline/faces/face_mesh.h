#pragma once

// The triangles of one side of a face, as SketchUp cuts it.

#include "qlw/qlw_math.h"
#include "sketchup/SketchUpAPI.h"

#include <cstddef>
#include <string>
#include <vector>

// The texture coordinates of a face; holds nothing until it is made, and is released with its scope.
class uv_helper {
public:
    uv_helper() = default;
    ~uv_helper();
    uv_helper(const uv_helper&) = delete;
    uv_helper& operator=(const uv_helper&) = delete;

    // front, back: that side has a texture. writer: that of the run; may be invalid.
    void make(SUFaceRef face, bool front, bool back, SUTextureWriterRef writer);

    // The coordinates at a point of the face's own space, in inches. Zeros if there are none.
    SUUVQ at(const SUPoint3D& point, bool back_side) const;

    SUUVHelperRef handle = SU_INVALID;
};

// What a face is meshed into. The arrays keep their storage from face to face.
struct face_scratch {
    std::vector<SUPoint3D> points;    // of the vertices, in the face's own space, inches
    std::vector<SUVector3D> normals;  // of the vertices, unit
    std::vector<std::size_t> indices; // three a triangle
    std::vector<fpt> world;           // the points in the world, inches
    std::string lower_layer_name;     // of the face, in lower case
};

// Cuts the face into triangles. With coordinates, vertices are split where those differ; uv: null for none.
// Fills points, normals and indices; false, with nothing filled, if there is no triangle or no vertex.
bool fetch_mesh(face_scratch& scratch, SUFaceRef face, const uv_helper* uv);
