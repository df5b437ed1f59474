// In which order a model is read and its stream written. The order is fixed: settings must be in place before the walk,
// folders empty of old results, and the count known before the first face. Works on the tables of the run.

#include "platform/platform.h"
#include "qlw/option_globals_file.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_format.h"
#include "qlw/trace_state.h"
#include "tessaline/files/paths.h"
#include "tessaline/materials/texture_preload.h"
#include "tessaline/model/handle_lists.h"
#include "tessaline/parameters/layer_inheritance.h"
#include "tessaline/plants/skatter_file.h"
#include "tessaline/reading/batch_folders.h"
#include "tessaline/reading/model_settings.h"
#include "tessaline/reading/sun.h"
#include "tessaline/reading/view_file.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/counting.h"
#include "tessaline/walk/SketchUpReader.h"

#include <string>

namespace {

std::int64_t now() {
    return static_cast<std::int64_t>(platform::seconds_since_epoch());
}

// A parent that prepares a 3D document passes the model in a folder of this name; there is no other sign of it.
bool is_for_3d_document(const std::string& input_path) {
    return input_path.find(joined("3dpdf_batch", "geometry.qlm")) != std::string::npos;
}

bool open_the_model(const std::string& input_path) {
    SUSetInvalid(open_model);
    const SUResult result = SUModelCreateFromFile(&open_model, platform::utf8_from_own(input_path).c_str());
    if (result == SU_ERROR_NONE)
        return true;
    // Nobody is told: a parent sees that there is no stream.
    cl_trace::here("SketchUpReader::ReadSkpFile", trace_level::plain)
        .report("Cannot open model %s: result %d", input_path, static_cast<int>(result));
    return false;
}

void make_texture_writer() {
    SUSetInvalid(texture_writer);
    if (SUTextureWriterCreate(&texture_writer) == SU_ERROR_NONE)
        preload_textures(open_model, texture_writer);
}

void close_the_model() {
    if (SUIsValid(texture_writer))
        SUTextureWriterRelease(&texture_writer);
    SUModelRelease(&open_model);
    SUSetInvalid(texture_writer);
    SUSetInvalid(open_model);
}

// What a step ahead of the walk has left in the material tables must not reach it.
void forget_materials() {
    material_records.clear();
    material_id_map.clear();
    material_name_map.clear();
}

std::string date_text() {
    const std::string text = platform::run_date_text("%m/%d/%Y  %H:%M:%S %Z");
    return text.empty() ? "Invalid DateTime" : text;
}

SUEntitiesRef top_entities() {
    SUEntitiesRef entities = SU_INVALID;
    SUModelGetEntities(open_model, &entities);
    return entities;
}

constexpr std::uint64_t largest_kept_options = 1 << 24; // bytes; a file with every setting has 10,000

// If the disk is full, the parent's own file comes back; emptying it has freed the room for that.
void rewrite_option_globals(const std::string& path) {
    const auto before = platform::read_file(path, largest_kept_options);
    cl_output_file file;
    file.open(path, output_file_mode::quiet);
    write_option_globals_to_open_file(file);
    if (!file.is_open() || file.close() || !before)
        return;
    cl_trace::here("rewrite_option_globals", trace_level::report).report("Options not rewritten: %s", path);
    cl_output_file again;
    if (again.open_binary(path, open_failure::quiet))
        again.write_data(before->data(), before->size());
}

} // namespace

int SketchUpReader::ReadSkpFile(const std::string& input_path, const std::string& output_path) {
    theApp.xml_options.reading_started = now();
    begin_reading();
    materials.forget();
    SUInitialize();
    if (is_for_3d_document(input_path))
        theApp.extract_mode = document_extract_mode;
    if (!open_the_model(input_path))
        return -1;
    SUModelGetVersion(open_model, &version_major, &version_minor, &version_build);
    trace_state().notes.sketchup_version =
        format_text("%d.%d.%d", version_major, version_minor, version_build).value_or(std::string());
    make_texture_writer();

    const std::string options = joined(folder_of(input_path), "option_globals.txt");
    const bool had_options = platform::exists(options);
    read_option_globals(options);
    read_sun(); // over what the file says
    open_stream(output_path);
    if (!input_path.empty())
        theApp.batch_folder = folder_of(input_path);
    view = read_view_file(theApp.batch_folder);
    prepare_batch_folders();
    apply_model_dictionaries();
    read_color_by_layer();
    forget_materials();

    write_stream_head();
    count_items();
    walk_model();
    close_the_model();
    write_edge_lines();
    stream.write_end();
    if (!output_path.empty() && !stream.is_standard_output())
        stream.close();

    if (had_options)
        rewrite_option_globals(options);
    SUTerminate();
    theApp.xml_options.reading_ended = now();
    return 1;
}

void SketchUpReader::abandon_reading() {
    stream.close();
    if (SUIsValid(open_model))
        close_the_model();
    SUTerminate();
    theApp.xml_options.reading_ended = now();
}

void SketchUpReader::open_stream(const std::string& output_path) {
    if (output_path.empty())
        return;
    if (stream.is_open()) {
        platform::write_standard_output("Warning! opening already open file\n");
        return;
    }
    stream.open(output_path.c_str(), theApp.extract_mode);
}

void SketchUpReader::write_stream_head() {
    stream.write_header(date_text());
    number_layers();
    stream.write_pass();
}

// The stream names the layers only in an animation, where the renderer switches them.
void SketchUpReader::number_layers() {
    for (const SULayerRef layer : all_handles(SUModelGetNumLayers, SUModelGetLayers, open_model)) {
        const int index = layers.size();
        layers.add(layer);
        if (layers.name_at(index) == default_layer_name && !is_visible(layer))
            layer0_hidden = true;
        if (theApp.is_doing_animation)
            stream.write_layer(index, layers.name_at(index));
    }
}

void SketchUpReader::count_items() {
    items_done = 0;
    CountEntities(top_entities());
    const std::string skatter_file = skatter_file_path(theApp.batch_folder);
    std::size_t definitions = 0;
    SUModelGetNumComponentDefinitions(open_model, &definitions);
    if (definitions != 0 && platform::exists(skatter_file))
        add_items(items_done, skatter_line_count(skatter_file));
    total_items = items_done;
    items_done = 0;
    last_percent = 0;
}

void SketchUpReader::walk_model() {
    std::string path;
    ProcessEntities(top_entities(), identity16, path, 0);
}
