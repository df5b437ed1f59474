#pragma once

// What every model that a reader has let through must bear: each reference leads to something.

#include "sketchup/model/model.h"

#include <cstdlib>

inline void touch_model(const sketchup::model& m) {
    const auto expect = [](bool holds) {
        if (!holds)
            std::abort();
    };
    for (const sketchup::edge& e : m.edges)
        expect(m.vertices.at(e.start).owner == &m && m.vertices.at(e.end).owner == &m);
    for (const sketchup::face& f : m.faces)
        expect(f.loops.count > 0 && m.loops.at(f.loops.first + f.loops.count - 1).uses.count > 0);
    for (const sketchup::placement& p : m.placements)
        expect(m.definitions.at(p.definition).id > 0 && m.layers.at(p.layer).id > 0);
    for (const sketchup::material& material : m.materials)
        expect(material.texture == sketchup::no_index || m.textures.at(material.texture).owner == &m);
    for (const sketchup::texture& t : m.textures)
        expect(t.picture == sketchup::no_index || m.pictures.at(t.picture).load != nullptr);
}
