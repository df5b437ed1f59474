#include "tests/sketchup/skp/writer/random_model.h"

#include "sketchup/builder/model_builder.h"
#include "sketchup/model/vector_math.h"
#include "sketchup/skp/classic/option_fields.h"
#include "tests/sketchup/skp/writer/random_values.h"

#include <array>
#include <cmath>
#include <vector>

namespace {

using namespace sketchup;

class generator {
public:
    explicit generator(std::uint64_t seed) : random_(seed) {}
    std::unique_ptr<model> make();

private:
    void add_materials();
    void add_layers();
    void add_definitions();
    void fill(list_builder list, std::uint32_t placeable);
    void add_prism(list_builder& list);
    void add_curves(list_builder& list);
    void add_annotations(list_builder& list);
    void add_placements(list_builder& list, std::uint32_t placeable);
    void glue_things(list_builder& list);
    void add_scenes();
    void set_view();
    void paint(face& f);
    void vary_faces_and_edges();
    void vary_drawing(drawing_element& e);
    void vary_all_drawings();
    void give_attributes();
    void give_attributes_at(entity_place owner, int depth = 2);
    void give_ids();
    void give_id(entity& e);
    sketchup::index some_material() {
        return random_.chance(2) ? no_index : materials_[random_.below(size(materials_))];
    }
    std::vector<attribute> options();
    shadow_info sun();
    camera view();
    static std::uint32_t size(const auto& array) { return static_cast<std::uint32_t>(array.size()); }

