#include "tests/sketchup/skp/model_figures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <vector>

namespace {

using nlohmann::json;
using sketchup::entity_kind;
using sketchup::index;

// Calls act(list) for the list of the model and of each definition.
template<class Action>
void for_each_list(const sketchup::model& m, Action act) {
    act(m.root);
    for (const sketchup::component_definition& d : m.definitions)
        act(d.entities);
}

template<class Number>
std::size_t sum_over_lists(const sketchup::model& m, Number number_of) {
    std::size_t sum = 0;
    for_each_list(m, [&](const sketchup::entity_list& list) { sum += number_of(list); });
    return sum;
}

template<class Predicate>
std::size_t faces_that(const sketchup::model& m, Predicate holds) {
    return sum_over_lists(m, [&](const sketchup::entity_list& list) {
        return static_cast<std::size_t>(std::ranges::count_if(list.faces, [&](index f) { return holds(m.faces[f]); }));
    });
}

template<class Predicate>
std::size_t edges_that(const sketchup::model& m, Predicate holds) {
    return sum_over_lists(m, [&](const sketchup::entity_list& list) {
        return static_cast<std::size_t>(std::ranges::count_if(list.edges, [&](index e) { return holds(m.edges[e]); }));
    });
}

std::size_t annotations_of(const sketchup::model& m, std::set<sketchup::annotation_kind> kinds) {
    return sum_over_lists(m, [&](const sketchup::entity_list& list) {
        return static_cast<std::size_t>(
            std::ranges::count_if(list.annotations, [&](index a) { return kinds.contains(m.annotations[a].what); }));
    });
}

std::size_t definitions_of(const sketchup::model& m, sketchup::definition_kind kind) {
    return static_cast<std::size_t>(
        std::ranges::count_if(m.definitions, [kind](const auto& d) { return d.what == kind; }));
}

json content_figures(const sketchup::model& m) {
    using sketchup::definition_kind;
    json j;
    j["definitions"] = {{"component", definitions_of(m, definition_kind::component)},
                        {"group", definitions_of(m, definition_kind::group)},
                        {"image", definitions_of(m, definition_kind::image)}};
    j["instances"] = sum_over_lists(m, [](const auto& list) { return list.instances.size(); });
    j["groups"] = sum_over_lists(m, [](const auto& list) { return list.groups.size(); });
    j["images"] = sum_over_lists(m, [](const auto& list) { return list.images.size(); });
    j["section_planes"] = sum_over_lists(m, [](const auto& list) { return list.section_planes.size(); });
    j["section_planes_active"] = sum_over_lists(
        m, [](const auto& list) { return static_cast<std::size_t>(list.active_section_plane != sketchup::no_index); });
    j["glued"] = sum_over_lists(m, [](const auto& list) { return list.glue.size(); });
    using sketchup::annotation_kind;
    j["guides"] = annotations_of(m, {annotation_kind::guide_line, annotation_kind::guide_point});
    j["texts"] = annotations_of(m, {annotation_kind::text});
    j["dimensions"] = annotations_of(m, {annotation_kind::linear_dimension, annotation_kind::radial_dimension});
    j["camera_facing_definitions"] = std::ranges::count_if(m.definitions, [](const auto& d) {
        return d.what == sketchup::definition_kind::component && d.behavior.always_faces_camera;
    });
    return j;
}

json geometry_figures(const sketchup::model& m) {
    json j;
    const auto all = [](const auto&) { return true; };
    j["faces"] = faces_that(m, all);
    j["faces_with_holes"] = faces_that(m, [](const sketchup::face& f) { return f.loops.count > 1; });
    j["faces_with_texture_mapping"] =
        faces_that(m, [](const sketchup::face& f) { return f.texture_mapping != sketchup::no_index; });
    j["loops"] = m.loops.size();
    j["vertices"] = m.vertices.size();
    std::set<index> curves;
    for (const sketchup::edge& e : m.edges)
        if (e.curve != sketchup::no_index)
            curves.insert(e.curve);
    j["curves"] = curves.size();
    j["edges"] = {{"all", edges_that(m, all)},
                  {"soft", edges_that(m, [](const sketchup::edge& e) { return e.soft; })},
                  {"smooth", edges_that(m, [](const sketchup::edge& e) { return e.smooth; })},
                  {"hidden", edges_that(m, [](const sketchup::edge& e) { return e.hidden; })}};
    const auto hidden_placements = [&m](const std::vector<index>& placed) {
        return std::ranges::count_if(placed, [&m](index p) { return m.placements[p].hidden; });
    };
    const auto hidden = [&](std::vector<index> sketchup::entity_list::*kind) {
        return sum_over_lists(
            m, [&](const auto& list) { return static_cast<std::size_t>(hidden_placements(list.*kind)); });
    };
    j["hidden"] = {{"instances", hidden(&sketchup::entity_list::instances)},
                   {"groups", hidden(&sketchup::entity_list::groups)},
                   {"images", hidden(&sketchup::entity_list::images)},
                   {"faces", faces_that(m, [](const sketchup::face& f) { return f.hidden; })}};
    return j;
}

double rounded(double x) {
    return std::round(x * 1e6) / 1e6;
}

// Pixel sizes aside, which need a picture codec.
json material_figures(const sketchup::model& m) {
    json materials = json::array();
    for (const index i : m.listed_materials) {
        const sketchup::material& material = m.materials[i];
        json j = {{"name", material.name},
                  {"type", static_cast<std::uint32_t>(material.type)},
                  {"opacity", rounded(material.use_transparency ? 1 - material.transparency : 1)}};
        if (material.texture != sketchup::no_index) {
            const sketchup::texture& t = m.textures[material.texture];
            j["tile"] = {rounded(t.width), rounded(t.height)};
        }
        materials.push_back(j);
    }
    return materials;
}

// Private materials beside those of the layers, which the classic container keeps inside the layers.
std::size_t private_materials_outside_layers(const sketchup::model& m) {
    std::set<index> of_layers;
    for (const sketchup::layer& l : m.layers)
        of_layers.insert(l.material);
    std::size_t count = 0;
    for (index i = 0; i < m.materials.size(); ++i)
        count += m.materials[i].is_private && !of_layers.contains(i);
    return count;
}

json dictionary_figures(const sketchup::model& m) {
    json owners = json::object();
    const auto add = [&owners](const std::string& owner, const sketchup::index_range& dictionaries) {
        if (dictionaries.count != 0)
            owners[owner] = owners.value(owner, 0u) + dictionaries.count;
    };
    const auto add_all = [&add](const std::string& owner, const auto& elements) {
        for (const auto& e : elements)
            add(owner, e.dictionaries);
    };
    add("model", m.root.dictionaries);
    add("model_properties", m.properties);
    add("shadow_info", m.shadow_info.dictionaries);
    add("rendering_options", m.rendering_options.dictionaries);
    add_all("definition", m.definitions);
    add_all("material", m.materials);
    add_all("layer", m.layers);
    add_all("vertex", m.vertices);
    add_all("edge", m.edges);
    add_all("face", m.faces);
    add_all("curve", m.curves);
    add_all("section_plane", m.section_planes);
    add_all("scene", m.scenes);
    add_all("nested", m.dictionaries);
    for (const sketchup::annotation& a : m.annotations) {
        using sketchup::annotation_kind;
        const bool guide = a.what == annotation_kind::guide_line || a.what == annotation_kind::guide_point;
        add(guide ? "guide" : "annotation", a.dictionaries);
    }
    for (const sketchup::placement& p : m.placements)
        add(p.kind == entity_kind::group   ? "group"
            : p.kind == entity_kind::image ? "image"
                                           : "instance",
            p.dictionaries);
    json names = json::object();
    for (const sketchup::attribute_dictionary& d : m.dictionaries)
        names[d.name] = names.value(d.name, 0) + 1;
    return {{"total", m.dictionaries.size()}, {"by_owner", owners}, {"by_name", names}};
}

} // namespace

nlohmann::json model_figures(const sketchup::model& m) {
    json j = content_figures(m);
    j.update(geometry_figures(m));
    j["version"] =
        std::to_string(m.version.major) + "." + std::to_string(m.version.minor) + "." + std::to_string(m.version.build);
    j["container"] = m.is_modern ? "modern" : "classic";
    j["materials"] = material_figures(m);
    j["materials_private"] = private_materials_outside_layers(m);
    j["dictionaries"] = dictionary_figures(m);
    j["layers"] = json::array();
    for (const sketchup::layer& l : m.layers)
        j["layers"].push_back(json::array({l.name, !l.hidden}));
    j["scenes"] = json::array();
    for (const sketchup::scene& s : m.scenes)
        j["scenes"].push_back(s.name);
    return j;
}
