// What becomes of components that a scattering tool has placed: they are walked as if they stood at the top of the
// model, or written as plants. Reads and sets the flags for scattered components.

#include "platform/platform.h"
#include "qlw/qlw_trace.h"
#include "tessaline/attributes.h"
#include "tessaline/handle_lists.h"
#include "tessaline/model_text.h"
#include "tessaline/run_state.h"
#include "tessaline/skatter_file.h"
#include "tessaline/SketchUpReader.h"

#include <vector>

namespace {

struct named_definition {
    SUComponentDefinitionRef definition;
    std::string name;
};

std::vector<named_definition> definitions_of_model() {
    std::vector<named_definition> named;
    for (const SUComponentDefinitionRef definition :
         all_handles(SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions, open_model))
        named.push_back({definition, name_by(SUComponentDefinitionGetName, definition)});
    return named;
}

// The first definition of that name; an invalid handle if there is none.
SUComponentDefinitionRef find_definition(const std::vector<named_definition>& definitions, const std::string& name) {
    for (const named_definition& candidate : definitions) {
        cl_trace("skatter_instances", __LINE__, "find_definition", 0, 0).report("%s <> %s", name, candidate.name);
        if (candidate.name == name)
            return candidate.definition;
    }
    return SU_INVALID;
}

// Whether a scattered component is written as a plant; fills the description.
bool is_written_as_plant(SUComponentDefinitionRef definition, plant_description& plant) {
    read_attributes(SUComponentDefinitionToEntity(definition));
    return read_plant_description(plant) && !shows_plants_as_images();
}

} // namespace

void SketchUpReader::count_skatter_instances() {
    if (skatter_counted)
        return;
    skatter_counted = true;
    const std::string path = skatter_file_path(theApp.batch_folder);
    if (!platform::exists(path))
        return;
    cl_trace("skatter_instances", __LINE__, "SketchUpReader::CountEntities", 0, 0)
        .report("Skatter_insts.txt file was found");
    const std::vector<named_definition> definitions = definitions_of_model();
    if (definitions.empty())
        return;
    for_each_skatter_placement(path, [&](const skatter_placement& placement) {
        const SUComponentDefinitionRef definition = find_definition(definitions, placement.definition_name);
        if (SUIsInvalid(definition))
            return;
        plant_description plant;
        if (is_written_as_plant(definition, plant)) {
            ++items_done;
            return;
        }
        SUEntitiesRef entities = SU_INVALID;
        SUComponentDefinitionGetEntities(definition, &entities);
        CountEntities(entities);
    });
}

void SketchUpReader::process_skatter_instances() {
    const std::string file = skatter_file_path(theApp.batch_folder);
    if (!platform::exists(file))
        return;
    in_skatter_instances = true;
    const std::vector<named_definition> definitions = definitions_of_model();
    if (definitions.empty())
        return; // the file is not read, and the flag stays: materials go by their other names
    for_each_skatter_placement(file, [&](const skatter_placement& placement) {
        const SUComponentDefinitionRef definition = find_definition(definitions, placement.definition_name);
        if (SUIsInvalid(definition))
            return;
        plant_description plant;
        if (is_written_as_plant(definition, plant)) {
            Write_Zyn_plant(SU_INVALID, plant, placement.transform, "Skatter", "Skatter");
            return;
        }
        SUEntitiesRef entities = SU_INVALID;
        SUComponentDefinitionGetEntities(definition, &entities);
        std::string path = "Skatter";
        ProcessEntities(entities, placement.transform, path, 1);
    });
    in_skatter_instances = false;
}
