#pragma once

// The programs that answer "--help", "--version" and what they do not know alike.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

// For INSTANTIATE_TEST_SUITE_P: all their names.
inline auto programs_beside() {
    return testing::Values("skp-dump", "batch-check", "tessaline-run", "example_garden", "example_room",
                           "example_stages", "draw_model", "draw_stream", "damage_samples", "make_seeds", "batch-view",
                           "skp-view", "batch-to-glb", "skp-to-glb");
}

// The name of a program as it may stand in the name of a test.
inline std::string name_in_test(const testing::TestParamInfo<std::string>& program) {
    std::string name = program.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}
