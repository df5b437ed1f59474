// What becomes of components that a scattering tool has placed: they are walked as if they stood at the top of the
// model, or written as plants. Reads and sets the flags for scattered components.

#include "platform/platform.h"
#include "qlw/qlw_trace.h"
#include "tessaline/model/handle_lists.h"
#include "tessaline/model/model_text.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/plants/skatter_file.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/counting.h"
#include "tessaline/walk/SketchUpReader.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

struct named_definition {
    SUComponentDefinitionRef definition;
    std::string name;
};

// The definitions of the open model, to be found by their names: a list may place a hundred thousand of them.
class definitions_of_model {
public:
    definitions_of_model() {
        for (const SUComponentDefinitionRef definition :
             all_handles(SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions, open_model)) {
            in_order.push_back({definition, name_by(SUComponentDefinitionGetName, definition)});
            first_of_name.try_emplace(in_order.back().name, in_order.size() - 1);
        }
    }

    bool empty() const { return in_order.empty(); }

    // The first definition of that name; an invalid handle if there is none. Each name up to the right one is traced.
    SUComponentDefinitionRef find(const std::string& name) const {
        const auto found = first_of_name.find(name);
        if (traces_are_heard())
            trace_names_up_to(name);
        if (found == first_of_name.end())
            return SU_INVALID;
        return in_order[found->second].definition;
    }

private:
    void trace_names_up_to(const std::string& name) const {
        for (const named_definition& candidate : in_order) {
            cl_trace::here("find_definition", trace_level::plain).report("%s <> %s", name, candidate.name);
            if (candidate.name == name)
                return;
        }
    }

    std::vector<named_definition> in_order;
    std::unordered_map<std::string, std::size_t> first_of_name; // index in in_order
};

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
    cl_trace::here("SketchUpReader::CountEntities", trace_level::plain).report("Skatter_insts.txt file was found");
    const definitions_of_model definitions;
    if (definitions.empty())
        return;
    for_each_skatter_placement(path, [&](const skatter_placement& placement) {
        const SUComponentDefinitionRef definition = definitions.find(placement.definition_name);
        if (SUIsInvalid(definition))
            return;
        plant_description plant;
        if (is_written_as_plant(definition, plant)) {
            add_items(items_done, 1);
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
    const definitions_of_model definitions;
    if (definitions.empty())
        return; // the file is not read, and the flag stays: materials go by their other names
    for_each_skatter_placement(file, [&](const skatter_placement& placement) {
        const SUComponentDefinitionRef definition = definitions.find(placement.definition_name);
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
