#pragma once

// A sample converted by the built program.

#include "tests/samples_folder.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

// Converts the sample in that folder, which holds at most what the parent leaves. Gives the stream; empty if the model
// does not open.
inline std::string convert(const std::string& sample, const temporary_folder& batch) {
    std::filesystem::copy_file(samples_folder() + sample, batch / "geometry.qlm");
    const temporary_folder home; // the settings of whoever runs the tests are neither read nor written
    const program_result run = run_program({TESSALINE_PROGRAM, {batch / "geometry.qlm"}, {}, settings_in(home.name())});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "");
    return batch.read("batch_file.txt");
}
