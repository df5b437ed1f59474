#pragma once

// The last step of reading a model: what follows from the structure is filled in and what the walk relies on is
// checked.

namespace sketchup {
struct model;
}

namespace skp {

// The deepest chain of placements that a model may hold, and the largest number of entities once all placements are
// flattened: the walk recurses along the chain and a run counts entities in 32 bits.
inline constexpr int deepest_nesting = 4096;
inline constexpr long long most_flattened_entities = 2147483647;

// Sets the owner of every entity, the faces of every edge, what cuts openings into every face and the material of every
// texture. No array of the model may
// grow afterwards. Every index must be in range or no_index, which the readers see to.
// Throws format_error if definitions contain themselves, or a limit above is exceeded.
void link(sketchup::model& m);

} // namespace skp
