#pragma once

// The table of codes.cpp; a file of its own because it is data.

#include "tools/batch_check/codes.h"

#include <array>
#include <cstddef>

namespace batch_check {

inline constexpr std::array code_table = {
    code_entry{code::not_a_batch, "not-a-batch", severity::error,
               "The folder cannot be read, or holds no stream that can be read"},
    code_entry{code::batch_unfinished, "batch-unfinished", severity::error,
               "The mark of a run that has not come to its end lies in the folder"},
    code_entry{code::orphan, "orphan", severity::warning,
               "A file lies in a folder that each run empties, and nothing refers to it"},
    code_entry{code::extra_file, "extra-file", severity::note,
               "A file that no run and no parent is known to make lies in the folder"},
    code_entry{code::other_folder, "other-folder", severity::warning,
               "A full name leads to another folder than this one: the batch was moved"},
    code_entry{code::stream_head, "stream-head", severity::error,
               "The lines that every stream begins with are not there as they must be"},
    code_entry{code::stream_cut_off, "stream-cut-off", severity::error, "The stream stops before its \"END;\""},
    code_entry{code::stream_after_end, "stream-after-end", severity::error, "Something stands behind \"END;\""},
    code_entry{code::stream_line_end, "stream-line-end", severity::error, "A line does not end in CR LF"},
    code_entry{code::stream_given_up, "stream-given-up", severity::error,
               "There is so much wrong, or names are so many or so long, that the stream was not read whole"},
    code_entry{code::stream_unknown, "stream-unknown", severity::error, "A line is no record and no comment"},
    code_entry{code::stream_order, "stream-order", severity::error, "A line cannot stand where it stands"},
    code_entry{code::stream_number, "stream-number", severity::error,
               "A number is not spelt as the format spells numbers"},
    code_entry{code::stream_not_finite, "stream-not-finite", severity::warning,
               "A coordinate is infinite or no number"},
    code_entry{code::stream_direction, "stream-direction", severity::error,
               "A normal or an axis is neither a unit vector nor zero"},
    code_entry{code::stream_vertex_number, "stream-vertex-number", severity::error,
               "\"ADDV;\" does not count the vertices of its block"},
    code_entry{code::stream_corner, "stream-corner", severity::error,
               "A triangle names a vertex that its mesh does not have, or one twice"},
    code_entry{code::stream_empty_mesh, "stream-empty-mesh", severity::error, "A mesh has no vertices"},
    code_entry{code::stream_stray_close, "stream-stray-close", severity::error,
               "The second closing line ahead of a block is missing, or stands where none belongs"},
    code_entry{code::stream_two_sides, "stream-two-sides", severity::error,
               "The two sides of a face do not stand behind one another with the same vertices"},
    code_entry{code::stream_texture_coordinates, "stream-texture-coordinates", severity::error,
               "Texture coordinates are missing, or stand where none belong, or have a wrong third value"},
    code_entry{code::stream_material_number, "stream-material-number", severity::error,
               "A side has a material number without declaration, or the back another than the front"},
    code_entry{code::stream_declaration, "stream-declaration", severity::error,
               "A declared material does not have the next number, or has the name of another"},
    code_entry{code::stream_lamp_number, "stream-lamp-number", severity::error, "A lamp does not have the next number"},
    code_entry{code::stream_layer_number, "stream-layer-number", severity::error,
               "A layer does not have the next number, or a list names a layer that is not there"},
    code_entry{code::stream_edges, "stream-edges", severity::error,
               "A block of edges is not full, or overfull, or holds what is no beam"},
    code_entry{code::plant_missing, "plant-missing", severity::error,
               "The file of a plant that brings its own is not there"},
    code_entry{code::ground_cover_missing, "ground-cover-missing", severity::warning,
               "The file of a ground cover is not in the folder of plants, where its name leads"},
    code_entry{code::ground_cover_elsewhere, "ground-cover-elsewhere", severity::note,
               "A ground cover is named that is no part of the batch"},
    code_entry{code::material_missing, "material-missing", severity::error,
               "A declared material has no file that can be read"},
    code_entry{code::material_name, "material-name", severity::error,
               "A material file gives itself another name than the stream does"},
    code_entry{code::material_line_end, "material-line-end", severity::error,
               "A line of a material file does not end in CR LF"},
    code_entry{code::material_line, "material-line", severity::error,
               "A line of a material file is missing, is not the one that belongs there, or is one too many"},
    code_entry{code::material_number, "material-number", severity::error,
               "A number of a material file is not spelt as the format spells numbers"},
    code_entry{code::material_disagrees, "material-disagrees", severity::error,
               "Two lines of a material file that say the same thing disagree"},
    code_entry{code::material_range, "material-range", severity::warning,
               "A value of a material file is outside its range"},
    code_entry{code::material_unused, "material-unused", severity::note, "A declared material is on no side"},
    code_entry{code::material_without_picture, "material-without-picture", severity::note,
               "A material with a texture names no picture"},
    code_entry{code::material_equal, "material-equal", severity::note,
               "Two material files say the same but for the name"},
    code_entry{code::picture_missing, "picture-missing", severity::error,
               "A material names a picture that is not there"},
    code_entry{code::picture_damaged, "picture-damaged", severity::error, "A picture cannot be decoded"},
    code_entry{code::picture_format, "picture-format", severity::warning,
               "A picture has another format than its name says"},
    code_entry{code::picture_large, "picture-large", severity::note,
               "A picture is too large to be decoded here: of its pixels nothing is known"},
    code_entry{code::picture_equal, "picture-equal", severity::note, "Two pictures have the same bytes"},
    code_entry{code::lamp_missing, "lamp-missing", severity::error,
               "A lamp of the stream has no file that can be read"},
    code_entry{code::lamp_line_end, "lamp-line-end", severity::error, "A line of a lamp file does not end in CR LF"},
    code_entry{code::lamp_line, "lamp-line", severity::error,
               "A line of a lamp file is missing, is not the one that belongs there, or is one too many"},
    code_entry{code::lamp_number, "lamp-number", severity::error,
               "A number of a lamp file is not spelt as the format spells numbers"},
    code_entry{code::lamp_range, "lamp-range", severity::error, "A value of a lamp file is outside its range"},
    code_entry{code::lamp_place, "lamp-place", severity::error,
               "Place and type of a lamp do not fit how the stream refers to it"},
    code_entry{code::lamp_no_power, "lamp-no-power", severity::note, "A lamp gives no light"},
    code_entry{code::option_line_end, "option-line-end", severity::error,
               "A line of the option file does not end in CR LF"},
    code_entry{code::option_line, "option-line", severity::error, "A line of the option file is no name with a value"},
    code_entry{code::option_value, "option-value", severity::error,
               "A value of the option file is not spelt as its name asks"},
    code_entry{code::option_order, "option-order", severity::error, "The names of the option file do not ascend"},
};

// A row at the place of its number, and none left out.
static_assert([] {
    for (std::size_t i = 0; i < code_table.size(); ++i)
        if (code_table[i].what != static_cast<code>(i))
            return false;
    return code_table.size() == static_cast<std::size_t>(code::option_order) + 1;
}());

} // namespace batch_check
