#pragma once

// The figures by which a model that was read is compared with what is known of its file.

#include "sketchup/model/model.h"

#include <nlohmann/json.hpp>

#include <string>

// Counts of every kind of element, the names and properties of layers, materials and scenes, and the dictionaries by
// owner and name; the keys are those of the samples' expected.json. Nothing that follows from placing the content.
nlohmann::json model_figures(const sketchup::model& m);
