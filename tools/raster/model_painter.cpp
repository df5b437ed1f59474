#include "tools/raster/model_painter.h"

#include "sketchup/model/vector_math.h"
#include "tools/model_opening/placed_image.h"
#include "tools/model_opening/su_lists.h"

#include <algorithm>

namespace {

constexpr color edge_color = {0.1, 0.1, 0.1};

color color_from(const SUColor& c) {
    return {c.red / 255.0, c.green / 255.0, c.blue / 255.0};
}

vec placed(const sketchup::transform& t, const SUPoint3D& p) {
    const sketchup::vec3 q = sketchup::transform_point(t, {p.x, p.y, p.z});
    return {q.x, q.y, q.z};
}

sketchup::transform in_place(const sketchup::transform& parent, const SUTransformation& own) {
    sketchup::transform child;
    std::copy_n(own.values, child.size(), child.begin());
    return sketchup::compose(parent, child);
}

} // namespace

color model_painter::option_color(SUModelRef model, const char* key, const color& otherwise) {
    SURenderingOptionsRef options = SU_INVALID;
    SUTypedValueRef value = SU_INVALID;
    SUColor found{};
    SUModelGetRenderingOptions(model, &options);
    SUTypedValueCreate(&value);
    const bool known = SURenderingOptionsGetValue(options, key, &value) == SU_ERROR_NONE &&
                       SUTypedValueGetColor(value, &found) == SU_ERROR_NONE;
    SUTypedValueRelease(&value);
    return known ? color_from(found) : otherwise;
}

model_painter::model_painter(SUModelRef model, texture_source from, std::string work_file, rasterizer& into)
    : model_(model), source(from), picture(into), rules(model, false), pictures(std::move(work_file)),
      front_color(option_color(model, "FaceFrontColor", {1, 1, 1})),
      back_color(option_color(model, "FaceBackColor", {0.65, 0.67, 0.78})) {
    SUTextureWriterCreate(&writer);
}

model_painter::~model_painter() {
    SUTextureWriterRelease(&writer);
}

void model_painter::draw() {
    SUEntitiesRef root = SU_INVALID;
    SUModelGetEntities(model_, &root);
    draw_list(root, {sketchup::identity_transform, {}});
    for (const clear_triangle& t : clear)
        if (t.with.picture)
            picture.draw(t.corners, t.points, *t.with.picture, t.with.opacity);
        else
            picture.draw(t.corners, t.with.plain, t.with.opacity);
    clear.clear();
}

void model_painter::draw_list(SUEntitiesRef list, const place& at) {
    for (const SUImageRef image : su_list(list, SUEntitiesGetNumImages, SUEntitiesGetImages))
        if (!rules.is_left_out(SUImageToDrawingElement(image), at.inherited))
            draw_image(image, at);
    for (const SUFaceRef face : su_list(list, SUEntitiesGetNumFaces, SUEntitiesGetFaces))
        if (!rules.is_left_out(SUFaceToDrawingElement(face), at.inherited))
            draw_face(face, at);
    for (const SUEdgeRef edge : su_edges(list))
        draw_edge(edge, at);
    for (const SUComponentInstanceRef instance : su_list(list, SUEntitiesGetNumInstances, SUEntitiesGetInstances))
        draw_placement(instance, at);
    for (const SUGroupRef group : su_list(list, SUEntitiesGetNumGroups, SUEntitiesGetGroups))
        draw_placement(SUGroupToComponentInstance(group), at);
}

void model_painter::draw_placement(SUComponentInstanceRef instance, const place& at) {
    const SUDrawingElementRef element = SUComponentInstanceToDrawingElement(instance);
    if (rules.is_left_out(element, at.inherited))
        return;
    SUTransformation own{};
    SUComponentDefinitionRef definition = SU_INVALID;
    SUEntitiesRef list = SU_INVALID;
    SUComponentInstanceGetTransform(instance, &own);
    SUComponentInstanceGetDefinition(instance, &definition);
    SUComponentDefinitionGetEntities(definition, &list);
    draw_list(list, {in_place(at.transform, own), rules.inside(element, at.inherited)});
}

model_painter::paint model_painter::paint_of(SUMaterialRef material, SUFaceRef face, bool front, bool is_own) {
    paint result;
    SUColor plain{};
    bool uses_opacity = false;
    SUMaterialGetColor(material, &plain);
    result.plain = color_from(plain);
    if (SUMaterialGetUseOpacity(material, &uses_opacity) == SU_ERROR_NONE && uses_opacity)
        SUMaterialGetOpacity(material, &result.opacity);
    SUTextureRef texture = SU_INVALID;
    if (SUMaterialGetTexture(material, &texture) != SU_ERROR_NONE)
        return result;
    long number = 0;
    if (source == texture_source::writer && is_own) {
        long other = 0;
        SUTextureWriterLoadFace(writer, face, front ? &number : &other, front ? &other : &number);
        result.picture = pictures.of(writer, number);
        return result;
    }
    result.picture = pictures.of(texture);
    std::size_t width = 0;
    std::size_t height = 0;
    if (!is_own)
        SUTextureGetDimensions(texture, &width, &height, &result.u_scale, &result.v_scale);
    return result;
}

