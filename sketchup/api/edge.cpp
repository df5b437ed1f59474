// The calls on edges and their vertices.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"

using namespace sketchup::api;

SUResult SUEdgeGetStartVertex(SUEdgeRef edge, SUVertexRef* vertex) {
    return give_handle(edge, vertex, [](const sketchup::edge& e) { return element_at(e.owner->vertices, e.start); });
}

SUResult SUEdgeGetEndVertex(SUEdgeRef edge, SUVertexRef* vertex) {
    return give_handle(edge, vertex, [](const sketchup::edge& e) { return element_at(e.owner->vertices, e.end); });
}

SUResult SUEdgeGetSoft(SUEdgeRef edge, bool* soft) {
    return give(edge, soft, [](const sketchup::edge& e) { return e.soft; });
}

SUResult SUEdgeGetSmooth(SUEdgeRef edge, bool* smooth) {
    return give(edge, smooth, [](const sketchup::edge& e) { return e.smooth; });
}

SUResult SUEdgeGetNumFaces(SUEdgeRef edge, size_t* count) {
    return give(edge, count, [](const sketchup::edge& e) { return size_t{e.faces.count}; });
}

SUResult SUEdgeGetFaces(SUEdgeRef edge, size_t len, SUFaceRef faces[], size_t* count) {
    const sketchup::edge* e = object_of(edge);
    if (!e)
        return SU_ERROR_INVALID_INPUT;
    return fill_list(e->faces.count, len, faces, count, [e](size_t i) {
        return handle_of<SUFaceRef>(e->owner->faces[e->owner->faces_of_edges[e->faces.first + i]]);
    });
}

SUResult SUVertexGetPosition(SUVertexRef vertex, SUPoint3D* position) {
    return give(vertex, position, [](const sketchup::vertex& v) { return to_point(v.position); });
}
