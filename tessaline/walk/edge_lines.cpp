// Which edges are shown as lines. Fills the table of edges; reads the layer table and the top parameter record.

#include "qlw/qlw_globals.h"
#include "qlw/qlw_trace.h"
#include "tessaline/faces/edge_choice.h"
#include "tessaline/faces/face_geometry.h"
#include "tessaline/model/drawing_elements.h"
#include "tessaline/parameters/layer_inheritance.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"

namespace {

// Whether the edge only serves to round a surface off.
bool is_smoothed(SUEdgeRef edge) {
    bool soft = false;
    bool smooth = false;
    SUEdgeGetSoft(edge, &soft);
    SUEdgeGetSmooth(edge, &smooth);
    return soft || smooth;
}

bool bounds_a_face(SUEdgeRef edge) {
    SUFaceRef face = SU_INVALID;
    std::size_t count = 0;
    SUEdgeGetFaces(edge, 1, &face, &count);
    return count != 0;
}

bool is_painted(SUDrawingElementRef element) {
    SUMaterialRef material = SU_INVALID;
    SUDrawingElementGetMaterial(element, &material);
    return SUIsValid(material);
}

bool is_chosen(SUEdgeRef edge, SUDrawingElementRef element) {
    switch (get_global_int("ivl_edge_lines")) {
    case stand_alone_edges:
        return !bounds_a_face(edge);
    case painted_edges:
        return is_painted(element);
    default:
        return true;
    }
}

fpt position_of(SUResult (*end_of)(SUEdgeRef, SUVertexRef*), SUEdgeRef edge) {
    SUVertexRef vertex = SU_INVALID;
    SUPoint3D position{};
    end_of(edge, &vertex);
    SUVertexGetPosition(vertex, &position);
    return {position.x, position.y, position.z};
}

void report_too_many(std::size_t most_edges) {
    cl_trace::here("SketchUpReader::ProcessEdge", trace_level::report)
        .report("Only %d edges are shown as lines", most_edges);
}

} // namespace

int SketchUpReader::ProcessEdge(SUEdgeRef edge, const transform16& matrix, const std::string&) {
    const SUDrawingElementRef element = SUEdgeToDrawingElement(edge);
    const element_layer layer = layer_of(element, layer0_hidden);
    const bool layer_is_off = !theApp.is_doing_animation && !is_visible(layer.layer);
    if (is_hidden(element) || layer_is_off || is_smoothed(edge) || !is_chosen(edge, element))
        return 0;
    if (edge_records.size() >= most_edges) {
        if (!edges_left_out)
            report_too_many(most_edges);
        edges_left_out = true;
        return 0;
    }
    edge_records.push_back({.start = transform_point(matrix, position_of(SUEdgeGetStartVertex, edge)),
                            .end = transform_point(matrix, position_of(SUEdgeGetEndVertex, edge))});
    return 1;
}
