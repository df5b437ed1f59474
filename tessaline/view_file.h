#pragma once

// The camera that the parent has put in the batch folder. The model's own camera is not asked: the parent knows what is
// on the screen.

#include "qlw/qlw_math.h"

#include <string>
#include <string_view>

// All zero without a view file. Lengths are in the parent's unit and reach the edge lines as they are.
struct camera_view {
    fpt eye;
    fpt target;
    bool target_seen = false; // the x of a target was given
    std::string camera_type;  // as written, blanks included; "ortho" for a parallel view
    int pixel_width = 0;
    int pixel_height = 0;
    double field_of_view = 0; // degrees
    double margin_d = 0;
    double margin_l = 0;
    double margin_r = 0;
    double margin_b = 0;
    double margin_t = 0;
    double ortho_height = 0;
};

// Takes one line "key;value" into the view; the case of the key does not matter. A line without a key, with an unknown
// one, or whose key begins with "#" changes nothing; a value that is no number counts as 0.
// Gives false if the line ends the current view: what follows it belongs to other pages.
bool read_view_line(std::string_view line, camera_view& view);

// The current view of "zyn_view.txt" in the batch folder, or, if that is missing, of "zyn_pages.txt". All zero if there
// is neither, or if it cannot be opened; nobody is told.
camera_view read_view_file(const std::string& batch_folder);