    random_values random_;
    model_builder builder_;
    std::vector<sketchup::index> materials_;
    std::vector<list_builder> components_; // each may hold those before it
    std::vector<sketchup::index> images_;
    std::vector<list_builder> groups_;
    std::int64_t last_id_ = 0;
};

std::vector<std::uint8_t> some_picture(random_values& random) {
    // Beginnings of files of four formats and one that is none; nothing decodes them here.
    const std::vector<std::uint8_t> beginnings[] = {
        {0xFF, 0xD8, 0xFF, 0xE0}, {'B', 'M'}, {'I', 'I', 42, 0}, {0x89, 'P', 'N', 'G'}, {'?'}};
    std::vector<std::uint8_t> bytes = beginnings[random.below(5)];
    for (std::uint32_t i = random.below(40); i > 0; --i)
        bytes.push_back(static_cast<std::uint8_t>(random.below(256)));
    return bytes;
}

void generator::add_materials() {
    for (std::uint32_t i = 2 + random_.below(4); i > 0; --i) {
        const std::string file = random_.name() + ".png";
        const sketchup::index made =
            random_.chance(2)
                ? builder_.material(random_.name(), random_.color())
                : builder_.textured_material(random_.name(), some_picture(random_), file, 1 + random_.below(50), 2.5);
        material& m = builder_.model().materials[made];
        m.transparency = random_.figure();
        m.use_transparency = random_.chance(2);
        if (m.texture != no_index) {
            m.color = random_.color();
            m.type = random_.chance(2) ? material_type::colorized : material_type::textured;
            m.colorize_type = random_.below(2);
            texture& t = builder_.model().textures[m.texture];
            t.average_color = random_.color();
            if (random_.chance(6))
                t.picture = no_index;
            else if (picture& p = builder_.model().pictures[t.picture]; p.format == 1)
                p.quality = random_.below(100);
        }
        materials_.push_back(made);
    }
}

void generator::add_layers() {
    std::vector<sketchup::index> folders;
    for (std::uint32_t i = random_.below(4); i > 0; --i) {
        const sketchup::index parent =
            folders.empty() || random_.chance(2) ? no_index : folders[random_.below(size(folders))];
        folders.push_back(builder_.layer_folder(random_.name(), parent, random_.chance(2)));
    }
    for (std::uint32_t i = random_.below(4); i > 0; --i) {
        const sketchup::index made = builder_.layer(random_.name(), random_.chance(2), random_.color());
        layer& l = builder_.model().layers[made];
        l.page_behavior = random_.below(64);
        if (!folders.empty() && random_.chance(2))
            l.folder = folders[random_.below(size(folders))];
    }
}

// A triangle or more, with a hole at times, in a plane of any direction.
void generator::add_prism(list_builder& list) {
    const transform where = random_.placement();
    const auto placed = [&](double x, double y) {
        return vec3{where[0] * x + where[4] * y + where[12], where[1] * x + where[5] * y + where[13],
                    where[2] * x + where[6] * y + where[14]};
    };
    std::vector<vec3> outline;
    const std::uint32_t corners = 3 + random_.below(5);
    for (std::uint32_t i = 0; i < corners; ++i)
        outline.push_back(placed(9 * std::cos(6.0 * i / corners), 9 * std::sin(6.0 * i / corners)));
    std::vector<std::vector<vec3>> holes;
    if (random_.chance(3))
        holes.push_back({placed(0, 0), placed(1, 0), placed(0, 1)});
    const entity_place made = list.face(outline, holes);
    if (random_.chance(2))
        return;
    texture_mapping& mapping = builder_.mapping(made);
    for (side_mapping* side : {&mapping.front, &mapping.back}) {
        side->positioned = random_.chance(2);
        side->projected = random_.chance(3);
        side->direction = random_.point();
        for (double& number : side->matrix)
            number = random_.figure();
    }
}

void generator::add_curves(list_builder& list) {
    if (random_.chance(2)) {
        list.arc(random_.point(), {4, 0, 0}, {0, 0, 4}, 0.5, 2.5, 3);
        builder_.model().curves.back().is_polygon = random_.chance(2);
    }
    if (random_.chance(2)) {
        const std::vector<vec3> points = {random_.point(), random_.point(), random_.point()};
        list.polyline_curve(points);
    }
    list.edge(random_.point(), random_.point());
}

void generator::add_annotations(list_builder& list) {
    for (std::uint32_t i = random_.below(5); i > 0; --i)
        list.annotation(static_cast<annotation_kind>(random_.below(6)));
    for (std::uint32_t i = random_.below(3); i > 0; --i) {
        const entity_place made =
            list.section_plane({0, 0.6, 0.8, random_.figure()}, random_.chance(2), random_.name());
        builder_.model().section_planes[made.at].symbol = std::to_string(i);
    }
}

// placeable: how many components this list may hold.
void generator::add_placements(list_builder& list, std::uint32_t placeable) {
    for (std::uint32_t i = placeable > 0 ? random_.below(3) : 0; i > 0; --i)
        list.instance(components_[random_.below(placeable)], random_.placement(), random_.text());
    if (random_.chance(3))
        list.image(images_[random_.below(size(images_))], random_.placement());
    if (random_.chance(2)) {
        list_builder group = list.group(random_.text(), random_.placement());
        groups_.push_back(group);
        fill(group, placeable);
        if (random_.chance(3))
            list.copy_of_group(group, random_.placement());
    }
}

void generator::fill(list_builder list, std::uint32_t placeable) {
    for (std::uint32_t i = random_.below(3); i > 0; --i)
        add_prism(list);
    add_curves(list);
    add_annotations(list);
    add_placements(list, placeable);
    glue_things(list);
}

// To faces mostly, to other placements at times.
void generator::glue_things(list_builder& list) {
    const entity_list& made =
        list.definition() == no_index ? builder_.model().root : builder_.definition(list).entities;
    std::vector<entity_place> placed;
    for (const std::vector<sketchup::index>* some : {&made.groups, &made.instances, &made.images})
        for (const sketchup::index one : *some)
            placed.push_back({builder_.model().placements[one].kind, one});
    for (std::uint32_t i = placed.empty() ? 0 : random_.below(4); i > 0; --i) {
        const entity_place glued = placed[random_.below(size(placed))];
        if (!made.faces.empty() && !random_.chance(3))
            list.glue(glued, {entity_kind::face, made.faces[random_.below(size(made.faces))]});
        else
            list.glue(glued, placed[random_.below(size(placed))]);
    }
}

void generator::add_definitions() {
    for (int i = 0; i < 2; ++i)
        images_.push_back(builder_.image_definition(some_picture(random_), random_.name() + ".jpg", 64, 32));
    for (std::uint32_t i = 2 + random_.below(3); i > 0; --i)
        components_.push_back(builder_.component(random_.name()));
    for (std::uint32_t i = 0; i < components_.size(); ++i)
        fill(components_[i], i);
    fill(builder_.root(), size(components_));
    for (component_definition& d : builder_.model().definitions) {
        d.guid = random_.guid();
        d.description = random_.text();
        d.path = random_.text();
        d.time = random_.below(0xFFFFFFFF);
        d.insertion_point = random_.point();
        d.behavior = {random_.chance(2), random_.chance(2), random_.below(4),
                      random_.chance(2), random_.chance(2), random_.below(128)};
    }
}

std::vector<attribute> generator::options() {
    std::vector<attribute> values;
    for (const skp::option_field& field : skp::option_fields()) {
        if (field.name == nullptr)
            continue;
        switch (field.type) {
        case skp::option_type::integer:
            values.push_back({field.name, whole_number(static_cast<std::int32_t>(random_.below(9)))});
            break;
        case skp::option_type::color:
            values.push_back({field.name, {value_code::color, random_.color()}});
            break;
        case skp::option_type::real:
            values.push_back({field.name, real_number(random_.figure())});
            break;
        default:
            values.push_back({field.name, truth(random_.chance(2))});
        }
    }
    values.push_back({"DisplaySectionPlanes", truth(random_.chance(2))});
    values.push_back({"DisplaySectionCuts", truth(random_.chance(2))});
    return values;
}

shadow_info generator::sun() {
    shadow_info s;
    s.time = random_.below(0xFFFFFFFF);
    s.daylight_saving = random_.chance(2);
    s.city = random_.text();
    s.country = random_.text();
    s.longitude = random_.figure();
    s.latitude = random_.figure();
    s.time_zone = random_.below(12);
    s.north = {0.6, 0.8, 0};
    s.display_shadows = random_.chance(2);
    s.display_north = random_.chance(2);
    s.display_on_all_faces = random_.chance(2);
    s.display_on_ground = random_.chance(2);
    s.edges_cast_shadows = random_.chance(2);
    s.light = static_cast<std::int32_t>(random_.below(101));
    s.dark = static_cast<std::int32_t>(random_.below(101));
    s.use_sun_for_all_shading = random_.chance(2);
    return s;
}

camera generator::view() {
    camera c;
    c.eye = random_.point();
    c.target = random_.point();
    const vec3 view = c.target - c.eye; // up stands across it
    c.up = normalized_or(vec3{-view.y, view.x, 0}, {0, 0, 1});
    c.perspective = random_.chance(2);
    c.field_of_view = 20 + random_.below(80);
    c.height = 1 + random_.below(1000);
    c.aspect = random_.figure();
    c.fov_is_vertical = random_.chance(2);
    c.two_dimensional = random_.chance(2);
    return c;
}

void generator::set_view() {
    model& m = builder_.model();
    m.guid = random_.guid();
    for (texture& t : m.textures)
        if (t.average_color == rgba{}) // of an image; files always have one
            t.average_color = {random_.color().red, 0, 0, 255};
    m.description = "Description " + random_.text();
    m.camera = view();
    m.rendering_options.values = options();
    m.shadow_info = sun();
    builder_.attribute({entity_kind::model}, "ModelProperties", "Description", text(m.description));
    builder_.attribute({entity_kind::model}, "ModelProperties", "Name", text(random_.text()));
}

void generator::add_scenes() {
    constexpr std::uint32_t unknown_bits = 0xFF80;
    constexpr std::uint32_t keeps_axes_and_hidden_entities = 8 | 16;
    for (std::uint32_t i = random_.below(4); i > 0; --i) {
        const sketchup::index made = builder_.scene(random_.name(), random_.chance(2));
        if (random_.chance(2))
            builder_.scene_camera(made) = view();
        model& m = builder_.model();
        scene& s = m.scenes[made];
        s.description = random_.text();
        s.in_slide_show = random_.chance(2);
        if (random_.chance(2))
            s.rendering_options.emplace().values = options();
        if (random_.chance(2))
            s.shadow_info = sun();
        for (sketchup::index layer = 0; layer < m.layers.size(); ++layer)
            if (random_.chance(3))
                s.hidden_layers.push_back(layer);
        for (sketchup::index plane = 0; plane < m.section_planes.size(); ++plane)
            if (random_.chance(3))
                s.active_section_planes.push_back(plane);
        s.flags = (static_cast<std::uint32_t>(random_.bits()) & (unknown_bits | keeps_axes_and_hidden_entities)) |
                  (s.camera != no_index ? 1U : 0U) | (s.rendering_options ? 2U : 0U) | (s.shadow_info ? 4U : 0U) |
                  (s.hidden_layers.empty() ? 0U : 32U) | (s.active_section_planes.empty() ? 0U : 64U);
    }
}

void generator::paint(face& f) {
    f.material = some_material();
    f.back_material = some_material();
}

void generator::vary_faces_and_edges() {
    model& m = builder_.model();
    for (face& f : m.faces)
        if (f.material == no_index) // not that of an image
            paint(f);
    for (edge& e : m.edges) {
        e.soft = random_.chance(3);
        e.smooth = random_.chance(3);
    }
    for (placement& p : m.placements) {
        p.guid = random_.guid();
        p.locked = random_.chance(3);
        p.material = some_material();
    }
}

void generator::vary_drawing(drawing_element& e) {
    e.hidden = random_.chance(4);
    e.casts_shadows = random_.chance(2);
    e.receives_shadows = random_.chance(2);
    e.layer = random_.below(size(builder_.model().layers));
}

void generator::vary_all_drawings() {
    model& m = builder_.model();
    const auto vary = [this](auto& array) {
        for (auto& element : array)
            vary_drawing(element);
    };
    vary(m.edges);
    vary(m.faces);
    vary(m.placements);
    vary(m.section_planes);
    vary(m.annotations);
    vary(m.definitions);
    for (edge& e : m.edges)
        e.material = some_material();
    for (component_definition& d : m.definitions)
        d.material = some_material();
}

void generator::give_attributes_at(entity_place owner, int depth) {
    for (std::uint32_t i = random_.below(3); i > 0; --i) {
        const std::string name = random_.name();
        const entity_place made = builder_.dictionary(owner, name);
        for (std::uint32_t k = random_.below(4); k > 0; --k)
            builder_.attribute(owner, name, random_.name(), random_.value());
        if (depth > 0 && random_.chance(4))
            give_attributes_at(made, depth - 1);
    }
}

void generator::give_attributes() {
    const model& m = builder_.model();
    const auto give = [this](entity_kind kind, const auto& array) {
        for (sketchup::index i = 0; i < array.size(); ++i)
            if (random_.chance(3))
                give_attributes_at({kind, i});
    };
    give(entity_kind::vertex, m.vertices);
    give(entity_kind::edge, m.edges);
    give(entity_kind::face, m.faces);
    give(entity_kind::group, m.placements); // of any kind
    give(entity_kind::section_plane, m.section_planes);
    give(entity_kind::annotation, m.annotations);
    give(entity_kind::curve, m.curves);
    give(entity_kind::component_definition, m.definitions);
    give(entity_kind::layer, m.layers);
    give(entity_kind::material, m.materials);
    give(entity_kind::texture, m.textures);
    give(entity_kind::scene, m.scenes);
    give_attributes_at({entity_kind::entities, no_index});
    give_attributes_at({entity_kind::rendering_options});
    give_attributes_at({entity_kind::shadow_info});
}

void generator::give_id(entity& e) {
    constexpr std::uint32_t widest_step = 100000; // so that ids of one to four bytes occur
    e.persistent_id = last_id_ += 1 + random_.below(random_.chance(20) ? widest_step : 3);
}

void generator::give_ids() {
    model& m = builder_.model();
    const auto give = [this](auto& array) {
        for (auto& element : array)
            give_id(element);
    };
    give(m.vertices);
    give(m.curves);
    give(m.edges);
    give(m.faces);
    give(m.placements);
    give(m.section_planes);
    give(m.annotations);
    give(m.definitions);
    give(m.layers);
    give(m.materials);
    give(m.textures);
    give(m.scenes);
    give_id(m.root);
    give_id(m.rendering_options);
    give_id(m.shadow_info);
    for (edge_use& use : m.edge_uses)
        use.persistent_id = ++last_id_;
}

std::unique_ptr<model> generator::make() {
    add_materials();
    add_layers();
    add_definitions();
    set_view();
    add_scenes();
    vary_faces_and_edges();
    vary_all_drawings();
    give_attributes();
    give_ids();
    std::unique_ptr<model> made = builder_.finish();
    for (attribute_dictionary& d : made->dictionaries) {
        d.persistent_id = ++last_id_;
        d.read_only = random_.chance(5);
    }
    return made;
}

} // namespace

std::unique_ptr<sketchup::model> random_model(std::uint64_t seed) {
    return generator(seed).make();
}
