#pragma once

// What an independent reader found out about the openings of the samples.

#include "sketchup/model/model.h"
#include "tests/samples/expected_figures.h"

// By sample; empty where the folder of samples is missing.
inline nlohmann::json expected_openings() {
    const std::string folder = samples_folder();
    return folder.empty() ? nlohmann::json::object() : nlohmann::json::parse(std::ifstream(folder + "openings.json"));
}

// The list of entities of the first definition of that name; the model's own if none has it.
inline const sketchup::entity_list& list_named(const sketchup::model& m, const std::string& name) {
    for (const sketchup::component_definition& d : m.definitions)
        if (d.name == name)
            return d.entities;
    return m.root;
}

inline std::vector<std::string> names_of_openings() {
    std::vector<std::string> names;
    const nlohmann::json expected = expected_openings(); // items() does not keep it alive
    for (const auto& [name, figures] : expected.items())
        names.push_back(name);
    return names;
}
