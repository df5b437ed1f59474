#include "sketchup/skp/writer/id_book.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace skp {

namespace {

// Calls act(array) for the array of each kind that can be referred to and has persistent ids.
template<class Action>
void for_each_array(const sketchup::model& m, Action act) {
    act(m.layers);
    act(m.materials);
    act(m.definitions);
    act(m.vertices);
    act(m.curves);
    act(m.edges);
    act(m.faces);
    act(m.placements);
    act(m.section_planes);
    act(m.annotations);
    act(m.scenes);
}

} // namespace

id_book::id_book(const sketchup::model& m) {
    std::unordered_set<std::uint64_t> taken{static_cast<std::uint64_t>(m.root.persistent_id)};
    std::vector<const void*> without;
    next_ = static_cast<std::uint64_t>(m.root.persistent_id) + 1;
    for_each_array(m, [&](const auto& array) {
        for (const auto& element : array) {
            const auto id = static_cast<std::uint64_t>(element.persistent_id);
            if (id == 0 || !taken.insert(id).second) {
                without.push_back(&element);
            } else {
                ids_[&element] = id;
                next_ = std::max(next_, id + 1);
            }
        }
    });
    for (const void* element : without)
        ids_[element] = fresh();
    for (const sketchup::layer_folder& folder : m.layer_folders)
        ids_[&folder] = fresh();
}

} // namespace skp
