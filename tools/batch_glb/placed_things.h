#pragma once

// What a stream places by single records: plants, outside objects, section planes.

#include "tools/batch_reading/kept_records.h"
#include "tools/gltf/node_placement.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct placed_plant {
    std::string library;
    std::string name;
    gltf::double3 foot_metres{};
    double diameter_metres = 0; // 0 if the stream gives none
    int season = 0;
    double turn_degrees = 0;
    double scale = 1; // in the diameter already
};

struct outside_object {
    std::string type;
    std::string layer;
    gltf::frame where; // metres; the axes as long as they were
};

struct cutting_plane {
    gltf::double3 normal{};
    gltf::double3 point_metres{};
};

class placed_things {
public:
    // kept: counts what is placed; it outlives this. Where there is no room for more, things are left out.
    explicit placed_things(kept_records& kept) : room(kept) {}

    // False for a record of another kind. A number that does not parse leaves what was there.
    bool take(std::string_view tag, std::string_view payload);

    std::vector<placed_plant> plants;
    std::vector<outside_object> objects;
    std::vector<cutting_plane> planes;

private:
    bool take_plant(std::string_view tag, std::string_view payload);
    bool take_object(std::string_view tag, std::string_view payload);
    bool take_plane(std::string_view tag, std::string_view payload);

    kept_records& room;
    placed_plant plant;
    outside_object object;
    bool has_plane = false; // the last one that came was kept
};

// Nodes for all of them, with their sizes.
std::vector<std::size_t> add_placed_things(gltf::glb_writer& to, const placed_things& things);

// The planes as the document tells them: "name" and "plane", whose a x + b y + c z + d is 0 in metres, z up.
gltf::json section_planes_json(const std::vector<cutting_plane>& planes);
