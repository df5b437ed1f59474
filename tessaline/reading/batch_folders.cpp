// Which folders a run starts with, and what is left in them. Reads and completes the folder names of theApp.

#include "tessaline/reading/batch_folders.h"

#include "platform/platform.h"
#include "qlw/qlw_std.h"
#include "tessaline/files/paths.h"
#include "tessaline/state/run_state.h"

#include <string>
#include <vector>

namespace {

void default_to(std::string& name, const char* fallback) {
    if (name.empty())
        name = fallback;
}

std::string make_folder(const std::string& name) {
    const std::string folder = joined(theApp.batch_folder, name);
    platform::make_folder(folder);
    return folder;
}

void make_empty_folder(const std::string& name) {
    clear_folder(make_folder(name), false, {});
}

// The ground plane and the default colour are edited by hand between runs.
void make_material_folder() {
    const std::vector<std::string> keep{"Zyn_Ground_Plane", "Zyn%20Default%20Color"};
    const std::string folder = make_folder(theApp.materials_folder);
    clear_folder_except(folder, "qlobj", keep);
    clear_folder_except(folder, "OrnMaterial", keep);
}

} // namespace

void prepare_batch_folders() {
    default_to(theApp.lights_folder, "ZynBatch_Lights");
    default_to(theApp.materials_folder, "ZynBatch_Materials");
    default_to(theApp.textures_folder, "Batch_SketchUp_Textures");
    make_empty_folder(theApp.lights_folder);
    make_folder(std::string(plant_folder_name));
    make_material_folder();
    make_empty_folder(theApp.textures_folder);
    make_empty_folder("Batch_OrnTexture_Files");
    theApp.images_folder = "ZynBatch_Images";
    make_folder(theApp.images_folder);
}
