// Which number a face's side gets for its material. No material is declared yet, so every side is without one.

#include "tessaline/SketchUpReader.h"

int SketchUpReader::get_material_number(SUFaceRef, SUMaterialRef, std::string_view, bool, bool& has_texture, bool&,
                                        bool&) {
    has_texture = false;
    return 0;
}
