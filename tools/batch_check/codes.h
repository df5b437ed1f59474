#pragma once

// Every kind of thing that the checker can find: one table, from which "--list-codes" and docs/checker.md come.

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace batch_check {

// note: worth a look, and never a reason to call a batch unsound. warning: the batch can be rendered, though not all as
// it was meant. error: the batch is not what a run leaves.
enum class severity { note, warning, error };

enum class code {
    not_a_batch,
    batch_unfinished,
    orphan,
    extra_file,
    other_folder,
    stream_head,
    stream_cut_off,
    stream_after_end,
    stream_line_end,
    stream_given_up,
    stream_unknown,
    stream_order,
    stream_number,
    stream_not_finite,
    stream_direction,
    stream_vertex_number,
    stream_corner,
    stream_empty_mesh,
    stream_stray_close,
    stream_two_sides,
    stream_texture_coordinates,
    stream_material_number,
    stream_declaration,
    stream_lamp_number,
    stream_layer_number,
    stream_edges,
    plant_missing,
    ground_cover_missing,
    ground_cover_elsewhere,
    material_missing,
    material_name,
    material_line_end,
    material_line,
    material_number,
    material_disagrees,
    material_range,
    material_unused,
    material_without_picture,
    material_equal,
    picture_missing,
    picture_damaged,
    picture_format,
    picture_large,
    picture_equal,
    lamp_missing,
    lamp_line_end,
    lamp_line,
    lamp_number,
    lamp_range,
    lamp_place,
    lamp_no_power,
    option_line_end,
    option_line,
    option_value,
    option_order,
};

struct code_entry {
    code what;
    std::string_view name; // as it is printed and as "--ignore" takes it
    severity weight;
    std::string_view meaning; // a sentence without its full stop
};

// In the order of the enumeration.
std::span<const code_entry> all_codes();
const code_entry& entry_of(code what);
std::optional<code> code_named(std::string_view name);
std::string_view name_of(severity weight); // "note", "warning", "error"

// The table as text: a line for each code with its severity and its meaning.
std::string code_list();

} // namespace batch_check
