#include "sketchup/skp/writer/definition_order.h"

#include <cstddef>

namespace skp {

using sketchup::index;

namespace {

std::vector<index> definitions_placed_in(const sketchup::model& m, const sketchup::entity_list& list) {
    std::vector<index> placed;
    for (const std::vector<index>* placements : {&list.instances, &list.groups, &list.images})
        for (const index placement : *placements)
            placed.push_back(m.placements[placement].definition);
    return placed;
}

// A definition whose content is being looked through.
struct open_definition {
    index at;
    std::vector<index> placed;
    std::size_t next = 0;
};

} // namespace

// Without recursion: definitions may nest deeper than the stack.
std::vector<index> definitions_children_first(const sketchup::model& m) {
    std::vector<index> order;
    order.reserve(m.definitions.size());
    std::vector<bool> seen(m.definitions.size(), false);
    std::vector<open_definition> open;
    const auto enter = [&](index at) {
        if (at == sketchup::no_index || seen[at])
            return;
        seen[at] = true;
        open.push_back({at, definitions_placed_in(m, m.definitions[at].entities)});
    };
    for (index first = 0; first < m.definitions.size(); ++first) {
        enter(first);
        while (!open.empty()) {
            open_definition& innermost = open.back();
            if (innermost.next < innermost.placed.size()) {
                enter(innermost.placed[innermost.next++]);
            } else {
                order.push_back(innermost.at);
                open.pop_back();
            }
        }
    }
    return order;
}

} // namespace skp