model_painter::paint model_painter::paint_of(SUFaceRef face, bool front, const place& at) {
    SUMaterialRef own = SU_INVALID;
    const SUDrawingElementRef element = SUFaceToDrawingElement(face);
    if (rules.colors_by_layer() && SULayerGetMaterial(rules.layer_of(element, at.inherited), &own) == SU_ERROR_NONE)
        return paint_of(own, face, front, false);
    if ((front ? SUFaceGetFrontMaterial : SUFaceGetBackMaterial)(face, &own) == SU_ERROR_NONE)
        return paint_of(own, face, front, true);
    if (SUIsValid(at.inherited.material))
        return paint_of(at.inherited.material, face, front, false);
    paint result;
    result.plain = front ? front_color : back_color;
    return result;
}

void model_painter::draw_face(SUFaceRef face, const place& at) {
    const std::array<paint, 2> sides = {paint_of(face, true, at), paint_of(face, false, at)};
    SUUVHelperRef helper = SU_INVALID;
    SUMeshHelperRef mesh = SU_INVALID;
    SUTextureWriterRef none = SU_INVALID;
    SUFaceGetUVHelper(face, true, true, source == texture_source::writer ? writer : none, &helper);
    SUMeshHelperCreateWithUVHelper(&mesh, face, helper);
    const auto vertices = su_list(mesh, SUMeshHelperGetNumVertices, SUMeshHelperGetVertices);
    const std::array<std::vector<SUPoint3D>, 2> coordinates = {
        su_list(mesh, SUMeshHelperGetNumVertices, SUMeshHelperGetFrontSTQCoords),
        su_list(mesh, SUMeshHelperGetNumVertices, SUMeshHelperGetBackSTQCoords)};
    std::size_t count = 0;
    SUMeshHelperGetNumTriangles(mesh, &count);
    std::vector<std::size_t> indices(3 * count);
    SUMeshHelperGetVertexIndices(mesh, indices.size(), indices.data(), &count);
    const sketchup::transform& t = at.transform;
    const bool mirrored =
        sketchup::dot(sketchup::cross({t[0], t[1], t[2]}, {t[4], t[5], t[6]}), {t[8], t[9], t[10]}) < 0;
    for (std::size_t i = 0; i + 2 < count; i += 3) {
        std::array<vec, 3> corners{};
        for (std::size_t k = 0; k < 3; ++k)
            corners[k] = placed(t, vertices[indices[i + k]]);
        const std::size_t side = picture.sees_front(corners) != mirrored ? 0 : 1;
        std::array<picture_point, 3> points{};
        for (std::size_t k = 0; k < 3; ++k) {
            const SUPoint3D& stq = coordinates[side][indices[i + k]];
            points[k] = {stq.x * sides[side].u_scale, stq.y * sides[side].v_scale, stq.z};
        }
        draw_triangle(corners, points, sides[side]);
    }
    SUMeshHelperRelease(&mesh);
    SUUVHelperRelease(&helper);
}

void model_painter::draw_triangle(const std::array<vec, 3>& corners, const std::array<picture_point, 3>& points,
                                  const paint& with) {
    if (with.opacity < 1 || (with.picture && with.picture->has_alpha()))
        clear.push_back({corners, points, with});
    else if (with.picture)
        picture.draw(corners, points, *with.picture);
    else
        picture.draw(corners, with.plain);
}

void model_painter::draw_edge(SUEdgeRef edge, const place& at) {
    bool soft = false;
    SUVertexRef start = SU_INVALID;
    SUVertexRef end = SU_INVALID;
    SUPoint3D from{};
    SUPoint3D to{};
    SUEdgeGetSoft(edge, &soft);
    if (soft || rules.is_left_out(SUEdgeToDrawingElement(edge), at.inherited))
        return;
    SUEdgeGetStartVertex(edge, &start);
    SUEdgeGetEndVertex(edge, &end);
    SUVertexGetPosition(start, &from);
    SUVertexGetPosition(end, &to);
    picture.draw_line(placed(at.transform, from), placed(at.transform, to), edge_color);
}

void model_painter::draw_image(SUImageRef image, const place& at) {
    paint with;
    with.picture = pictures.of(image);
    if (!with.picture)
        return;
    SUTransformation own{};
    SUImageGetTransform(image, &own);
    const sketchup::transform t = in_place(at.transform, own);
    const auto [low, high] = rectangle_of(image);
    const std::array<vec, 4> c = {placed(t, low), placed(t, {high.x, low.y, 0}), placed(t, high),
                                  placed(t, {low.x, high.y, 0})};
    draw_triangle({c[0], c[1], c[2]}, {{{0, 0}, {1, 0}, {1, 1}}}, with);
    draw_triangle({c[0], c[2], c[3]}, {{{0, 0}, {1, 1}, {0, 1}}}, with);
}
