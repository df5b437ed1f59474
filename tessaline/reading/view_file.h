#pragma once

// The camera that the parent has put in the batch folder. The model's own camera is not asked: the parent knows what is
// on the screen.

#include "tessaline/state/camera_view.h"

#include <string>
#include <string_view>

// Takes one line "key;value" into the view; the case of the key does not matter. A line without a key, with an unknown
// one, or whose key begins with "#" changes nothing; a value that is no number counts as 0.
// Gives false if the line ends the current view: what follows it belongs to other pages.
bool read_view_line(std::string_view line, camera_view& view);

// The current view of "zyn_view.txt" in the batch folder, or, if that is missing, of "zyn_pages.txt". All zero if there
// is neither, or if it cannot be opened; nobody is told.
camera_view read_view_file(const std::string& batch_folder);
