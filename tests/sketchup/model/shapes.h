#pragma once

// Builds models in memory from points, for the tests of the geometry services.

#include "sketchup/model/model.h"

#include <initializer_list>
#include <vector>

namespace sketchup::test {

using points = std::vector<vec3>;

// Vertices at one position and edges between the same two vertices are shared, as in a drawn model.
class shapes {
public:
    sketchup::model model;

    index vertex(const vec3& position);
    index edge(const vec3& from, const vec3& to);

    // A face of the root list; the first loop is the outline. The normal must have length 1.
    sketchup::face& face(const std::vector<points>& loops, const vec3& normal);
    sketchup::face& face(const points& outline, const vec3& normal) {
        return face(std::vector<points>{outline}, normal);
    }

    void smooth(const vec3& from, const vec3& to) { model.edges[edge(from, to)].smooth = true; }

    // An empty definition; the references that it gives end with the next one.
    index definition();
    entity_list& content(index definition) { return model.definitions[definition].entities; }

    // A lone edge in a list.
    void edge_in(entity_list& list, const vec3& from, const vec3& to) { list.edges.push_back(edge(from, to)); }

    // A component instance in a list. Gives its number in model.placements.
    index place(entity_list& list, index definition, const transform& t);
};

// The corners of a polygon with `normal` as seen from its tip: a turn of the xy plane, in which (x, y) is given.
points in_plane_of(const vec3& normal, const points& flat);

} // namespace sketchup::test
