// Which components stand for plants and outside objects, and what they say of them. Reads the attribute list of the
// run.

#include "tessaline/plants/plants.h"

#include "qlw/qlw_globals.h"
#include "qlw/text_numbers.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/state/run_state.h"

namespace {

void take_plant_value(plant_description& plant, const cl_tsl_attribute& row) {
    if (row.key == "ornplant_name")
        plant.plant_file_name = row.value;
    else if (row.key == "ornplant_data64")
        plant.plant_data64 = row.value;
    else if (row.key == "ornplant_data")
        plant.plant_data = row.value;
    else if (row.key == "hgt_to_diam")
        plant.height_to_diameter = double_value(row.value);
    else if (row.key == "library")
        plant.library = row.value;
    else if (row.key == "name")
        plant.name = row.value;
    else if (row.key == "season")
        plant.season = decimal_value(row.value);
    else if (row.key == "season_override")
        plant.season_override = decimal_value(row.value) != 0;
    else if (row.key == "wid_to_diam")
        plant.width_to_diameter = double_value(row.value);
    else if (row.key == "render_plant_as_2d_image")
        plant.render_as_2d_image = text_is_true(row.value);
}

void take_rpc_value(rpc_description& rpc, const cl_tsl_attribute& row) {
    if (row.key == "Name")
        rpc.name = row.value;
    else if (row.key == "PreviewMode")
        rpc.preview_mode = row.value;
    else if (row.key == "RPCTypeId")
        rpc.type_id = row.value;
    else if (row.key == "Type")
        rpc.type = row.value;
}

} // namespace

bool read_plant_description(plant_description& plant) {
    for (const cl_tsl_attribute& row : attribute_list)
        if (row.dictionary == "qlw_plant")
            take_plant_value(plant, row);
    return !plant.plant_file_name.empty() || !plant.library.empty();
}

bool read_rpc_description(rpc_description& rpc) {
    for (const cl_tsl_attribute& row : attribute_list)
        if (row.dictionary == "ArchVision RPC")
            take_rpc_value(rpc, row);
    return !rpc.name.empty();
}

bool shows_plants_as_images() {
    return get_global_bool("bvl_display_all_plants_as_2d_images") || theApp.extract_mode == document_extract_mode;
}
