// Which section planes clip the rendered scene. None is written yet.

#include "tessaline/SketchUpReader.h"

int SketchUpReader::process_section_plane(SUSectionPlaneRef) {
    return 0;
}
