#pragma once

// The faces and edges of one list as primitives: one for each material, layer and sidedness.

#include "tools/gltf/vertex_data.h"
#include "tools/model_opening/walked_place.h"
#include "tools/skp_glb/model_materials.h"

#include <compare>
#include <map>
#include <span>
#include <unordered_map>
#include <vector>

class mesh_parts {
public:
    mesh_parts(const walk_rules& by, model_materials& with, const walked_place& where)
        : rules(by), materials(with), at(where) {}

    void add_face(SUFaceRef face);
    void add_edge(SUEdgeRef edge);

    // The "primitives" of a mesh; an empty array if there is nothing. Counts and box of them are below.
    gltf::json put(gltf::glb_writer& to);

    std::uint64_t triangles = 0;
    std::uint64_t lines = 0;
    gltf::float_range box;

private:
    struct part_key {
        std::size_t material = 0; // in the file
        const void* layer = nullptr;
        bool hidden = false;
        auto operator<=>(const part_key&) const = default;
    };
    struct part {
        gltf::primitive_data data;
        SULayerRef layer = SU_INVALID;
    };
    // A material as it shows on a side.
    struct paint {
        SUMaterialRef material = SU_INVALID;
        bool is_own = false; // painted on the side itself; else inherited
    };
    struct face_mesh;

    paint paint_of(SUFaceRef face, bool front) const;
    void add_side(SUFaceRef face, const face_mesh& mesh, bool front, const paint& with, bool two_sided);
    part& part_for(SUDrawingElementRef element, std::size_t material);
    std::uint32_t end_of_line(part& lines, SUVertexRef vertex);

    const walk_rules& rules;
    model_materials& materials;
    const walked_place& at;
    std::map<part_key, part> parts;
    std::map<std::pair<const part*, const void*>, std::uint32_t> line_ends;
    std::map<part_key, part> edges;
};
