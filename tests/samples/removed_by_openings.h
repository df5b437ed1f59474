#pragma once

// The figures of the samples' areas take faces as they are stored; this is what openings take off them.

#include "sketchup/model/face_area.h"
#include "sketchup/model/opening_outlines.h"
#include "sketchup/model/vector_math.h"
#include "sketchup/skp/read_model.h"
#include "tests/samples/expected_figures.h"
#include "tests/samples/list_named.h"
#include "tests/samples_folder.h"

// Square inches in the space of the model, once for each placement of a face's list and scaled with it.
struct removed_area {
    double placed = 0; // off everything
    double drawn = 0;  // off what is not hidden
};

inline void add_removed_areas(const sketchup::model& m, const sketchup::entity_list& list, const nlohmann::json& faces,
                              const sketchup::transform& at, bool is_drawn_here, removed_area& sum) {
    for (const nlohmann::json& one : faces) {
        if (&list_named(m, one["list"]) != &list)
            continue;
        const sketchup::face& f = m.faces[list.faces.at(one["face"])];
        const double scale = sketchup::face_area(m, f, at) / sketchup::face_area(m, f);
        sum.placed += scale * one["area_removed"].get<double>();
        sum.drawn += is_drawn_here ? scale * one["area_removed"].get<double>() : 0;
    }
    for (const auto* placements : {&list.groups, &list.instances})
        for (const sketchup::index number : *placements) {
            const sketchup::placement& p = m.placements[number];
            add_removed_areas(m, m.definitions[p.definition].entities, faces, sketchup::compose(at, p.transform),
                              is_drawn_here && sketchup::is_drawn(m, p), sum);
        }
}

inline removed_area removed_by_openings(const std::string& sample) {
    removed_area sum;
    const nlohmann::json& expected = expected_openings();
    if (expected.contains(sample) && !expected[sample]["faces"].empty()) {
        const auto m = skp::read_model(file_bytes(samples_folder() + sample));
        add_removed_areas(*m, m->root, expected[sample]["faces"], sketchup::identity_transform, true, sum);
    }
    return sum;
}
