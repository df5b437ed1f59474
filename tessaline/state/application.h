#pragma once

// The application: the paths and flags of the run, which are read everywhere, and the start-up that settles them, which
// is written in start/.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

struct CXMLOptions {
    std::array<bool, 7> switches{true, true, true, true, false, true, true}; // kept for the record; nothing reads them
    std::int64_t reading_started = 0;                                        // seconds since the epoch
    std::int64_t reading_ended = 0;
};

// The two values of extract_mode that a run can have.
inline constexpr std::string_view usual_extract_mode = "Tessaline";
inline constexpr std::string_view document_extract_mode = "QLW 3D PDF"; // the parent prepares a 3D document

class CTessalineApp {
public:
    // The whole run: settles the two paths from the command line, or asks for them, and converts under the progress
    // dialog. command_line: the text as typed, the program's own path first.
    // Always gives false: there is no message loop to enter, and success and failure leave by the same way.
    bool InitInstance(const std::string& command_line);

    // Converts the model at input_path into the stream at output_path. The other two have no effect. Always true: a
    // fatal report ends the work here, and what the stream holds by then stays.
    bool run_conversion(std::string input_path, std::string program_folder, std::string output_path,
                        std::string progress_argument);

    // The steps of InitInstance, each one decision; see there for their order.
    void find_program_folder();
    // Fills the paths and switches. An old stream at a path that was derived from the input is deleted.
    void settle_paths_from(const std::string& command_line);
    // Asks for what is still missing; a stream only where somebody can be asked. False if the user gave none.
    bool ask_for_missing_paths();
    // False, with a report, if the input does not exist or the output is not known.
    bool paths_are_usable() const;
    void run_dialog();

    CXMLOptions xml_options;
    std::string model_path;                        // the input path of the conversion that runs
    std::string model_file_name;                   // the same without folders
    std::string batch_folder;                      // folder of the input file; every result lands there
    bool color_by_layer = false;                   // the model shows its faces in the colours of their layers
    std::string extract_mode = "Tessaline";        // "QLW 3D PDF" when the parent prepares a 3D document
    std::string output_folder;                     // folder of the output path
    std::string input_path;                        // the model
    std::string output_path;                       // the stream
    std::string program_folder;                    // of the running program, with a separator at the end
    bool is_interactive = false;                   // a file dialog was used
    bool is_doing_animation = false;               // layers are switched when rendering, so none is left out
    std::string lights_folder = "ZynBatch_Lights"; // the four names are sub-folders of the batch folder
    std::string materials_folder = "ZynBatch_Materials";
    std::string textures_folder = "Batch_SketchUp_Textures";
    std::string images_folder;
    // Parents pass these three switches; the settings decide in their place, so nothing may read them.
    bool load_all_layers = false;
    bool incl_edge_lines = false;
    bool incl_views = false;
    std::string progress_argument; // text behind "-progress "; without effect
};
