// Which settings and which material the model's own dictionaries bring. Sets theApp's colour mode and the path of the
// material folder.

#include "tessaline/reading/model_settings.h"

#include "platform/platform.h"
#include "qlw/qlw_trace.h"
#include "skp_ruby/skp_ruby.h"
#include "tessaline/files/decoded_file.h"
#include "tessaline/files/paths.h"
#include "tessaline/model/dictionary_values.h"
#include "tessaline/model/handle_lists.h"
#include "tessaline/model/model_text.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/reading/ground_plane.h"
#include "tessaline/state/run_state.h"

#include <string>

namespace {

void apply_settings(SUAttributeDictionaryRef dictionary) {
    for (const std::string& key : keys_of(dictionary)) {
        typed_value value;
        SUAttributeDictionaryGetValue(dictionary, key.c_str(), value.out());
        set_global_from_value(key, value.get());
    }
}

void write_ground_plane(const std::string& path, const std::string& framed_text) {
    cl_hex_encode decoder;
    decoder.decode_hex_string("hex_data", framed_text);
    if (!write_decoded_file(decoder, path))
        cl_trace::here("SketchUpReader::ReadSkpFile", trace_level::user_error)
            .report("Cannot save Gound Plane Ornmaterial: %s", path);
}

} // namespace

void apply_model_dictionaries() {
    bool ground_plane_saved = false; // the answer of one dictionary stands for those after it
    for (const SUAttributeDictionaryRef dictionary :
         all_handles(SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries, open_model)) {
        const std::string name = name_by(SUAttributeDictionaryGetName, dictionary);
        if (name == "qlw_globals") {
            apply_settings(dictionary);
            continue;
        }
        material_folder_path = joined(theApp.batch_folder, theApp.materials_folder);
        const std::string path = joined(material_folder_path, "Zyn_Ground_Plane.OrnMaterial");
        if (name != "Zyn_Ground_Plane" || platform::exists(path))
            continue; // a file that lies there already has been edited since
        if (const auto text = ground_plane_text(dictionary, ground_plane_saved))
            write_ground_plane(path, *text);
    }
}

void read_color_by_layer() {
    SURenderingOptionsRef options = SU_INVALID;
    SUModelGetRenderingOptions(open_model, &options);
    typed_value value;
    SURenderingOptionsGetValue(options, "DisplayColorByLayer", value.out());
    theApp.color_by_layer = value.boolean().value_or(false);
}
