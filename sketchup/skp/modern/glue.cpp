// Which element of an entity list is glued to which.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

namespace skp::modern {

using sketchup::entity_list;
using sketchup::glue_end;
using sketchup::index;

namespace {

// The two ids of a relation; 0 for one that it lacks.
struct glued_ids {
    std::uint64_t base = 0;
    std::uint64_t glued = 0;
};

glued_ids ids_of_relation(byte_cursor in) {
    glued_ids ids;
    for (const record& r : records(in)) {
        if (r.tag == tag::glue_base)
            ids.base = id_in(r.payload);
        else if (r.tag == tag::glue_glued)
            ids.glued = id_in(r.payload);
    }
    return ids;
}

std::vector<glued_ids> relations_of(const std::vector<byte_cursor>& managers) {
    std::vector<glued_ids> relations;
    for (const byte_cursor& manager : managers)
        if (const auto list = descend(manager, {tag::glue_manager, tag::glue_list}))
            for (const record& r : records(*list))
                if (r.tag == tag::glue)
                    relations.push_back(ids_of_relation(r.payload));
    return relations;
}

// The elements of a list that a relation may name, by their ids.
class glue_ends {
public:
    glue_ends(const sketchup::model& m, const entity_list& list) : m_(m) {
        faces_.reset(list.faces.size());
        add(m.faces, list.faces, faces_);
        placements_.reset(list.instances.size() + list.groups.size() + list.images.size());
        for (const std::vector<index>* placed : {&list.instances, &list.groups, &list.images})
            add(m.placements, *placed, placements_);
    }

    std::optional<glue_end> face(std::uint64_t id) const {
        const index at = faces_.find(id);
        return at == sketchup::no_index ? std::nullopt : std::optional<glue_end>({sketchup::entity_kind::face, at});
    }
    std::optional<glue_end> placement(std::uint64_t id) const {
        const index at = placements_.find(id);
        return at == sketchup::no_index ? std::nullopt : std::optional<glue_end>({m_.placements[at].kind, at});
    }

private:
    template<class T>
    static void add(const std::vector<T>& elements, const std::vector<index>& listed, id_table& table) {
        for (const index one : listed)
            table.insert(static_cast<std::uint64_t>(elements[one].persistent_id), one);
    }

    const sketchup::model& m_;
    id_table faces_;
    id_table placements_;
};

} // namespace

// 25500. One that names what the list does not hold says nothing.
void model_data_reader::read_glue(const std::vector<byte_cursor>& managers, entity_list& list) {
    const std::vector<glued_ids> relations = relations_of(managers);
    if (relations.empty())
        return;
    const glue_ends ends(m_, list);
    for (const glued_ids& ids : relations) {
        std::optional<glue_end> base = ends.face(ids.base);
        if (!base)
            base = ends.placement(ids.base);
        const std::optional<glue_end> glued = ends.placement(ids.glued);
        if (base && glued)
            list.glue.push_back({*base, *glued});
    }
}

} // namespace skp::modern
