#include "tests/sketchup/skp/writer/model_description.h"

#include "sketchup/skp/writer/definition_order.h"
#include "tests/sketchup/skp/writer/description_text.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>

namespace {

using sketchup::index;
using sketchup::no_index;

// Stands where the other description may say what it likes.
constexpr const char* anything = "(left to the writer)";

bool is_same(const std::string& expected, const std::string& actual) {
    if (expected == actual)
        return true;
    if (!expected.ends_with(anything))
        return false;
    const std::size_t known = expected.size() - std::string_view(anything).size();
    return actual.compare(0, known, expected, 0, known) == 0;
}

bool is_any(const sketchup::guid& id) {
    return id != sketchup::guid();
}

class describer {
public:
    describer(const sketchup::model& m, const std::set<std::string>& left_out)
        : m_(m), definitions_(skp::definitions_children_first(m)), left_out_(left_out) {}

    std::vector<std::string> describe();

private:
    // Adds a line under what is being described.
    void say(const std::string& line) { lines_.push_back(std::string(2 * depth_, ' ') + line); }
    bool leaves_out(const std::string& fact) const { return left_out_.contains(fact); }
    // Adds a line unless that kind of fact is left out.
    void tells(const std::string& fact, const std::string& value) {
        if (!leaves_out(fact))
            say(fact + ": " + value);
    }
    // Likewise, for what a file always has: what the model has none of, the writer gives it.
    void tells_if_any(const std::string& fact, bool is_there, const std::string& value) {
        tells(fact, is_there ? value : anything);
    }
    // What follows in `content` belongs to that line.
    template<class Content>
    void under(const std::string& line, Content content) {
        say(line);
        ++depth_;
        content();
        --depth_;
    }

    void dictionaries(const sketchup::index_range& range, bool of_material = false);
    void properties();
    void dictionary(const sketchup::attribute_dictionary& d, bool of_material);
    // fact: whose id it is.
    void entity(const sketchup::entity& e, const std::string& fact);
    void drawing(const sketchup::drawing_element& e, const std::string& fact);

    void material(const sketchup::material& material, bool of_layer);
    void texture(const sketchup::texture& t);
    void materials();
    void layers();
    void folders(index parent);

    void glue(const sketchup::entity_list& list);
    void entities(const sketchup::entity_list& list);
    void edges(const sketchup::entity_list& list);
    void vertex(const std::string& which, index at);
    void curve(index at);
    void faces(const sketchup::entity_list& list);
    void side(const std::string& which, const sketchup::side_mapping& mapping);
    void placements(const std::string& what, const std::vector<index>& placed);
    void section_planes(const sketchup::entity_list& list);
    void annotations(const sketchup::entity_list& list);
    void definition(const sketchup::component_definition& d);

    void camera(const sketchup::camera& c);
    void options(const sketchup::rendering_options& o);
    void shadows(const sketchup::shadow_info& s);
    void scenes();
    void scene(const sketchup::scene& s);

    std::string name_of_material(index material) const {
        return material == no_index ? "none" : text_of(m_.materials[material].name);
    }
    std::string name_of_layer(index layer) const { return text_of(m_.layers[layer].name); }

    std::ptrdiff_t number_of_definition(index definition) const {
        return std::ranges::find(definitions_, definition) - definitions_.begin();
    }

