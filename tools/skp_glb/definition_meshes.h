#pragma once

// One mesh for the faces and edges of a list, shared by all that place it; a second one only where what it inherits
// changes its looks.

#include "tools/gltf/vertex_data.h"
#include "tools/model_opening/walked_place.h"
#include "tools/skp_glb/model_materials.h"

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>

struct model_mesh {
    std::optional<std::size_t> number; // none for a list without faces and edges
    std::uint64_t triangles = 0;
    std::uint64_t lines = 0;
    gltf::float_range box; // metres, in the list's own space
};

class definition_meshes {
public:
    definition_meshes(gltf::glb_writer& to, const walk_rules& by, model_materials& with)
        : writer(to), rules(by), materials(with) {}

    // The mesh of a list placed so. name: of the definition. extras: of the mesh, when it is made; null for none.
    const model_mesh& mesh_of(SUEntitiesRef list, const walked_place& at, const std::string& name,
                              const gltf::json& extras = nullptr);

    // The rectangle of a placed image, in the image's space with a metre for an inch of it.
    const model_mesh& mesh_of(SUImageRef image);

    const std::vector<model_mesh>& made() const { return all; }

private:
    // What of the inherited things a list looks at.
    struct list_needs {
        bool material = false; // some face is bare on a side
    };
    using mesh_key = std::tuple<const void*, const void*, const void*>; // list, inherited material, inherited layer

    list_needs needs_of(SUEntitiesRef list);

    gltf::glb_writer& writer;
    const walk_rules& rules;
    model_materials& materials;
    std::unordered_map<const void*, list_needs> needs;
    std::map<mesh_key, model_mesh> meshes;
    std::unordered_map<const void*, model_mesh> images;
    std::vector<model_mesh> all;
};
