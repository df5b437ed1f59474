#pragma once

// What a group, a component or a face says about its contents, and the stack that hands it down the walk.

#include "qlw/qlw_math.h"
#include "sketchup/SketchUpAPI.h"
#include "tessaline/model/transforms.h"
#include "tessaline/state/shared_text.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class SketchUpReader;

// What an object says about a lamp. -1 (-1.0) means not set where nothing else stands.
struct cl_slp_light {
    shared_text lamp_type;         // "bulb", "bulb_glow", "spot", "spot_glow", "spot_beams", "rect", "rect_glow",
                                   // "linear_glow", "round_glow", or empty
    bool use_object_color = false; // an intensity came from the object's attributes
    bool hide_locked = false;      // `hide` was set by an override and stays
    bool hide = false;             // the lamp's visible shape is hidden
    int color = 0;                 // 0xRRGGBB; 0 means not set
    int channel = -1;
    int light_direction = -1; // 0 to 5
    int light_orientation = -1;
    int light_type = 0; // 0 means not set
    double beam_length = -1.0;
    double beam_angle = -1.0;
    double field_angle = -1.0;
    double intensity = -1.0; // watts
    double intensity_lumens = -1.0;
    double length = -1.0;
    double size = -1.0;
    double width = -1.0;
    fpt direction{0, 0, -1};
    fpt face_edge_vector{0, 1, 0};
    fpt face_x_axis{1, 0, 0};
    shared_text light_category;
    shared_text lamp_unit;
    shared_text spotlight_shape;
    shared_text ies_file_name;
    int ies_pattern = -1;
    bool treat_as_single_light = false;
    bool direct_light = false; // a bulb or a spot: a lamp without geometry

    // Settles what is open and gives the lamp its number: that of its file, and that by which the stream refers to it.
    // transform: the lamp's placement in the world, in inches. Sets direct_light.
    int add_lamp(SketchUpReader& reader, const transform16& transform);
};

// The parameters of one level of the walk. A new level starts as a copy of the one above it.
struct cl_slp_oparms {
    int level = -1;
    shared_text layer_name;      // of the group or instance
    shared_text enclosing_layer; // the nearest name on the levels below this one that is a real layer's
    shared_text layer_chain;     // layer indices from the outermost level down, joined by commas; in an animation alone
    double reflection = 0;
    SUMaterialRef material = SU_INVALID; // of the enclosing group or instance
    cl_slp_light light;
    bool alpha_channel = false;
    bool daylight = false;
    bool monte_carlo = false;
    bool gather = false;
    bool caustics = false;
    bool thick = false;
    bool invisible = false; // hidden from the camera
    shared_text groundcover_file;
    int groundcover_orientation = -1;

    // What an element on "Layer0" inherits: the name of the nearest level, from this one outwards, that is neither
    // empty nor "Layer0"; empty if there is none. Kept on each level, since a model may nest thousands of them around
    // every face. Valid while the level is on the stack and set_layer does not change it.
    const std::string& inherited_layer() const;

    // Fills what is still open from the attribute list of the run; an outer object wins over an inner one.
    // source_label: what the attributes belong to, "Group" for instance; without effect.
    // Gives whether any attribute came from a dictionary that describes lamps.
    bool store_attributes_in_oparms(std::string_view source_label);
};

class cl_oparms_array {
public:
    // Adds a level that is a copy of the top one (fresh if there is none) and gives it. The caller assigns the result
    // to current_oparms. The address stays valid until the level is popped.
    cl_slp_oparms* push();

    // Removes the top level and gives the one below. The bottom level stays: the attempt is traced, and the level that
    // is top is given unchanged. An empty stack throws std::invalid_argument.
    cl_slp_oparms* pop();

    // Forgets the levels that cannot become the top any more; to be called when a level stays although its object is
    // done, since any number of them may. pops_to_come: how many of the levels that are there now are still to be
    // popped, at most; at least 0.
    void forget_all_below(int pops_to_come);

    // The level at that index, 0 being the bottom. index: 0 to size() - 1; anything else, and a level that was
    // forgotten, throws std::invalid_argument.
    cl_slp_oparms* at(int index) const;

    int size() const { return forgotten + static_cast<int>(levels.size()); } // with those that were forgotten
    void clear();

private:
    std::vector<std::unique_ptr<cl_slp_oparms>> levels;
    std::unique_ptr<cl_slp_oparms> spare; // the level popped last, for the next push: one for every face
    int forgotten = 0;
};

// Names the layer of a level that was just pushed, once for each, and, in an animation, appends the layer's index to
// the chain that current_oparms holds. A layer that the model's table lacks leaves the chain as inherited.
void set_layer(cl_slp_oparms& oparms, const std::string& layer_name);
