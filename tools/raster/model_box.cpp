#include "tools/raster/model_box.h"

std::pair<vec, vec> box_of(SUModelRef model) {
    SUEntitiesRef root = SU_INVALID;
    SUBoundingBox3D box{};
    SUModelGetEntities(model, &root);
    if (SUEntitiesGetBoundingBox(root, &box) != SU_ERROR_NONE || box.min_point.x > box.max_point.x)
        return {{-1, -1, -1}, {1, 1, 1}};
    return {{box.min_point.x, box.min_point.y, box.min_point.z}, {box.max_point.x, box.max_point.y, box.max_point.z}};
}
