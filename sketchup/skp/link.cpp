#include "sketchup/skp/link.h"

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace skp {
namespace {

using sketchup::index;
using sketchup::index_range;
using sketchup::no_index;

[[noreturn]] void refuse(const std::string& reason) {
    throw format_error(failure::damaged, 0, "model", reason);
}

void own(sketchup::model& m, sketchup::entity& e) {
    e.owner = &m;
}

template<class T>
void own_all(sketchup::model& m, std::vector<T>& elements) {
    for (T& e : elements)
        own(m, e);
}

void set_owners(sketchup::model& m) {
    own(m, m);
    own(m, m.root);
    own(m, m.camera);
    own(m, m.rendering_options);
    own(m, m.shadow_info);
    own_all(m, m.definitions);
    for (sketchup::component_definition& d : m.definitions)
        own(m, d.entities);
    own_all(m, m.layers);
    own_all(m, m.materials);
    own_all(m, m.textures);
    own_all(m, m.vertices);
    own_all(m, m.curves);
    own_all(m, m.edges);
    own_all(m, m.faces);
    own_all(m, m.placements);
    own_all(m, m.section_planes);
    own_all(m, m.annotations);
    own_all(m, m.cameras);
    own_all(m, m.dictionaries);
    own_all(m, m.scenes);
    for (sketchup::scene& s : m.scenes) {
        if (s.rendering_options)
            own(m, *s.rendering_options);
        if (s.shadow_info)
            own(m, *s.shadow_info);
    }
}

// Calls act(edge, face) once for each edge of each face, even where a face runs along both sides of an edge.
template<class Action>
void for_each_side(const sketchup::model& m, Action act) {
    std::vector<index> last_face(m.edges.size(), no_index);
    for (index f = 0; f < m.faces.size(); ++f) {
        const sketchup::index_range loops = m.faces[f].loops;
        for (index l = loops.first; l < loops.first + loops.count; ++l) {
            const sketchup::index_range uses = m.loops[l].uses;
            for (index u = uses.first; u < uses.first + uses.count; ++u) {
                const index e = m.edge_uses[u].edge;
                if (last_face[e] == f)
                    continue;
                last_face[e] = f;
                act(e, f);
            }
        }
    }
}

void set_faces_of_edges(sketchup::model& m) {
    for_each_side(m, [&m](index e, index) { ++m.edges[e].faces.count; });
    index total = 0;
    for (sketchup::edge& e : m.edges) {
        e.faces.first = total;
        total += e.faces.count;
        e.faces.count = 0;
    }
    m.faces_of_edges.resize(total);
    for_each_side(m, [&m](index e, index f) {
        sketchup::index_range& faces = m.edges[e].faces;
        m.faces_of_edges[faces.first + faces.count++] = f;
    });
}

// What relations of a list say about cutting: only a face and a group or instance that both stand in it count.
class cutting_relations {
public:
    explicit cutting_relations(const sketchup::model& m)
        : m_(m), list_of_face_(m.faces.size(), no_list), list_of_placement_(m.placements.size(), no_list) {}

    void add(const sketchup::entity_list& list) {
        if (list.glue.empty())
            return;
        ++list_;
        for (const index face : list.faces)
            list_of_face_[face] = list_;
        for (const std::vector<index>* placed : {&list.groups, &list.instances})
            for (const index placement : *placed)
                list_of_placement_[placement] = list_;
        for (const sketchup::glue_relation& one : list.glue)
            if (is_of_this_list(one) && cuts(m_.placements[one.glued.at]))
                found_.push_back({one.base.at, one.glued.at});
    }

    void put_into(sketchup::model& m) {
        std::ranges::stable_sort(found_, {}, &cut::face);
        for (const cut& one : found_) {
            index_range& cutters = m.faces[one.face].cutters;
            if (cutters.count++ == 0)
                cutters.first = static_cast<index>(m.cutters.size());
            m.cutters.push_back(one.placement);
        }
    }

private:
    struct cut {
        index face;
        index placement;
    };
    static constexpr index no_list = 0;

    bool is_of_this_list(const sketchup::glue_relation& one) const {
        return one.base.kind == sketchup::entity_kind::face && list_of_face_[one.base.at] == list_ &&
               list_of_placement_[one.glued.at] == list_;
    }
    bool cuts(const sketchup::placement& p) const {
        return p.definition != no_index && m_.definitions[p.definition].behavior.cuts_opening;
    }

    const sketchup::model& m_;
    std::vector<index> list_of_face_; // by a number given to each list with relations, from 1
    std::vector<index> list_of_placement_;
    index list_ = no_list;
    std::vector<cut> found_;
};

void set_cutters(sketchup::model& m) {
    const auto has_glue = [](const sketchup::component_definition& d) { return !d.entities.glue.empty(); };
    if (m.root.glue.empty() && std::ranges::none_of(m.definitions, has_glue))
        return;
    cutting_relations relations(m);
    for (const sketchup::component_definition& d : m.definitions)
        relations.add(d.entities);
    relations.add(m.root);
    relations.put_into(m);
}

void set_materials_of_textures(sketchup::model& m) {
    for (index i = 0; i < m.materials.size(); ++i)
        if (m.materials[i].texture != no_index)
            m.textures[m.materials[i].texture].material = i;
}

// What a list holds when all its placements are resolved.
struct flattened {
    int depth = 0;          // longest chain of placements
    long long entities = 0; // stops growing just above the limit
};

class nesting_check {
public:
    explicit nesting_check(const sketchup::model& m) : m_(m), of_(m.definitions.size()), state_(m.definitions.size()) {}

    void run() {
        for (index d = 0; d < m_.definitions.size(); ++d)
            resolve(d);
        const flattened whole = sum(m_.root);
        if (whole.depth > deepest_nesting)
            refuse("placements nest deeper than " + std::to_string(deepest_nesting));
        if (whole.entities > most_flattened_entities)
            refuse("more than " + std::to_string(most_flattened_entities) + " entities when flattened");
    }

private:
    enum class state : std::uint8_t { unseen, open, done };
    struct step {
        index definition;
        std::size_t next_child = 0;
    };

    static std::size_t child_count(const sketchup::entity_list& list) {
        return list.groups.size() + list.instances.size() + list.images.size();
    }

    // The definition of one placement, the three lists of them taken one after the other; no_index if it has none.
    index child(const sketchup::entity_list& list, std::size_t i) const {
        for (const std::vector<index>* placed : {&list.groups, &list.instances}) {
            if (i < placed->size())
                return m_.placements[(*placed)[i]].definition;
            i -= placed->size();
        }
        return m_.placements[list.images[i]].definition;
    }

    // Post-order with a stack of our own: a file can chain more definitions than the program's stack holds frames.
    void resolve(index first) {
        if (state_[first] == state::done)
            return;
        open(first);
        while (!open_.empty()) {
            step& top = open_.back();
            const sketchup::entity_list& list = m_.definitions[top.definition].entities;
            if (top.next_child == child_count(list)) {
                close(top.definition);
                open_.pop_back();
                continue;
            }
            const index below = child(list, top.next_child++);
            if (below == no_index)
                continue;
            if (state_[below] == state::open)
                refuse("definition \"" + m_.definitions[below].name + "\" contains itself");
            if (state_[below] == state::unseen)
                open(below);
        }
    }

    void open(index definition) {
        state_[definition] = state::open;
        open_.push_back({definition});
    }

    void close(index definition) {
        of_[definition] = sum(m_.definitions[definition].entities);
        if (of_[definition].depth > deepest_nesting)
            refuse("placements nest deeper than " + std::to_string(deepest_nesting));
        state_[definition] = state::done;
    }

    flattened sum(const sketchup::entity_list& list) const {
        flattened result;
        const std::size_t own = list.faces.size() + list.edges.size() + child_count(list) + list.section_planes.size() +
                                list.annotations.size();
        result.entities = static_cast<long long>(own);
        for (std::size_t i = 0; i < child_count(list); ++i) {
            const index below = child(list, i);
            if (below == no_index)
                continue;
            result.depth = std::max(result.depth, of_[below].depth + 1);
            result.entities = std::min(result.entities + of_[below].entities, most_flattened_entities + 1);
        }
        return result;
    }

    const sketchup::model& m_;
    std::vector<flattened> of_; // one for each definition
    std::vector<state> state_;
    std::vector<step> open_;
};

} // namespace

void link(sketchup::model& m) {
    nesting_check(m).run();
    set_owners(m);
    set_faces_of_edges(m);
    set_cutters(m);
    set_materials_of_textures(m);
}

} // namespace skp
