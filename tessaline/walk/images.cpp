// How a picture placed in the model becomes a quad. Reads the parameters of the level and the flags of the run, and
// changes the parameters.

#include "qlw/qlw_globals.h"
#include "tessaline/faces/face_geometry.h"
#include "tessaline/model/drawing_elements.h"
#include "tessaline/model/local_transform.h"
#include "tessaline/model/model_text.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/parameters/layer_inheritance.h"
#include "tessaline/state/run_state.h"
#include "tessaline/stream/length_units.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tessaline/walk/walk_log.h"

namespace {

constexpr int back_material = first_material_number; // of every image: the first material of the run, whichever it is
constexpr int corners_of_quad = 4;

// Corners and normal of the picture in the world; the corners in metres. The local space has a unit for each pixel.
void place(image_quad& quad, SUImageRef image, const transform16& local_to_world) {
    quad.normal = transform_normal(local_to_world, {0, 0, 1}, {0, 0, 0});
    fpt offset = quad.normal;
    offset.make_unit(get_global_double("rvl_image_offset"));
    const fpt origin = origin_image(local_to_world) + offset;
    std::size_t width = 0;
    std::size_t height = 0;
    SUImageGetPixelDimensions(image, &width, &height);
    const fpt along = vector_image(local_to_world, {1, 0, 0}) * static_cast<double>(width);
    const fpt up = vector_image(local_to_world, {0, 1, 0}) * static_cast<double>(height);
    quad.origin = metres_from_inches(origin);
    quad.corner_y = metres_from_inches(origin + up);
    quad.corner_x = metres_from_inches(origin + along);
    quad.corner_xy = metres_from_inches(origin + along + up);
    if (extraction_log_is_on())
        log_image(name_by(SUImageGetFileName, image), quad.layer_name, origin);
}

} // namespace

int SketchUpReader::ProcessImage(SUImageRef image, const transform16& matrix, const std::string&) {
    const SUDrawingElementRef element = SUImageToDrawingElement(image);
    const element_layer layer = layer_of(element, layer0_hidden);
    if (is_hidden(element) || (!theApp.is_doing_animation && !is_visible(layer.layer)))
        return 0;
    read_attributes(SUImageToEntity(image));
    current_oparms->store_attributes_in_oparms("Image");

    image_quad quad;
    quad.layer_name = layer.name;
    quad.casts_shadows = casts_shadows(element);
    quad.material = get_image_material_number(image);
    place(quad, image, composed(matrix, local_transform(SUImageGetTransform, image)));
    write_image_quad(quad);
    return 1;
}

void SketchUpReader::write_image_quad(const image_quad& quad) {
    blocks.begin_image_mesh();
    blocks.write_layer(quad.layer_name);
    stream.write_culling(false);
    if (!quad.casts_shadows)
        stream.write_no_shadow();
    stream.write_front_textured();
    stream.write_front_material(quad.material);
    stream.write_back_textured();
    stream.write_back_material(back_material);

    struct corner {
        fpt uvq;
        const fpt& position;
    };
    const corner corners[corners_of_quad] = {
        {{0, 0, 0}, quad.origin}, {{1, 0, 0}, quad.corner_x}, {{1, 1, 0}, quad.corner_xy}, {{0, 1, 0}, quad.corner_y}};
    const int first = blocks.state().vertex_base;
    int number = first;
    for (const corner& c : corners)
        stream.write_vertex(number++, quad.normal, &c.uvq, c.position);
    stream.write_image_face(first, first + 1, first + 2);
    stream.write_image_face(first + 2, first + 3, first);
    blocks.end_image_mesh(corners_of_quad);
}
