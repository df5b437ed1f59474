#include "tools/skp-dump/placed_content.h"

#include "tools/model_opening/su_lists.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

using matrix = std::array<double, 16>; // column-major
using point = std::array<double, 3>;

constexpr matrix identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

matrix normalised(const SUTransformation& local) {
    matrix result{};
    for (std::size_t i = 0; i < 16; ++i)
        result[i] = local.values[i] / local.values[15];
    return result;
}

matrix composed(const matrix& outer, const matrix& inner) {
    matrix result{};
    for (std::size_t column = 0; column < 4; ++column)
        for (std::size_t row = 0; row < 4; ++row)
            for (std::size_t k = 0; k < 4; ++k)
                result[4 * column + row] += outer[4 * k + row] * inner[4 * column + k];
    return result;
}

point placed(const matrix& m, const SUPoint3D& p) {
    return {m[0] * p.x + m[4] * p.y + m[8] * p.z + m[12], m[1] * p.x + m[5] * p.y + m[9] * p.z + m[13],
            m[2] * p.x + m[6] * p.y + m[10] * p.z + m[14]};
}

double length(double x, double y, double z) {
    return std::sqrt(x * x + y * y + z * z);
}

double triangle_area(const point& a, const point& b, const point& c) {
    const point u{b[0] - a[0], b[1] - a[1], b[2] - a[2]};
    const point v{c[0] - a[0], c[1] - a[1], c[2] - a[2]};
    return length(u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]) / 2;
}

// One level of the walk: the layer that a thing on the default layer inherits from its ancestors.
struct level {
    matrix transform = identity;
    SULayerRef inherited_layer = SU_INVALID;
    int depth = 0;
};

class placer {
public:
    placer(SUModelRef walked, const placing_rules& wanted) : model(walked), rules(wanted) {
        SUModelGetDefaultLayer(model, &default_layer);
        bool visible = true;
        SULayerGetVisibility(default_layer, &visible);
        default_layer_hidden = !visible;
    }

    placed_content walk_model() {
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(model, &entities);
        walk(entities, {});
        return found;
    }

private:
    SULayerRef layer_of(SUDrawingElementRef element, const level& at) const {
        SULayerRef layer = SU_INVALID;
        SUDrawingElementGetLayer(element, &layer);
        return SUAreEqual(layer, default_layer) && SUIsValid(at.inherited_layer) ? at.inherited_layer : layer;
    }

    // A thing on the default layer follows that layer's own switch, unless the default layer is off: then that of the
    // layer that it inherits.
    bool is_left_out(SUDrawingElementRef element, const level& at) const {
        if (!rules.leave_out_hidden)
            return false;
        bool hidden = false;
        SUDrawingElementGetHidden(element, &hidden);
        SULayerRef layer = SU_INVALID;
        SUDrawingElementGetLayer(element, &layer);
        if (default_layer_hidden)
            layer = layer_of(element, at);
        bool visible = true;
        SULayerGetVisibility(layer, &visible);
        return hidden || !visible;
    }

    level below(SUDrawingElementRef element, const SUTransformation& local, const level& at) const {
        level inner;
        inner.transform = composed(at.transform, normalised(local));
        const SULayerRef layer = layer_of(element, at);
        inner.inherited_layer = SUAreEqual(layer, default_layer) ? at.inherited_layer : layer;
        inner.depth = at.depth + 1;
        return inner;
    }

    void walk(SUEntitiesRef entities, const level& at) {
        found.depth = std::max(found.depth, at.depth);
        for (const SUGroupRef group : su_list(entities, SUEntitiesGetNumGroups, SUEntitiesGetGroups))
            walk_group(group, at);
        for (const SUComponentInstanceRef instance :
             su_list(entities, SUEntitiesGetNumInstances, SUEntitiesGetInstances))
            walk_instance(instance, at);
        for (const SUImageRef image : su_list(entities, SUEntitiesGetNumImages, SUEntitiesGetImages))
            walk_image(image, at);
        for (const SUFaceRef face : su_list(entities, SUEntitiesGetNumFaces, SUEntitiesGetFaces))
            if (!is_left_out(SUFaceToDrawingElement(face), at)) {
                ++found.faces;
                found.area += add_face(face, at.transform);
            }
        add_edges(entities, at.transform);
    }

    void walk_group(SUGroupRef group, const level& at) {
        if (is_left_out(SUGroupToDrawingElement(group), at))
            return;
        ++found.groups;
        SUTransformation local = {};
        SUGroupGetTransform(group, &local);
        SUEntitiesRef inside = SU_INVALID;
        SUGroupGetEntities(group, &inside);
        walk(inside, below(SUGroupToDrawingElement(group), local, at));
    }

