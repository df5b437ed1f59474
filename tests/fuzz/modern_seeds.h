#pragma once

// A model document of the archive container that holds one of everything, in as few bytes as that takes.

#include "tests/sketchup/skp/modern/record_bytes.h"

namespace modern_seeds {

using namespace record_bytes;

inline bytes dictionary() {
    const auto entry = [](const char* key, const bytes& value) { return rec(14006, text(key)) + rec(14500, value); };
    return rec(14003, rec(14000) + rec(14004, text("d")) +
                          rec(14005, entry("a", rec(14510, rec(14500, rec(14505, doubles({1}))))) +
                                         entry("s", rec(14509, text("text"))) + entry("n", {})));
}

inline bytes mapped_face() {
    const bytes side = rec(10003, rec(10004, i32(3)) + rec(10005, doubles({1, 0, 0, 0, 1, 0, 0, 0, 1})) +
                                      rec(10006, doubles({0, 0, 1})));
    return rec(3500, rec(2000, entity(21, rec(10000, rec(10001, side) + rec(10002, side)) + dictionary())) +
                         rec(3503, id(31)) + rec(3501, plane_up()) + rec(3502, square_loop() + loop(use(12, true))));
}

inline bytes root_content() {
    return content(square_lists() + rec(5014, rec(19000, entity(7))) +
                   rec(5015, rec(19500, rec(19000, entity(8)) + rec(19501, bytes(128, 0)))) + rec(5003, mapped_face()) +
                   rec(5004, instance(60, 50)) + rec(5005, rec(7500, instance(61, 51))) +
                   rec(5008, rec(8000, instance(62, 51))) + rec(5009, rec(17001, rec(17000, drawing(63)))) +
                   rec(5017, rec(23500, rec(23000, drawing(64)))) +
                   rec(5007, rec(10500, drawing(71) + rec(10501, plane_up()) + rec(10502, text("cut")))) +
                   rec(5020, id(71)) + rec(5019, rec(25503, rec(25504, rec(25500)))));
}

inline bytes view() {
    const bytes camera = rec(13500, rec(13501, doubles({1, 2, 3})) + rec(13506, u8(1)));
    const bytes options = rec(29500, rec(29511, u8(1)) + rec(29532, {1, 2, 3, 4}) + rec(29557, i32(3)));
    const bytes scene = rec(29000, rec(28500, entity(80) + rec(28501, text("s"))) + rec(29002, camera) +
                                       rec(29005, options) + rec(29006, rec(26000)) + rec(29008, id_list({41})));
    return rec(506, camera) + rec(507, options) + rec(519, rec(28000, rec(28001, scene) + rec(28002, id(80))));
}

// The description of its material follows it, as fuzz_modern takes it.
inline bytes one_of_everything() {
    const bytes folder = rec(16000, rec(16001, text("f")) + rec(16004, id_list({41})));
    const bytes parts =
        rec(521, rec(14001, rec(14002, dictionary()))) + materials(rec(13000, entity(31) + rec(13004, text("m")))) +
        layers(layer(40, "Layer0") + layer(41, "l"), rec(15003, rec(16000, rec(16003, folder)))) +
        definitions(definition(50, "a", square_lists()) + definition(51, "b", rec(5004, instance(65, 50)), 1)) +
        root_content() + view();
    return rec(500, parts) +
           text("<m:materialDocument xmlns:m=\"http://sketchup.google.com/schemas/sketchup/1.0/material\" "
                "xmlns:t=\"http://sketchup.google.com/schemas/1.0/types\"><m:material name=\"m\" type=\"1\"><m:texture "
                "xScale=\"1\" avgColor=\"7\"><m:images><m:image path=\"./a.jpg\"/></m:images></m:texture>"
                "<t:AttributeDictionaries><t:AttributeDictionary name=\"d\"><t:Attribute key=\"k\" type=\"10\">"
                "<![CDATA[v]]></t:Attribute></t:AttributeDictionary></t:AttributeDictionaries></m:material>"
                "</m:materialDocument>");
}

} // namespace modern_seeds
