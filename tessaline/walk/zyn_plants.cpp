// How a component that stands for a plant becomes a record: its size, turn and scale, of which chance may decide a
// part. Takes from the random numbers of the run.

#include "qlw/qlw_globals.h"
#include "tessaline/model/drawing_elements.h"
#include "tessaline/model/model_text.h"
#include "tessaline/parameters/layer_inheritance.h"
#include "tessaline/plants/plant_file.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double degrees_per_radian = 57.29577951308232;

// What "ivl_plant_random_height" may say. Any other number means that all plants keep their height.
enum height_spread { ten_percent = 1, twenty_percent = 2 };

struct plant_size {
    double width = 0;
    double height = 0;
};

bool is_shown(SUDrawingElementRef element, bool layer0_hidden) {
    return !is_hidden(element) && (theApp.is_doing_animation || is_visible(layer_of(element, layer0_hidden).layer));
}

// Of the instance's box in the list that holds it; what lies outside that list does not scale it.
plant_size size_of(SUDrawingElementRef element) {
    SUBoundingBox3D box{};
    SUDrawingElementGetBoundingBox(element, &box);
    const double height = box.max_point.z - box.min_point.z;
    return {std::max(box.max_point.x - box.min_point.x, box.max_point.y - box.min_point.y),
            std::sqrt(height * height)}; // an empty box runs from high to low
}

// 1 for a plant without a library: its file knows its size. A ratio of 0 gives what the division gives.
double diameter_of(const plant_description& plant, const plant_size& size) {
    if (plant.library.empty())
        return 1;
    const double by_height = size.height / plant.height_to_diameter;
    const double by_width = size.width / plant.width_to_diameter;
    return by_width > by_height ? by_height : by_width;
}

int season_of(const plant_description& plant) {
    const int season = get_global_int("ivl_plant_season");
    return plant.season_override && plant.season != 0 ? plant.season : season;
}

double heading_degrees(fpt first_axis) {
    first_axis.make_unit(1);
    return std::atan2(first_axis.y, first_axis.x) * degrees_per_radian + 90;
}

// chance: 0 to 0.99
double rotation_degrees(double chance, const fpt& first_axis) {
    return get_global_bool("bvl_plant_random_rotation") ? chance * 360 : heading_degrees(first_axis);
}

double height_factor(double chance) {
    switch (get_global_int("ivl_plant_random_height")) {
    case ten_percent:
        return chance * 0.2 + 0.9;
    case twenty_percent:
        return chance * 0.4 + 0.8;
    default:
        return 1;
    }
}

// The second axis plays no part: a plant is turned about the third and is as wide as the first.
double scale_of(double chance, const std::array<fpt, 3>& axes) {
    const double first = magnitude(axes[0]);
    const double third = magnitude(axes[2]);
    const double factor = height_factor(chance);
    return first > 0 && third > 0 ? factor * std::min(first, third) : factor;
}

std::string definition_name(SUComponentInstanceRef instance) {
    SUComponentDefinitionRef definition = SU_INVALID;
    SUComponentInstanceGetDefinition(instance, &definition);
    return name_by(SUComponentDefinitionGetName, definition);
}

} // namespace

void SketchUpReader::Write_Zyn_plant(SUComponentInstanceRef instance, const plant_description& plant,
                                     const transform16& transform, std::string_view, std::string_view) {
    plant_size size;
    if (SUIsValid(instance)) {
        const SUDrawingElementRef element = SUComponentInstanceToDrawingElement(instance);
        if (!is_shown(element, layer0_hidden))
            return;
        size = size_of(element);
    }
    const std::array<fpt, 3> axes = axis_images(transform);
    const double chance = plant_chance.next() % 100 / 100.0;
    plant_record record;
    record.base = origin_image(transform);
    record.season = season_of(plant);
    record.rotation_degrees = rotation_degrees(chance, axes[0]);
    record.scale = scale_of(chance, axes);
    record.diameter = diameter_of(plant, size) * record.scale;
    record.library = plant.library;
    record.name = plant.name;
    std::string file;
    if (!plant.plant_file_name.empty()) {
        // The instance's file goes by the name of what is placed, which a user may have changed.
        file = placed_plant_file(SUIsValid(instance) ? definition_name(instance) : plant.plant_file_name, plant,
                                 theApp.batch_folder);
        record.has_own_data = true;
        record.name = file;
    }
    stream.write_plant(record);
}
