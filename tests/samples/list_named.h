#pragma once

// The lists of entities that the figures of openings name.

#include "sketchup/model/model.h"

#include <string>

// The list of entities of the first definition of that name; the model's own if none has it.
inline const sketchup::entity_list& list_named(const sketchup::model& m, const std::string& name) {
    for (const sketchup::component_definition& d : m.definitions)
        if (d.name == name)
            return d.entities;
    return m.root;
}
