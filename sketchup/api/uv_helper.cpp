// Texture coordinates of a face at single points.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/writer_coordinates.h"

#include <optional>

namespace {

using namespace sketchup::api;
using sketchup::face_side;
using sketchup::side_coordinates;
using sketchup::uvq;

SUResult coordinates_at(const uv_helper* helper, std::optional<side_coordinates> uv_helper::*side,
                        const SUPoint3D* point, SUUVQ* result) {
    if (!helper)
        return SU_ERROR_INVALID_INPUT;
    if (!point)
        return SU_ERROR_NULL_POINTER_INPUT;
    if (!result)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const uvq found = helper->*side ? (helper->*side)->at(from_point(*point)) : uvq{};
    *result = {found.u, found.v, found.q};
    return SU_ERROR_NONE;
}

} // namespace

SUResult SUFaceGetUVHelper(SUFaceRef face, bool front, bool back, SUTextureWriterRef writer, SUUVHelperRef* helper) {
    const sketchup::face* f = object_of(face);
    const texture_writer* w = object_of(writer);
    if (!f || (writer.ptr && !w))
        return SU_ERROR_INVALID_INPUT;
    return create(helper, provider().uv_helpers, [&](uv_helper& made) {
        if (front)
            made.front = coordinates_for_writer(*f, face_side::front, w);
        if (back)
            made.back = coordinates_for_writer(*f, face_side::back, w);
    });
}

SUResult SUUVHelperGetFrontUVQ(SUUVHelperRef helper, const SUPoint3D* point, SUUVQ* uvq) {
    return coordinates_at(object_of(helper), &uv_helper::front, point, uvq);
}

SUResult SUUVHelperGetBackUVQ(SUUVHelperRef helper, const SUPoint3D* point, SUUVQ* uvq) {
    return coordinates_at(object_of(helper), &uv_helper::back, point, uvq);
}

SUResult SUUVHelperRelease(SUUVHelperRef* helper) {
    return release(helper, provider().uv_helpers);
}