    void walk_instance(SUComponentInstanceRef instance, const level& at) {
        if (is_left_out(SUComponentInstanceToDrawingElement(instance), at))
            return;
        ++found.instances;
        SUTransformation local = {};
        SUComponentInstanceGetTransform(instance, &local);
        SUComponentDefinitionRef definition = SU_INVALID;
        SUComponentInstanceGetDefinition(instance, &definition);
        SUEntitiesRef inside = SU_INVALID;
        SUComponentDefinitionGetEntities(definition, &inside);
        level inner = below(SUComponentInstanceToDrawingElement(instance), local, at);
        SUComponentBehavior behavior = {};
        SUComponentDefinitionGetBehavior(definition, &behavior);
        if (behavior.component_always_face_camera) {
            ++found.camera_facing;
            if (rules.turn_to_camera)
                turn_to_camera(inner.transform);
        }
        walk(inside, inner);
    }

    void walk_image(SUImageRef image, const level& at) {
        if (is_left_out(SUImageToDrawingElement(image), at))
            return;
        ++found.images;
        SUTransformation local = {};
        SUImageGetTransform(image, &local);
        SUComponentDefinitionRef definition = SU_INVALID;
        SUImageGetDefinition(image, &definition);
        SUEntitiesRef inside = SU_INVALID;
        SUComponentDefinitionGetEntities(definition, &inside);
        found.depth = std::max(found.depth, at.depth + 1);
        const matrix transform = composed(at.transform, normalised(local));
        for (const SUFaceRef face : su_list(inside, SUEntitiesGetNumFaces, SUEntitiesGetFaces))
            found.image_area += add_face(face, transform);
    }

    // The plan direction to the camera's target becomes the second axis; lengths and height stay.
    void turn_to_camera(matrix& m) const {
        SUCameraRef camera = SU_INVALID;
        SUModelGetCamera(model, &camera);
        SUPoint3D eye = {};
        SUPoint3D target = {};
        SUVector3D up = {};
        SUCameraGetOrientation(camera, &eye, &target, &up);
        const double dx = target.x - eye.x;
        const double dy = target.y - eye.y;
        const double plan = std::hypot(dx, dy);
        if (plan == 0)
            return;
        const double first = length(m[0], m[1], m[2]) / plan;
        const double second = length(m[4], m[5], m[6]) / plan;
        m[0] = dy * first;
        m[1] = -dx * first;
        m[2] = 0;
        m[4] = dx * second;
        m[5] = dy * second;
        m[6] = 0;
    }

    // Gives the area.
    double add_face(SUFaceRef face, const matrix& transform) {
        SUMeshHelperRef mesh = SU_INVALID;
        SUMeshHelperCreate(&mesh, face);
        const auto vertices = su_list(mesh, SUMeshHelperGetNumVertices, SUMeshHelperGetVertices);
        std::size_t triangles = 0;
        SUMeshHelperGetNumTriangles(mesh, &triangles);
        std::vector<std::size_t> corners(3 * triangles);
        if (!corners.empty())
            SUMeshHelperGetVertexIndices(mesh, corners.size(), corners.data(), &triangles);
        SUMeshHelperRelease(&mesh);
        std::vector<point> world;
        world.reserve(vertices.size());
        for (const SUPoint3D& vertex : vertices) {
            world.push_back(placed(transform, vertex));
            found.box.include(world.back());
            found.box_with_edges.include(world.back());
        }
        double area = 0;
        for (std::size_t i = 0; i + 2 < corners.size(); i += 3)
            area += triangle_area(world[corners[i]], world[corners[i + 1]], world[corners[i + 2]]);
        return area;
    }

    void add_edges(SUEntitiesRef entities, const matrix& transform) {
        for (const SUEdgeRef edge : su_edges(entities))
            for (const auto end : {SUEdgeGetStartVertex, SUEdgeGetEndVertex}) {
                SUVertexRef vertex = SU_INVALID;
                end(edge, &vertex);
                SUPoint3D position = {};
                SUVertexGetPosition(vertex, &position);
                found.box_with_edges.include(placed(transform, position));
            }
    }

    SUModelRef model;
    placing_rules rules;
    SULayerRef default_layer = SU_INVALID;
    bool default_layer_hidden = false;
    placed_content found;
};

} // namespace

void placed_box::include(const std::array<double, 3>& p) {
    for (std::size_t i = 0; i < 3; ++i) {
        low[i] = std::min(low[i], p[i]);
        high[i] = std::max(high[i], p[i]);
    }
}

placed_content place_content(SUModelRef model, const placing_rules& rules) {
    return placer(model, rules).walk_model();
}
