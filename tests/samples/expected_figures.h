#pragma once

// The figures that a right reader finds in each sample. The files are parsed once in a process: every test of a sample
// is one, and needs the names of all to find its own.

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

// By sample; empty where the folder of samples is missing.
const nlohmann::json& expected_figures();

// What an independent reader found out about the openings of the samples, by sample; empty where the folder is missing.
const nlohmann::json& expected_openings();

// The names of all samples; empty where the folder is missing.
std::vector<std::string> sample_names();

// The names of the samples with openings; empty where the folder is missing.
std::vector<std::string> names_of_openings();

// A name for a test out of a file name.
std::string test_name_of(const std::string& file_name);
