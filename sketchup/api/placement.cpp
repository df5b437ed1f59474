// The calls on groups and component instances. Either is a placement of a definition.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"

using namespace sketchup::api;
using sketchup::placement;

namespace {

sketchup::component_definition* definition_of(const placement& p) {
    return element_at(p.owner->definitions, p.definition);
}

} // namespace

SUResult SUGroupGetName(SUGroupRef group, SUStringRef* name) {
    return give_text(group, name, [](const placement& p) { return p.name; });
}

SUResult SUGroupGetTransform(SUGroupRef group, SUTransformation* transform) {
    return give(group, transform, [](const placement& p) { return to_transformation(p.transform); });
}

SUResult SUGroupGetEntities(SUGroupRef group, SUEntitiesRef* entities) {
    return give_handle(group, entities, [](const placement& p) {
        sketchup::component_definition* definition = definition_of(p);
        return definition ? &definition->entities : nullptr;
    });
}

SUResult SUGroupGetDefinition(SUGroupRef group, SUComponentDefinitionRef* definition) {
    return give_handle(group, definition, definition_of);
}

SUResult SUComponentInstanceGetName(SUComponentInstanceRef instance, SUStringRef* name) {
    return give_text(instance, name, [](const placement& p) { return p.name; });
}

SUResult SUComponentInstanceGetTransform(SUComponentInstanceRef instance, SUTransformation* transform) {
    return give(instance, transform, [](const placement& p) { return to_transformation(p.transform); });
}

SUResult SUComponentInstanceGetDefinition(SUComponentInstanceRef instance, SUComponentDefinitionRef* definition) {
    return give_handle(instance, definition, definition_of);
}
