#pragma once

// One page with a GLB file inside.

#include "tools/raster/view.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <string>

struct page_facts {
    std::string title;         // what the page is called when it is ready; UTF-8
    std::string kind;          // "batch" or "model"
    std::string program;       // what makes the page
    std::optional<view> start; // metres, z up; without it the page shows all from a corner
    nlohmann::json findings;   // a list of objects with code, severity, file, line, text; null if nothing was checked
    std::uint64_t skipped_findings = 0; // how many more there are
};

// Writes the page; an old file is replaced when the new one is whole, and nothing is left if it cannot be. Memory is
// that of a few pieces. Gives why it could not be written, in words; an empty text if it was.
std::string write_page(const page_facts& facts, const std::string& glb_file, const std::string& page_file);
