#pragma once

// The real models of the object-graph container, by version.

#include <cstdint>
#include <string>
#include <vector>

struct classic_sample {
    std::string name;
    std::vector<std::uint8_t> bytes;
};

// Those of a major version, in the order of their names; none where there is no folder of samples.
std::vector<classic_sample> classic_samples(int major);
