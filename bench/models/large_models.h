#pragma once

// Models of any size, each with one thing in plenty, for the measures of time and memory. The same name and size always
// give the same bytes.

#include "sketchup/builder/model_builder.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

struct large_model {
    std::string_view name;
    std::string_view holds;       // what `size` counts
    std::uint32_t size = 0;       // the usual one
    std::uint32_t least_size = 1; // smaller ones are taken for this
    std::unique_ptr<sketchup::model> (*make)(std::uint32_t size);
};

// All of them, in the order in which they are told to the user.
std::span<const large_model> large_models();

// The one of that name, or null.
const large_model* find_large_model(std::string_view name);

// Which container, and the layout that the newest program of the host writes in it.
enum class model_container { classic, archive };

// The bytes of the model in that container.
std::vector<std::uint8_t> large_model_file(const large_model& which, std::uint32_t size, model_container container);
