#pragma once

// The ways in which skp-dump shows a model; each prints to standard output.

#include "sketchup/SketchUpAPI.h"

#include <string>

// Counts, sizes, layers, materials and, by print_parts, what else a model holds, as lines of text.
void print_summary(const std::string& file_name, SUModelRef model);

// The camera, sun, scenes, images, section planes, behaviours of components and rendering options, a line each.
void print_parts(SUModelRef model);
// Place, time and direction to the sun, a line each.
void print_sun(SUModelRef model);

// One JSON object on one line: "opens", "bytes", "container", "version", the counts, "layers", "materials",
// "dictionaries", "scenes", and under "placed" and "written" what the model shows once flattened.
void print_json(const std::string& file_name, SUModelRef model);
// The object for a file that does not open: "opens" false, "why" the reason.
void print_json_failure(const std::string& reason);

// The hierarchy, one line an element, indented by depth, with names, layers, transforms and attributes.
void print_tree(SUModelRef model);
