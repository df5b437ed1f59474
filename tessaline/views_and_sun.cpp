// Where the sun stands and which camera the parent has set. Neither is read yet: the settings of the sun keep what the
// option file gave them, and there is no view.

#include "tessaline/SketchUpReader.h"

void SketchUpReader::read_sun() {}

void SketchUpReader::read_view() {}
