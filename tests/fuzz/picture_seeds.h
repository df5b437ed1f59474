#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Small picture files of every kind that can be read, by name.
std::vector<std::pair<std::string, std::vector<std::uint8_t>>> picture_seeds();
