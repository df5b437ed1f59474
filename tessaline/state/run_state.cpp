// Which values live for the whole process, and what a reading starts without.

#include "tessaline/state/run_state.h"

CTessalineApp theApp;
cl_skp_progress_dlg* progress_dialog = nullptr;

SUModelRef open_model = SU_INVALID;
SUTextureWriterRef texture_writer = SU_INVALID;

layer_table layers;
std::vector<cl_tsl_attribute> attribute_list;
std::vector<cl_tsl_edge> edge_records;
std::vector<cl_tsl_material> material_records;
std::unordered_map<std::int32_t, int> material_id_map;
std::unordered_map<std::string, int> material_name_map;

cl_oparms_array oparms_array;
cl_slp_oparms* current_oparms = nullptr;

bool material_folders_ready = false;
std::string material_folder_path;
std::string texture_folder_path;
bool in_skatter_instances = false;
bool skatter_counted = false;
random_sequence plant_chance;
bool block_seen = false;

void begin_reading() {
    layers.clear();
    attribute_list.clear();
    material_records.clear();
    material_id_map.clear();
    material_name_map.clear();
    edge_records.clear();
}

void reset_process() {
    begin_reading();
    theApp = CTessalineApp();
    progress_dialog = nullptr;
    SUSetInvalid(open_model);
    SUSetInvalid(texture_writer);
    oparms_array.clear();
    current_oparms = nullptr;
    material_folders_ready = false;
    material_folder_path.clear();
    texture_folder_path.clear();
    in_skatter_instances = false;
    skatter_counted = false;
    plant_chance = random_sequence();
    block_seen = false;
}
