#include "tools/batch_glb/placed_things.h"

#include "platform/platform.h"
#include "text/path_end.h"
#include "tools/batch_glb/stream_numbers.h"
#include "tools/gltf/numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

using gltf::metres_in_an_inch;

void take_point(std::string_view text, gltf::double3& into, double factor = 1) {
    const auto triple = read_triple(text);
    if (!triple)
        return;
    for (std::size_t i = 0; i < 3; ++i)
        into[i] = (*triple)[i] * factor;
}

gltf::json point_json(const gltf::double3& point) {
    return {gltf::short_number(point[0]), gltf::short_number(point[1]), gltf::short_number(point[2])};
}

std::string plane_name(std::size_t at) {
    return "section plane " + std::to_string(at + 1);
}

std::size_t add_plant(gltf::glb_writer& to, const placed_plant& plant) {
    gltf::node_placement where;
    where.translation = plant.foot_metres;
    const double half_turn = plant.turn_degrees * std::numbers::pi / 360;
    where.rotation = {0, 0, std::sin(half_turn), std::cos(half_turn)};
    // Only the last part of the name of a file is a name for people.
    const std::string_view name = last_component(plant.name);
    gltf::json extras = {{"library", platform::utf8_from_own(plant.library)},
                         {"name", platform::utf8_from_own(plant.name)},
                         {"season", plant.season},
                         {"scale", gltf::short_number(plant.scale)}};
    if (plant.diameter_metres > 0)
        extras["diameter_metres"] = gltf::short_number(plant.diameter_metres);
    gltf::json node = {{"name", platform::utf8_from_own(name)}, {"extras", {{"plant", extras}}}};
    gltf::place(node, where);
    return to.add(gltf::list::nodes, node);
}

std::size_t add_object(gltf::glb_writer& to, const outside_object& object) {
    const std::string name = platform::utf8_from_own(object.type);
    const std::string layer = platform::utf8_from_own(object.layer);
    gltf::json sizes = gltf::json::array();
    for (const gltf::double3& axis : object.where.axes)
        sizes.push_back(gltf::short_number(std::sqrt(axis[0] * axis[0] + axis[1] * axis[1] + axis[2] * axis[2])));
    gltf::json node = {{"name", name},
                       {"extras", {{"outside_object", {{"type", name}, {"scale", sizes}}}, {"layer", layer}}}};
    const gltf::node_placement where = gltf::placement_of(object.where);
    gltf::place(node, where);
    if (where.is_sheared)
        node["children"] = {to.add(gltf::list::nodes, {{"rotation", gltf::rotation_json(where.inner_rotation)}})};
    return to.add(gltf::list::nodes, node);
}

} // namespace

bool placed_things::take(std::string_view tag, std::string_view payload) {
    if (tag.starts_with("PL"))
        return take_plant(tag, payload);
    if (tag.starts_with("RP"))
        return take_object(tag, payload);
    return tag.starts_with("CLP") && take_plane(tag, payload);
}

bool placed_things::take_plant(std::string_view tag, std::string_view payload) {
    if (tag == "PLLB") {
        plant = {};
        plant.library = payload;
    } else if (tag == "PLNM")
        plant.name = payload;
    else if (tag == "PLLC")
        take_point(payload, plant.foot_metres, metres_in_an_inch);
    else if (tag == "PLDM")
        take_real(payload, plant.diameter_metres, metres_in_an_inch);
    else if (tag == "PLSN")
        plant.season = read_integer(payload).value_or(plant.season);
    else if (tag == "PLRT")
        take_real(payload, plant.turn_degrees);
    else if (tag == "PLSC")
        take_real(payload, plant.scale);
    else if (tag == "PLNT") {
        if (room.keep(plant.library.size() + plant.name.size()))
            plants.push_back(plant);
    } else
        return false;
    return true;
}

bool placed_things::take_object(std::string_view tag, std::string_view payload) {
    constexpr std::array<std::string_view, 3> axes = {"RPCX", "RPCY", "RPCZ"};
    constexpr std::array<std::string_view, 3> lengths = {"RPSX", "RPSY", "RPSZ"};
    for (std::size_t i = 0; i < 3; ++i) {
        if (tag == axes[i]) {
            take_point(payload, object.where.axes[i]);
            return true;
        }
        if (tag == lengths[i]) {
            double size = 1;
            take_real(payload, size);
            for (double& part : object.where.axes[i])
                part *= size;
            return true;
        }
    }
    if (tag == "RPCP") {
        object = {};
        take_point(payload, object.where.origin, metres_in_an_inch);
    } else if (tag == "RPCL")
        object.layer = payload;
    else if (tag == "RPCN") {
        object.type = payload;
        if (room.keep(object.type.size() + object.layer.size()))
            objects.push_back(object);
    } else
        return false;
    return true;
}

bool placed_things::take_plane(std::string_view tag, std::string_view payload) {
    if (tag == "CLPN") {
        has_plane = room.keep(0);
        if (has_plane)
            take_point(payload, planes.emplace_back().normal);
        return true;
    }
    if (tag != "CLPP")
        return false;
    if (has_plane)
        take_point(payload, planes.back().point_metres);
    return true;
}

std::vector<std::size_t> add_placed_things(gltf::glb_writer& to, const placed_things& things) {
    std::vector<std::size_t> nodes;
    for (const placed_plant& plant : things.plants)
        nodes.push_back(add_plant(to, plant));
    for (const outside_object& object : things.objects)
        nodes.push_back(add_object(to, object));
    for (std::size_t i = 0; i < things.planes.size(); ++i) {
        gltf::node_placement where;
        for (std::size_t k = 0; k < 3; ++k)
            where.translation[k] = gltf::short_number(things.planes[i].point_metres[k]);
        gltf::json node = {{"name", plane_name(i)}, {"extras", {{"section_plane", true}, {"name", plane_name(i)}}}};
        gltf::place(node, where);
        nodes.push_back(to.add(gltf::list::nodes, node));
    }
    return nodes;
}

gltf::json section_planes_json(const std::vector<cutting_plane>& planes) {
    gltf::json list = gltf::json::array();
    for (std::size_t i = 0; i < planes.size(); ++i) {
        const auto& [normal, point] = planes[i];
        const double d = -(normal[0] * point[0] + normal[1] * point[1] + normal[2] * point[2]);
        gltf::json plane = point_json(normal);
        plane.push_back(gltf::short_number(d));
        list.push_back({{"name", plane_name(i)}, {"plane", plane}});
    }
    return list;
}
