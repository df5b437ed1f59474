// How a run starts: which two paths it works on, and the dialog under which it takes place.

#include "tessaline/state/application.h"

#include "platform/platform.h"
#include "qlw/qlw_globals.h"
#include "qlw/qlw_std.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_format.h"
#include "qlw/trace_state.h"
#include "qlw/trimmed.h"
#include "tessaline/files/paths.h"
#include "tessaline/start/asked_paths.h"
#include "tessaline/start/command_line.h"
#include "tessaline/start/usage.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/progress_dlg.h"
#include "tessaline/walk/SketchUpReader.h"

#include <stdexcept>

namespace {

constexpr const char* stream_file_name = "batch_file.txt";

// An empty file of this name in the temporary folder makes a run show what its parent passed.
bool shows_command_line() {
    return platform::exists(joined(get_temporary_directory(), "qlw_show_command_line"));
}

void take_switches(CTessalineApp& app, const command_line& line) {
    app.load_all_layers = line.load_all_layers;
    app.incl_edge_lines = line.incl_edge_lines;
    app.incl_views = line.incl_views;
    app.is_doing_animation = line.is_animation;
    app.progress_argument = line.progress_argument;
}

// Whether a run without an input path says how it is started, in place of asking. On a console, arguments that name no
// model are a mistake to be told, and asking needs a terminal.
bool needs_usage(const std::string& command_line_text) {
    return !platform::can_ask_for_file() || (platform::lives_on_the_console && has_arguments(command_line_text));
}

// Why a name that looks right leads nowhere; empty for a name that the system takes.
std::string complaint_about_length(const std::string& name) {
    if (name.size() <= platform::longest_name)
        return {};
    return format_text("Its name has %d characters, more than the %d that the system takes.\n", name.size(),
                       platform::longest_name)
        .value_or(std::string());
}

} // namespace

bool CTessalineApp::InitInstance(const std::string& command_line_text) {
    trace_state().trace_enabled = true;
    register_all_globals();
    find_program_folder();
    settle_paths_from(command_line_text);
    if (input_path.empty() && needs_usage(command_line_text)) {
        platform::write_standard_error(usage_text);
        return false;
    }
    if (!ask_for_missing_paths() || !paths_are_usable())
        return false;
    output_folder = folder_of(output_path);
    platform::delete_file(output_path);
    run_dialog();
    return false;
}

void CTessalineApp::find_program_folder() {
    program_folder = folder_of(platform::program_path());
    if (!program_folder.empty() && !program_folder.ends_with(platform::path_separator))
        program_folder += platform::path_separator;
}

void CTessalineApp::settle_paths_from(const std::string& command_line_text) {
    is_interactive = false;
    const bool shows_steps = shows_command_line();
    if (shows_steps)
        platform::message_box("TEMP/qlw_show_command_line found", trimmed(command_line_text));

    command_line line = parse_command_line(command_line_text);
    take_switches(*this, line);
    input_path = platform::absolute_name(line.input_path);
    output_path = platform::absolute_name(line.output_path);
    if (shows_steps)
        platform::message_box("sin", input_path);
    if (!input_path.empty() && platform::exists(input_path) && output_path.empty()) {
        output_path = joined(folder_of(input_path), stream_file_name);
        platform::delete_file(output_path);
    }
    if (shows_steps)
        platform::message_box("sout", output_path);

    if (take_model_word(line)) {
        input_path = platform::absolute_name(line.input_path);
        output_path = platform::absolute_name(line.output_path);
        platform::delete_file(output_path);
    }
}

bool CTessalineApp::ask_for_missing_paths() {
    if (input_path.empty()) {
        is_interactive = true;
        const auto chosen = ask_for_model();
        if (!chosen)
            return false;
        input_path = platform::absolute_name(*chosen);
    }
    if (output_path.empty() && platform::can_ask_for_file()) { // else the caller says what is wrong
        is_interactive = true;
        const auto chosen = ask_for_stream(input_path);
        if (!chosen)
            return false;
        output_path = platform::absolute_name(*chosen);
    }
    return true;
}

bool CTessalineApp::paths_are_usable() const {
    if (!input_path.empty() && !platform::exists(input_path)) {
        cl_trace::here("CTessalineApp::InitInstance", trace_level::user_error)
            .titled("Tessaline conversion Error")
            .report("Could not find input filename %s.\n%s", input_path, complaint_about_length(input_path));
        return false;
    }
    if (!input_path.empty() && output_path.empty()) {
        cl_trace::here("CTessalineApp::InitInstance", trace_level::user_error)
            .report("Could not parse output filename passed to SKP conversion routine.\n");
        return false;
    }
    return true;
}

void CTessalineApp::run_dialog() {
    cl_skp_progress_dlg dialog([this] { run_conversion(input_path, program_folder, output_path, progress_argument); });
    progress_dialog = &dialog;
    dialog.DoModal();
    progress_dialog = nullptr;
}

bool CTessalineApp::run_conversion(std::string model, std::string /*program_folder*/, std::string stream,
                                   std::string /*progress_argument*/) {
    model_path = model;
    model_file_name = file_name_of(model);
    platform::delete_file(stream);
    SketchUpReader reader;
    try {
        reader.ReadSkpFile(model, stream);
    } catch (const std::string&) { // a fatal report, which the user has seen
        reader.abandon_reading();
    } catch (const std::invalid_argument& failure) { // the model asks for what cannot be; nothing of it is half written
        reader.abandon_reading();
        cl_trace::here("CTessalineApp::run_conversion", trace_level::user_error).report("%s", failure.what());
    }
    return true;
}
