#pragma once

// The folders of a batch, the files that are known in it, and how both are named.

#include <array>
#include <string>
#include <string_view>

namespace batch_check {

inline constexpr const char* stream_file_name = "batch_file.txt";
inline constexpr std::string_view materials_folder = "ZynBatch_Materials";
inline constexpr std::string_view textures_folder = "Batch_SketchUp_Textures";
inline constexpr std::string_view images_folder = "ZynBatch_Images";
inline constexpr std::string_view lights_folder = "ZynBatch_Lights";
inline constexpr std::string_view plants_folder = "Plants";

// Those that each run empties: what nothing refers to there is no part of the batch. Of materials the files of the
// program's own two kinds are taken away alone, and not those that have one of these texts in their names.
inline constexpr std::array emptied_folders = {materials_folder, textures_folder, lights_folder,
                                               std::string_view("Batch_OrnTexture_Files")};

inline constexpr std::array kept_materials = {std::string_view("Zyn_Ground_Plane"),
                                              std::string_view("Zyn%20Default%20Color")};

inline constexpr std::string_view mark_of_a_running_run = "tessaline-run.json.part";

// What lies in the batch folder itself: the stream, the model and what a parent puts beside it, the report of a run.
inline constexpr std::array known_files = {
    std::string_view("batch_file.txt"),     std::string_view("geometry.qlm"),      mark_of_a_running_run,
    std::string_view("option_globals.txt"), std::string_view("skatter_insts.txt"), std::string_view("zyn_pages.txt"),
    std::string_view("tessaline-run.json"), std::string_view("zyn_view.txt")};

// The name of a file from the batch folder on. folder: empty for the batch folder itself.
inline std::string in_folder(std::string_view folder, std::string_view name) {
    std::string whole(folder);
    if (!whole.empty())
        whole += '/';
    return whole.append(name);
}

} // namespace batch_check
