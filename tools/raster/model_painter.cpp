#include "tools/raster/model_painter.h"

#include "sketchup/model/vector_math.h"

#include <algorithm>

namespace {

constexpr color edge_color = {0.1, 0.1, 0.1};

template<class Item, class Owner>
std::vector<Item> all_of(SUResult (*number)(Owner, std::size_t*),
                         SUResult (*get)(Owner, std::size_t, Item*, std::size_t*), Owner owner) {
    std::size_t count = 0;
    number(owner, &count);
    std::vector<Item> items(count);
    get(owner, items.size(), items.data(), &count);
    items.resize(count);
    return items;
}

bool is_shown(SUDrawingElementRef element) {
    bool hidden = false;
    bool layer_shows = true;
    SULayerRef layer = SU_INVALID;
    SUDrawingElementGetHidden(element, &hidden);
    if (SUDrawingElementGetLayer(element, &layer) == SU_ERROR_NONE)
        SULayerGetVisibility(layer, &layer_shows);
    return !hidden && layer_shows;
}

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

bool model_painter::option_is_on(SUModelRef model, const char* key) {
    SURenderingOptionsRef options = SU_INVALID;
    SUTypedValueRef value = SU_INVALID;
    bool is_on = false;
    SUModelGetRenderingOptions(model, &options);
    SUTypedValueCreate(&value);
    if (SURenderingOptionsGetValue(options, key, &value) == SU_ERROR_NONE)
        SUTypedValueGetBool(value, &is_on);
    SUTypedValueRelease(&value);
    return is_on;
}

model_painter::model_painter(SUModelRef model, texture_source from, std::string work_file, rasterizer& into)
    : model_(model), source(from), picture(into), pictures(std::move(work_file)),
      front_color(option_color(model, "FaceFrontColor", {1, 1, 1})),
      back_color(option_color(model, "FaceBackColor", {0.65, 0.67, 0.78})),
      color_by_layer(option_is_on(model, "DisplayColorByLayer")) {
    SUTextureWriterCreate(&writer);
    SUModelGetDefaultLayer(model, &default_layer);
}

model_painter::~model_painter() {
    SUTextureWriterRelease(&writer);
}

void model_painter::draw() {
    SUEntitiesRef root = SU_INVALID;
    SUModelGetEntities(model_, &root);
    draw_list(root, {sketchup::identity_transform, SU_INVALID, default_layer});
    for (const clear_triangle& t : clear)
        if (t.with.picture)
            picture.draw(t.corners, t.points, *t.with.picture, t.with.opacity);
        else
            picture.draw(t.corners, t.with.plain, t.with.opacity);
    clear.clear();
}

void model_painter::draw_list(SUEntitiesRef list, const place& at) {
    for (const SUImageRef image : all_of(SUEntitiesGetNumImages, SUEntitiesGetImages, list))
        if (is_shown(SUImageToDrawingElement(image)))
            draw_image(image, at);
    for (const SUFaceRef face : all_of(SUEntitiesGetNumFaces, SUEntitiesGetFaces, list))
        if (is_shown(SUFaceToDrawingElement(face)))
            draw_face(face, at);
    std::size_t count = 0;
    SUEntitiesGetNumEdges(list, false, &count);
    std::vector<SUEdgeRef> edges(count);
    SUEntitiesGetEdges(list, false, edges.size(), edges.data(), &count);
    for (const SUEdgeRef edge : edges)
        draw_edge(edge, at);
    for (const SUComponentInstanceRef instance : all_of(SUEntitiesGetNumInstances, SUEntitiesGetInstances, list))
        draw_placement(instance, at);
    for (const SUGroupRef group : all_of(SUEntitiesGetNumGroups, SUEntitiesGetGroups, list))
        draw_placement(SUGroupToComponentInstance(group), at);
}

void model_painter::draw_placement(SUComponentInstanceRef instance, const place& at) {
    const SUDrawingElementRef element = SUComponentInstanceToDrawingElement(instance);
    if (!is_shown(element))
        return;
    SUTransformation own{};
    SUComponentDefinitionRef definition = SU_INVALID;
    SUEntitiesRef list = SU_INVALID;
    SUComponentInstanceGetTransform(instance, &own);
    SUComponentInstanceGetDefinition(instance, &definition);
    SUComponentDefinitionGetEntities(definition, &list);
    place inner = {in_place(at.transform, own), at.material, layer_of(element, at)};
    SUDrawingElementGetMaterial(element, &inner.material);
    draw_list(list, inner);
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

SULayerRef model_painter::layer_of(SUDrawingElementRef element, const place& at) const {
    SULayerRef own = default_layer;
    SUDrawingElementGetLayer(element, &own);
    return SUAreEqual(own, default_layer) ? at.layer : own;
}

model_painter::paint model_painter::paint_of(SUFaceRef face, bool front, const place& at) {
    SUMaterialRef own = SU_INVALID;
    if (color_by_layer && SULayerGetMaterial(layer_of(SUFaceToDrawingElement(face), at), &own) == SU_ERROR_NONE)
        return paint_of(own, face, front, false);
    if ((front ? SUFaceGetFrontMaterial : SUFaceGetBackMaterial)(face, &own) == SU_ERROR_NONE)
        return paint_of(own, face, front, true);
    if (SUIsValid(at.material))
        return paint_of(at.material, face, front, false);
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
    const auto vertices = all_of(SUMeshHelperGetNumVertices, SUMeshHelperGetVertices, mesh);
    const std::array<std::vector<SUPoint3D>, 2> coordinates = {
        all_of(SUMeshHelperGetNumVertices, SUMeshHelperGetFrontSTQCoords, mesh),
        all_of(SUMeshHelperGetNumVertices, SUMeshHelperGetBackSTQCoords, mesh)};
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
    if (soft || !is_shown(SUEdgeToDrawingElement(edge)))
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
    std::size_t width = 0;
    std::size_t height = 0;
    SUTransformation own{};
    if (!with.picture || SUImageGetPixelDimensions(image, &width, &height) != SU_ERROR_NONE)
        return;
    SUImageGetTransform(image, &own);
    const sketchup::transform t = in_place(at.transform, own);
    const double w = static_cast<double>(width);
    const double h = static_cast<double>(height);
    const std::array<vec, 4> c = {placed(t, {0, 0, 0}), placed(t, {w, 0, 0}), placed(t, {w, h, 0}),
                                  placed(t, {0, h, 0})};
    draw_triangle({c[0], c[1], c[2]}, {{{0, 0}, {1, 0}, {1, 1}}}, with);
    draw_triangle({c[0], c[2], c[3]}, {{{0, 0}, {1, 1}, {0, 1}}}, with);
}