    const sketchup::model& m_;
    const std::vector<index> definitions_; // children first, as files list them
    const std::set<std::string>& left_out_;
    std::vector<std::string> lines_;
    std::size_t depth_ = 0;
    std::map<index, std::size_t> vertex_numbers_; // in the order of their mention
    std::map<index, std::size_t> curve_numbers_;
};

void describer::dictionaries(const sketchup::index_range& range, bool of_material) {
    for (index i = 0; i < range.count; ++i)
        dictionary(m_.dictionaries[range.first + i], of_material);
}

// What every file says of itself without being told means nothing: that the model has no name and is not dynamic.
void describer::properties() {
    const auto says_nothing = [](const sketchup::attribute& a) {
        return a.value == sketchup::typed_value{sketchup::value_code::boolean, false} ||
               a.value == sketchup::typed_value{sketchup::value_code::string, std::string()};
    };
    for (index i = 0; i < m_.properties.count; ++i) {
        sketchup::attribute_dictionary d = m_.dictionaries[m_.properties.first + i];
        const bool is_own = d.name != "ModelProperties";
        if (!is_own)
            std::erase_if(d.entries, says_nothing);
        if (is_own || !d.entries.empty() || d.dictionaries.count > 0)
            dictionary(d, false);
    }
}

// A dictionary finds its entries by their keys, so their order means nothing.
void describer::dictionary(const sketchup::attribute_dictionary& d, bool of_material) {
    under("dictionary " + text_of(d.name), [&] {
        if (!of_material || !leaves_out("read-only dictionary of a material"))
            tells("read-only dictionary", text_of(d.read_only));
        tells("id of a dictionary", std::to_string(d.persistent_id));
        std::vector<std::string> entries;
        for (const sketchup::attribute& a : d.entries) {
            const std::size_t type = a.value.data.index();
            const bool is_scalar = type <= 3 || type == 5; // nil, integer, boolean, real, text
            if (!of_material || is_scalar || !leaves_out("compound attribute of a material"))
                entries.push_back(text_of(a.key) + " = " + text_of(a.value));
        }
        std::ranges::sort(entries);
        for (const std::string& entry : entries)
            say(entry);
        if (!of_material || !leaves_out("nested dictionary of a material"))
            dictionaries(d.dictionaries, of_material);
    });
}

void describer::entity(const sketchup::entity& e, const std::string& fact) {
    tells_if_any(fact, e.persistent_id != 0, std::to_string(e.persistent_id));
    dictionaries(e.dictionaries);
}

void describer::drawing(const sketchup::drawing_element& e, const std::string& fact) {
    entity(e, fact);
    say("material " + name_of_material(e.material) + ", layer " + name_of_layer(e.layer));
    say("hidden " + text_of(e.hidden) + ", casts " + text_of(e.casts_shadows) + ", receives " +
        text_of(e.receives_shadows));
}

void describer::texture(const sketchup::texture& t) {
    under("texture " + text_of(t.file_name), [&] {
        tells("id of a texture", std::to_string(t.persistent_id));
        if (!leaves_out("dictionary of a texture"))
            dictionaries(t.dictionaries);
        say("tile " + text_of(t.width) + " x " + text_of(t.height));
        tells_if_any("average color", t.average_color != sketchup::rgba(), text_of(t.average_color));
        if (t.picture == no_index) {
            say("no picture");
            return;
        }
        const sketchup::picture& picture = m_.pictures[t.picture];
        const std::vector<std::uint8_t> bytes = picture.load();
        say("picture " + text_of(std::string(bytes.begin(), bytes.end())));
        tells_if_any("number of a picture's format", picture.format != 0, std::to_string(picture.format));
        tells_if_any("quality of a picture", picture.quality != 0, std::to_string(picture.quality));
    });
}

void describer::material(const sketchup::material& material, bool of_layer) {
    under("material " + text_of(material.name), [&] {
        tells("id of a material", std::to_string(material.persistent_id));
        dictionaries(material.dictionaries, true);
        const sketchup::rgba& c = material.color;
        say("color " + text_of(sketchup::rgba{c.red, c.green, c.blue, 0}));
        tells("alpha of a material", std::to_string(c.alpha));
        say("type " + std::to_string(static_cast<int>(material.type)) + ", colorize " +
            std::to_string(material.colorize_type));
        say("transparency " + text_of(material.transparency) + ", used " + text_of(material.use_transparency));
        say("private " + text_of(material.is_private) + (of_layer ? ", of a layer" : ""));
        if (material.texture != no_index)
            texture(m_.textures[material.texture]);
    });
}

void describer::materials() {
    for (const index one : m_.listed_materials)
        material(m_.materials[one], false);
    std::set<index> of_layers;
    for (const sketchup::layer& l : m_.layers)
        of_layers.insert(l.material);
    std::map<std::string, index> others; // the program shows them nowhere, so in no order
    for (index i = 0; i < m_.materials.size(); ++i)
        if (m_.materials[i].is_private && !of_layers.contains(i))
            others[m_.materials[i].name] = i;
    for (const auto& [name, one] : others)
        material(m_.materials[one], false);
}

void describer::folders(index parent) {
    for (index i = 0; i < m_.layer_folders.size(); ++i)
        if (m_.layer_folders[i].parent == parent)
            under("folder " + text_of(m_.layer_folders[i].name), [&] {
                say("hidden " + text_of(m_.layer_folders[i].hidden));
                for (const sketchup::layer& l : m_.layers)
                    if (l.folder == i)
                        say("holds " + text_of(l.name));
                folders(i);
            });
}

void describer::layers() {
    for (const sketchup::layer& l : m_.layers)
        under("layer " + text_of(l.name), [&] {
            entity(l, "id of a layer");
            say("hidden " + text_of(l.hidden) + ", on new pages " + std::to_string(l.page_behavior));
            if (l.material != no_index)
                material(m_.materials[l.material], true);
        });
    if (!leaves_out("folders of layers"))
        folders(no_index);
}

void describer::vertex(const std::string& which, index at) {
    const auto [number, is_new] = vertex_numbers_.try_emplace(at, vertex_numbers_.size());
    under(which + " vertex " + std::to_string(number->second) + " " + text_of(m_.vertices[at].position),
          [&, first = is_new] {
              if (first)
                  entity(m_.vertices[at], "id of a vertex");
          });
}

void describer::curve(index at) {
    const auto [number, is_new] = curve_numbers_.try_emplace(at, curve_numbers_.size());
    const sketchup::curve& c = m_.curves[at];
    under("curve " + std::to_string(number->second), [&, first = is_new] {
        if (!first)
            return;
        entity(c, "id of a curve");
        say("polygon " + text_of(c.is_polygon) + ", arc " + text_of(c.is_arc));
        if (c.is_arc)
            say("about " + text_of(c.center) + text_of(c.normal) + text_of(c.x_axis) + text_of(c.y_axis) + " from " +
                text_of(c.start_angle) + " to " + text_of(c.end_angle));
    });
}

void describer::edges(const sketchup::entity_list& list) {
    for (const index one : list.edges)
        under("edge", [&] {
            const sketchup::edge& e = m_.edges[one];
            drawing(e, "id of an edge");
            say("soft " + text_of(e.soft) + ", smooth " + text_of(e.smooth));
            vertex("start", e.start);
            vertex("end", e.end);
            if (e.curve != no_index)
                curve(e.curve);
        });
}

void describer::side(const std::string& which, const sketchup::side_mapping& mapping) {
    say(which + " positioned " + text_of(mapping.positioned) + ", projected " + text_of(mapping.projected) + " " +
        text_of(std::span(mapping.matrix)) + " along " + text_of(mapping.direction));
}

void describer::faces(const sketchup::entity_list& list) {
    std::map<index, std::size_t> place; // of edges in the list
    for (const index one : list.edges)
        place.emplace(one, place.size());
    for (const index one : list.faces)
        under("face", [&] {
            const sketchup::face& f = m_.faces[one];
            drawing(f, "id of a face");
            say("plane " + text_of(f.plane) + ", back " + name_of_material(f.back_material));
            for (index l = 0; l < f.loops.count; ++l)
                under("loop", [&] {
                    const sketchup::index_range uses = m_.loops[f.loops.first + l].uses;
                    for (index u = 0; u < uses.count; ++u) {
                        const sketchup::edge_use& use = m_.edge_uses[uses.first + u];
                        say("edge " + std::to_string(place.at(use.edge)) + ", reversed " + text_of(use.reversed));
                        tells("id of an edge use", std::to_string(use.persistent_id));
                    }
                });
            if (f.texture_mapping != no_index) {
                side("front", m_.texture_mappings[f.texture_mapping].front);
                side("back", m_.texture_mappings[f.texture_mapping].back);
            }
        });
}

void describer::placements(const std::string& what, const std::vector<index>& placed) {
    for (const index one : placed)
        under(what, [&] {
            const sketchup::placement& p = m_.placements[one];
            drawing(p, "id of a placement");
            say("of definition " + std::to_string(number_of_definition(p.definition)) + " kind " +
                std::to_string(static_cast<int>(p.kind)));
            say("transform " + text_of(std::span(p.transform)) + ", locked " + text_of(p.locked));
            say("name " + text_of(p.name));
            tells_if_any("guid of a placement", is_any(p.guid), text_of(p.guid));
        });
}

void describer::section_planes(const sketchup::entity_list& list) {
    for (const index one : list.section_planes)
        under("section plane", [&] {
            const sketchup::section_plane& s = m_.section_planes[one];
            drawing(s, "id of a section plane");
            say(text_of(s.plane) + ", active " + text_of(one == list.active_section_plane));
            tells("name of a section plane", text_of(s.name) + " " + text_of(s.symbol));
        });
}

// Lists of some containers hold each kind by itself.
void describer::annotations(const sketchup::entity_list& list) {
    for (int kind = 0; kind <= static_cast<int>(sketchup::annotation_kind::polyline); ++kind) {
        const bool is_rare = kind >= static_cast<int>(sketchup::annotation_kind::radial_dimension);
        if (is_rare && leaves_out("radial dimension or polyline"))
            continue;
        for (const index one : list.annotations)
            if (static_cast<int>(m_.annotations[one].what) == kind)
                under("annotation of kind " + std::to_string(kind),
                      [&] { drawing(m_.annotations[one], "id of an annotation"); });
    }
}

// Each end by its kind and its place in the list of its kind.
void describer::glue(const sketchup::entity_list& list) {
    const auto name = [&list](const sketchup::glue_end& end) {
        const std::vector<index>& listed = end.kind == sketchup::entity_kind::face    ? list.faces
                                           : end.kind == sketchup::entity_kind::group ? list.groups
                                           : end.kind == sketchup::entity_kind::image ? list.images
                                                                                      : list.instances;
        const auto place = std::ranges::find(listed, end.at) - listed.begin();
        return "kind " + std::to_string(static_cast<int>(end.kind)) + " number " + std::to_string(place);
    };
    for (const sketchup::glue_relation& one : list.glue)
        say(name(one.glued) + " is glued to " + name(one.base));
}

void describer::entities(const sketchup::entity_list& list) {
    edges(list);
    faces(list);
    placements("group", list.groups);
    placements("instance", list.instances);
    placements("image", list.images);
    section_planes(list);
    annotations(list);
    glue(list);
}

void describer::definition(const sketchup::component_definition& d) {
    under("definition " + text_of(d.name), [&] {
        drawing(d, "id of a definition");
        say("kind " + std::to_string(static_cast<int>(d.what)));
        tells_if_any("guid", is_any(d.guid), text_of(d.guid));
        say("description " + text_of(d.description) + ", path " + text_of(d.path));
        tells_if_any("time", d.time != 0, std::to_string(d.time));
        tells("insertion point", text_of(d.insertion_point));
        const sketchup::component_behavior& b = d.behavior;
        say("glues " + text_of(b.glues) + ", cuts " + text_of(b.cuts_opening) + ", snaps " + std::to_string(b.snap_to));
        say("faces camera " + text_of(b.always_faces_camera) + ", sun " + text_of(b.shadow_faces_sun));
        tells("no-scale mask", std::to_string(b.no_scale_mask));
        entities(d.entities);
    });
}

void describer::camera(const sketchup::camera& c) {
    say("camera " + text_of(c.eye) + text_of(c.target) + text_of(c.up) + ", perspective " + text_of(c.perspective));
    say("field of view " + text_of(c.field_of_view) + ", vertical " + text_of(c.fov_is_vertical) + ", aspect " +
        text_of(c.aspect) + ", 2d " + text_of(c.two_dimensional));
    tells_if_any("height of the view", c.height > 0, text_of(c.height));
}

void describer::options(const sketchup::rendering_options& o) {
    if (leaves_out("rendering options"))
        return;
    under("rendering options", [&] {
        entity(o, "id of settings");
        std::map<std::string, std::string> values;
        for (const sketchup::attribute& a : o.values)
            values[a.key] = text_of(a.value);
        for (const auto& [name, value] : values)
            tells(name, value);
    });
}

void describer::shadows(const sketchup::shadow_info& s) {
    under("shadow info", [&] {
        entity(s, "id of settings");
        say("time " + std::to_string(s.time) + ", daylight saving " + text_of(s.daylight_saving));
        say("at " + text_of(s.city) + " " + text_of(s.country) + " " + text_of(s.longitude) + " " +
            text_of(s.latitude) + " " + text_of(s.time_zone) + " north " + text_of(s.north));
        say("shadows " + text_of(s.display_shadows) + ", north " + text_of(s.display_north) + ", faces " +
            text_of(s.display_on_all_faces) + ", ground " + text_of(s.display_on_ground) + ", edges " +
            text_of(s.edges_cast_shadows));
        say("light " + std::to_string(s.light) + ", dark " + std::to_string(s.dark) + ", shading " +
            text_of(s.use_sun_for_all_shading));
    });
}

void describer::scene(const sketchup::scene& s) {
    entity(s, "id of a scene");
    say("description " + text_of(s.description) + ", flags " + std::to_string(s.flags) + ", in slide show " +
        text_of(s.in_slide_show));
    if (s.camera != no_index)
        camera(m_.cameras[s.camera]);
    if (s.rendering_options)
        options(*s.rendering_options);
    if (s.shadow_info)
        shadows(*s.shadow_info);
    for (const index layer : s.hidden_layers)
        say("hides " + name_of_layer(layer));
    for (const index plane : s.active_section_planes)
        say("cuts " + text_of(m_.section_planes[plane].plane));
}

void describer::scenes() {
    for (index i = 0; i < m_.scenes.size(); ++i)
        under("scene " + text_of(m_.scenes[i].name) + ", active " + text_of(i == m_.active_scene),
              [&] { scene(m_.scenes[i]); });
}

std::vector<std::string> describer::describe() {
    tells_if_any("guid", is_any(m_.guid), text_of(m_.guid));
    say("description " + text_of(m_.description));
    if (!leaves_out("properties of the model"))
        properties();
    camera(m_.camera);
    options(m_.rendering_options);
    shadows(m_.shadow_info);
    materials();
    layers();
    for (const index one : definitions_)
        definition(m_.definitions[one]);
    under("model", [&] {
        entity(m_.root, "id of the model");
        entities(m_.root);
    });
    scenes();
    return std::move(lines_);
}

} // namespace

std::vector<std::string> description_of(const sketchup::model& m, const std::set<std::string>& left_out) {
    return describer(m, left_out).describe();
}

std::string first_difference(const std::vector<std::string>& expected, const std::vector<std::string>& actual) {
    const auto [e, a] = std::ranges::mismatch(expected, actual, is_same);
    if (e == expected.end() && a == actual.end())
        return {};
    const auto at = static_cast<std::size_t>(e - expected.begin());
    std::string result = "line " + std::to_string(at) + ", behind\n";
    constexpr std::size_t shown_before = 8;
    for (std::size_t i = at - std::min(at, shown_before); i < at; ++i)
        result += expected[i] + "\n";
    result += "expected: " + (e == expected.end() ? "the end" : *e);
    return result + "\nactual:   " + (a == actual.end() ? "the end" : *a);
}
