#pragma once

// Models in which everything that a model can hold occurs at random.

#include "sketchup/model/model.h"

#include <cstdint>
#include <memory>

// The same model for the same seed. Not linked. Every element has a persistent id of its own, every name of a material
// or layer occurs once, and all lists, nestings and values are small.
std::unique_ptr<sketchup::model> random_model(std::uint64_t seed);
