// How a component that stands for an object of an outside library becomes a record. Reads the layer table and the top
// parameter record.

#include "tessaline/parameters/layer_inheritance.h"
#include "tessaline/walk/SketchUpReader.h"

#include <cstddef>

void SketchUpReader::write_rpc(SUComponentInstanceRef instance, const rpc_description& rpc,
                               const transform16& transform) {
    rpc_record record;
    record.position = origin_image(transform);
    record.axes = axis_images(transform);
    for (std::size_t i = 0; i != record.axes.size(); ++i) {
        record.scales[i] = magnitude(record.axes[i]);
        record.axes[i].make_unit(1);
    }
    record.layer_name = layer_of(SUComponentInstanceToDrawingElement(instance), layer0_hidden).name;
    record.type_id = rpc.type_id;
    stream.write_rpc(record);
}
