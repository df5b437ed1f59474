#pragma once

// The nodes of a model: one for each placement, with its name, layer and place, and the mesh of its definition.

#include "tools/gltf/node_placement.h"
#include "tools/skp_glb/definition_meshes.h"

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

struct placed_counts {
    std::uint64_t placements = 0;
    std::uint64_t triangles = 0; // of every placement
    std::uint64_t images = 0;
};

class model_nodes {
public:
    model_nodes(gltf::glb_writer& to, const walk_rules& by, definition_meshes& from, bool with_attributes)
        : writer(to), rules(by), meshes(from), attributes(with_attributes) {}

    // Adds the nodes of everything that a list places, and its section planes. Gives those at the top.
    // world: where the list stands in the model; metres.
    std::vector<std::size_t> add_content(SUEntitiesRef list, const walked_place& at, const gltf::frame& world = {});

    // The section planes that have nodes, wherever they are placed: "name" and "plane", whose a x + b y + c z + d is 0
    // in metres in the space of the model.
    const gltf::json& section_planes() const { return planes; }

    // Counts the triangles of a mesh that is placed once more.
    void count(const model_mesh& mesh) { counts.triangles += mesh.triangles; }
    const placed_counts& placed() const { return counts; }

private:
    struct definition_facts {
        SUEntitiesRef inside = SU_INVALID;
        std::string name;
        gltf::json extras;
    };

    const definition_facts& facts_of(SUComponentDefinitionRef definition);
    const std::string& layer_name(SULayerRef layer);
    void add_instance(SUComponentInstanceRef instance, const walked_place& at, const gltf::frame& world,
                      std::vector<std::size_t>& to);
    void add_image(SUImageRef image, const walked_place& at, std::vector<std::size_t>& to);
    void add_plane(SUSectionPlaneRef plane, const gltf::frame& world, std::vector<std::size_t>& to);
    gltf::json node_for(SUDrawingElementRef element, const std::string& name, const walked_place& at);
    std::size_t add_placed(gltf::json node, const gltf::frame& where, const model_mesh& mesh,
                           const std::vector<std::size_t>& children);

    gltf::glb_writer& writer;
    const walk_rules& rules;
    definition_meshes& meshes;
    bool attributes;
    std::unordered_map<const void*, definition_facts> definitions;
    std::unordered_map<const void*, std::string> layers;
    placed_counts counts;
    gltf::json planes = gltf::json::array();
};

// The transform of a placement, in metres.
gltf::frame frame_of(const SUTransformation& transform);
