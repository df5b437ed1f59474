// How a picture placed in the model becomes a quad. None is written yet.

#include "tessaline/SketchUpReader.h"

int SketchUpReader::ProcessImage(SUImageRef, const transform16&, const std::string&) {
    return 0;
}
