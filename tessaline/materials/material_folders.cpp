// Where the files of materials and their pictures go. Sets the two paths of the run.

#include "tessaline/materials/material_folders.h"

#include "platform/platform.h"
#include "tessaline/files/paths.h"
#include "tessaline/state/run_state.h"

void ready_material_folders() {
    if (material_folders_ready)
        return;
    texture_folder_path = joined(theApp.batch_folder, theApp.textures_folder);
    material_folder_path = joined(theApp.batch_folder, theApp.materials_folder);
    platform::make_folder(texture_folder_path);
    platform::make_folder(material_folder_path);
    material_folders_ready = true;
}
