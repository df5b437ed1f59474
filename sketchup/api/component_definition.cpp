// The calls on definitions of components, groups and images.

#include "sketchup/api/calls.h"
#include "sketchup/model/model.h"

using namespace sketchup::api;
using sketchup::component_definition;

namespace {

// A file numbers the directions that a component glues to without one for "none"; that is a flag of its own there.
SUComponentBehavior::SUSnapToBehavior snap_of(const sketchup::component_behavior& b) {
    constexpr SUComponentBehavior::SUSnapToBehavior by_number[] = {
        SUComponentBehavior::SUSnapToBehavior_Any,
        SUComponentBehavior::SUSnapToBehavior_Horizontal,
        SUComponentBehavior::SUSnapToBehavior_Vertical,
        SUComponentBehavior::SUSnapToBehavior_Sloped,
    };
    if (!b.glues || b.snap_to >= std::size(by_number))
        return SUComponentBehavior::SUSnapToBehavior_None;
    return by_number[b.snap_to];
}

} // namespace

SUResult SUComponentDefinitionGetName(SUComponentDefinitionRef definition, SUStringRef* name) {
    return give_text(definition, name, [](const component_definition& d) { return d.name; });
}

SUResult SUComponentDefinitionGetEntities(SUComponentDefinitionRef definition, SUEntitiesRef* entities) {
    return give_handle(definition, entities, [](component_definition& d) { return &d.entities; });
}

SUResult SUComponentDefinitionGetBehavior(SUComponentDefinitionRef definition, SUComponentBehavior* behavior) {
    return give(definition, behavior, [](const component_definition& d) {
        return SUComponentBehavior{snap_of(d.behavior), d.behavior.cuts_opening, d.behavior.always_faces_camera,
                                   d.behavior.shadow_faces_sun, d.behavior.no_scale_mask};
    });
}

SUResult SUComponentDefinitionGetType(SUComponentDefinitionRef definition, SUComponentType* type) {
    return give(definition, type, [](const component_definition& d) { return static_cast<SUComponentType>(d.what); });
}
