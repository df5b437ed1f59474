#include "tools/skp-dump/model_counts.h"

#include "sketchup/model/face_openings.h"

#include <vector>

namespace {

using namespace sketchup;

const char* owner_name(entity_kind kind) {
    switch (kind) {
    case entity_kind::vertex:
        return "vertex";
    case entity_kind::edge:
        return "edge";
    case entity_kind::face:
        return "face";
    case entity_kind::group:
        return "group";
    case entity_kind::component_instance:
        return "instance";
    case entity_kind::image:
        return "image";
    case entity_kind::section_plane:
        return "section_plane";
    case entity_kind::curve:
        return "curve";
    case entity_kind::component_definition:
        return "definition";
    case entity_kind::layer:
        return "layer";
    case entity_kind::material:
        return "material";
    case entity_kind::texture:
        return "texture";
    case entity_kind::attribute_dictionary:
        return "nested";
    case entity_kind::scene:
        return "scene";
    case entity_kind::rendering_options:
        return "rendering_options";
    case entity_kind::shadow_info:
        return "shadow_info";
    default:
        return "other";
    }
}

const char* owner_name(annotation_kind what) {
    switch (what) {
    case annotation_kind::guide_line:
    case annotation_kind::guide_point:
        return "guide";
    case annotation_kind::text:
        return "text";
    case annotation_kind::linear_dimension:
    case annotation_kind::radial_dimension:
        return "dimension";
    case annotation_kind::polyline:
        break;
    }
    return "polyline";
}

class counter {
public:
    explicit counter(const model& counted) : m(counted), openings(counted) {}

    model_counts count() {
        count_list(m.root);
        for (const component_definition& d : m.definitions)
            count_definition(d);
        count_geometry();
        count_private_materials();
        count_dictionaries();
        return std::move(result);
    }

private:
    void count_definition(const component_definition& d) {
        result.component_definitions += d.what == definition_kind::component ? 1 : 0;
        result.group_definitions += d.what == definition_kind::group ? 1 : 0;
        result.image_definitions += d.what == definition_kind::image ? 1 : 0;
        result.camera_facing_definitions += d.behavior.always_faces_camera ? 1 : 0;
        count_list(d.entities);
    }

    std::size_t hidden_of(const std::vector<index>& placements) const {
        std::size_t hidden = 0;
        for (const index at : placements)
            hidden += m.placements[at].hidden ? 1 : 0;
        return hidden;
    }

    void count_list(const entity_list& list) {
        result.instances += list.instances.size();
        result.groups += list.groups.size();
        result.images += list.images.size();
        result.hidden_instances += hidden_of(list.instances);
        result.hidden_groups += hidden_of(list.groups);
        result.hidden_images += hidden_of(list.images);
        result.faces += list.faces.size();
        result.edges += list.edges.size();
        result.section_planes += list.section_planes.size();
        result.active_section_planes += list.active_section_plane != no_index ? 1 : 0;
        result.glued += list.glue.size();
        for (const index at : list.annotations)
            count_annotation(m.annotations[at].what);
        for (const index at : list.faces)
            count_openings(m.faces[at]);
    }

    void count_openings(const face& f) {
        const std::size_t found = openings.of(f).size();
        result.openings += found;
        result.faces_with_openings += found > 0 ? 1 : 0;
    }

    void count_annotation(annotation_kind what) {
        result.guides += what == annotation_kind::guide_line || what == annotation_kind::guide_point ? 1 : 0;
        result.texts += what == annotation_kind::text ? 1 : 0;
        result.dimensions +=
            what == annotation_kind::linear_dimension || what == annotation_kind::radial_dimension ? 1 : 0;
    }

    void count_geometry() {
        result.vertices = m.vertices.size();
        result.curves = m.curves.size();
        for (const face& f : m.faces) {
            result.loops += f.loops.count;
            result.faces_with_holes += f.loops.count > 1 ? 1 : 0;
            result.faces_with_texture_mapping += f.texture_mapping != no_index ? 1 : 0;
            result.hidden_faces += f.hidden ? 1 : 0;
        }
        for (const edge& e : m.edges) {
            result.soft_edges += e.soft ? 1 : 0;
            result.smooth_edges += e.smooth ? 1 : 0;
            result.hidden_edges += e.hidden ? 1 : 0;
        }
    }

    // Those of layers stand with their layers and count there.
    void count_private_materials() {
        std::vector<bool> is_of_layer(m.materials.size(), false);
        for (const layer& one : m.layers)
            if (one.material != no_index)
                is_of_layer[one.material] = true;
        for (index at = 0; at < m.materials.size(); ++at)
            result.private_materials += m.materials[at].is_private && !is_of_layer[at] ? 1 : 0;
    }

    void add_owner(const char* owner, index_range dictionaries) {
        if (dictionaries.count > 0)
            result.dictionaries_by_owner[owner] += dictionaries.count;
        result.dictionaries += dictionaries.count;
    }

    template<class Array>
    void add_owners(const Array& owners) {
        for (const auto& one : owners)
            add_owner(owner_name(one.kind), one.dictionaries);
    }

    void count_dictionaries() {
        add_owner("model", m.root.dictionaries);
        add_owner("model_properties", m.properties);
        add_owner("shadow_info", m.shadow_info.dictionaries);
        add_owner("rendering_options", m.rendering_options.dictionaries);
        add_owners(m.definitions);
        add_owners(m.placements);
        add_owners(m.faces);
        add_owners(m.edges);
        add_owners(m.vertices);
        add_owners(m.curves);
        add_owners(m.section_planes);
        add_owners(m.layers);
        add_owners(m.materials);
        add_owners(m.textures);
        add_owners(m.scenes);
        add_owners(m.dictionaries);
        for (const annotation& one : m.annotations)
            add_owner(owner_name(one.what), one.dictionaries);
        for (const attribute_dictionary& one : m.dictionaries)
            ++result.dictionaries_by_name[one.name];
    }

    const model& m;
    face_openings openings;
    model_counts result;
};

} // namespace

model_counts count_model(const model& m) {
    return counter(m).count();
}
