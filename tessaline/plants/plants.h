#pragma once

// Components that stand for plants and for objects of an outside library, as their attributes describe them.

#include <string>

struct plant_description {
    std::string plant_file_name;
    std::string plant_data64; // the plant file in base64
    std::string plant_data;   // an older form, which nothing decodes any more
    double height_to_diameter = 0;
    std::string library;
    std::string name;
    int season = 1;
    bool season_override = false;
    double width_to_diameter = 0;
    bool render_as_2d_image = false;
};

struct rpc_description {
    std::string name;
    std::string preview_mode;
    std::string type_id;
    std::string type;
};

// Fill a description from the attribute list of the run, the later of two equal keys winning; other keys are ignored.
// Give whether the entity stands for a plant (it names a file or a library) or for such an object (it has a name).
bool read_plant_description(plant_description& plant);
bool read_rpc_description(rpc_description& rpc);

// Whether plants are shown as what their components hold instead of as plants: by a setting, and always for a 3D
// document.
bool shows_plants_as_images();
