// Which edges are shown as lines, and how a line becomes geometry. No edge is kept and none is written yet.

#include "tessaline/SketchUpReader.h"

int SketchUpReader::ProcessEdge(SUEdgeRef, const transform16&, const std::string&) {
    return 0;
}

void SketchUpReader::write_edge_lines() {}
