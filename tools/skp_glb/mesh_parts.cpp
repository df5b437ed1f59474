#include "tools/skp_glb/mesh_parts.h"

#include "tools/gltf/numbers.h"
#include "tools/model_opening/su_lists.h"

#include <cmath>

namespace {

using gltf::metres_in_an_inch;

gltf::float3 in_metres(const SUPoint3D& p) {
    return {static_cast<float>(p.x * metres_in_an_inch), static_cast<float>(p.y * metres_in_an_inch),
            static_cast<float>(p.z * metres_in_an_inch)};
}

// Pictures are looked up at u / q, v / q from the upper left corner.
gltf::float2 place_in_picture(const SUPoint3D& uvq, const model_materials::picture_scale& scale) {
    const double q = uvq.z != 0 ? uvq.z : 1;
    const auto u = static_cast<float>(uvq.x / q * scale.u);
    const auto v = static_cast<float>(1 - uvq.y / q * scale.v);
    return std::isfinite(u) && std::isfinite(v) ? gltf::float2{u, v} : gltf::float2{};
}

} // namespace

// The triangles of a face, and its corners' places in the pictures of both sides.
struct mesh_parts::face_mesh {
    explicit face_mesh(SUFaceRef face) {
        const SUTextureWriterRef none = SU_INVALID;
        SUFaceGetUVHelper(face, true, true, none, &helper);
        SUMeshHelperCreateWithUVHelper(&mesh, face, helper);
        vertices = su_list(mesh, SUMeshHelperGetNumVertices, SUMeshHelperGetVertices);
        normals = su_list(mesh, SUMeshHelperGetNumVertices, SUMeshHelperGetNormals);
        std::size_t count = 0;
        SUMeshHelperGetNumTriangles(mesh, &count);
        indices.resize(3 * count);
        SUMeshHelperGetVertexIndices(mesh, indices.size(), indices.data(), &count);
        indices.resize(count);
        for (const SUPoint3D& vertex : vertices)
            sound = sound && gltf::is_finite(in_metres(vertex));
    }
    ~face_mesh() {
        SUMeshHelperRelease(&mesh);
        SUUVHelperRelease(&helper);
    }
    face_mesh(const face_mesh&) = delete;
    face_mesh& operator=(const face_mesh&) = delete;

    std::vector<SUPoint3D> coordinates(bool front) const {
        return su_list(mesh, SUMeshHelperGetNumVertices,
                       front ? SUMeshHelperGetFrontSTQCoords : SUMeshHelperGetBackSTQCoords);
    }

    std::vector<SUPoint3D> vertices;
    std::vector<SUVector3D> normals;
    std::vector<std::size_t> indices;
    bool sound = true; // no corner lies beyond single precision

private:
    SUUVHelperRef helper = SU_INVALID;
    SUMeshHelperRef mesh = SU_INVALID;
};

mesh_parts::paint mesh_parts::paint_of(SUFaceRef face, bool front) const {
    paint result;
    if (rules.colors_by_layer()) {
        SULayerGetMaterial(rules.layer_of(SUFaceToDrawingElement(face), at), &result.material);
        return result;
    }
    result.is_own = (front ? SUFaceGetFrontMaterial : SUFaceGetBackMaterial)(face, &result.material) == SU_ERROR_NONE;
    if (!result.is_own)
        result.material = at.material;
    return result;
}

mesh_parts::part& mesh_parts::part_for(SUDrawingElementRef element, std::size_t material) {
    SULayerRef layer = SU_INVALID;
    SUDrawingElementGetLayer(element, &layer);
    part& found = parts[{material, layer.ptr, rules.is_hidden(element, at)}];
    found.layer = layer;
    return found;
}

void mesh_parts::add_side(SUFaceRef face, const face_mesh& mesh, bool front, const paint& with, bool two_sided) {
    std::optional<model_materials::picture_scale> picture;
    if (SUIsValid(with.material) && !rules.colors_by_layer())
        picture = materials.picture_of(with.material);
    if (picture && with.is_own)
        *picture = {}; // its coordinates count pictures, those of a bare side inches
    const std::size_t material = materials.material_of(with.material, two_sided, picture.has_value());
    part& to = part_for(SUFaceToDrawingElement(face), material);
    const auto first = static_cast<std::uint32_t>(to.data.positions.size());
    for (const SUPoint3D& vertex : mesh.vertices) {
        to.data.positions.push_back(in_metres(vertex));
        box.include(to.data.positions.back());
    }
    // A face with a front and a back of its own has its back's triangles the other way round.
    const bool turned = !front && !two_sided;
    for (const SUVector3D& normal : mesh.normals)
        to.data.normals.push_back(turned ? gltf::unit_vector(-normal.x, -normal.y, -normal.z)
                                         : gltf::unit_vector(normal.x, normal.y, normal.z));
    if (picture)
        for (const SUPoint3D& uvq : mesh.coordinates(front))
            to.data.coordinates.push_back(place_in_picture(uvq, *picture));
    for (std::size_t i = 0; i + 2 < mesh.indices.size(); i += 3)
        for (const std::size_t k : {std::size_t{0}, std::size_t{turned ? 2U : 1U}, std::size_t{turned ? 1U : 2U}})
            to.data.indices.push_back(first + static_cast<std::uint32_t>(mesh.indices[i + k]));
    triangles += mesh.indices.size() / 3;
}

void mesh_parts::add_face(SUFaceRef face) {
    if (rules.is_left_out(SUFaceToDrawingElement(face), at))
        return;
    const face_mesh mesh(face);
    if (mesh.indices.empty() || !mesh.sound)
        return;
    const paint front = paint_of(face, true);
    const paint back = paint_of(face, false);
    if (SUIsValid(front.material) && SUIsValid(back.material) && !SUAreEqual(front.material, back.material)) {
        add_side(face, mesh, true, front, false);
        add_side(face, mesh, false, back, false);
        return;
    }
    // A bare side beside a painted one shows the other's paint.
    const bool shows_front = SUIsValid(front.material) || SUIsInvalid(back.material);
    add_side(face, mesh, shows_front, shows_front ? front : back, true);
}

std::uint32_t mesh_parts::end_of_line(part& to, SUVertexRef vertex) {
    const auto [entry, is_new] = line_ends.try_emplace({&to, vertex.ptr});
    if (is_new) {
        SUPoint3D position{};
        SUVertexGetPosition(vertex, &position);
        gltf::float3 place = in_metres(position);
        if (!gltf::is_finite(place))
            place = {};
        entry->second = static_cast<std::uint32_t>(to.data.positions.size());
        to.data.positions.push_back(place);
        box.include(place);
    }
    return entry->second;
}

void mesh_parts::add_edge(SUEdgeRef edge) {
    const SUDrawingElementRef element = SUEdgeToDrawingElement(edge);
    bool soft = false;
    SUEdgeGetSoft(edge, &soft);
    if (soft || rules.is_left_out(element, at))
        return;
    SUVertexRef start = SU_INVALID;
    SUVertexRef end = SU_INVALID;
    if (SUEdgeGetStartVertex(edge, &start) != SU_ERROR_NONE || SUEdgeGetEndVertex(edge, &end) != SU_ERROR_NONE)
        return;
    SULayerRef layer = SU_INVALID;
    SUDrawingElementGetLayer(element, &layer);
    part& to = edges[{0, layer.ptr, rules.is_hidden(element, at)}];
    to.layer = layer;
    const std::uint32_t first = end_of_line(to, start);
    to.data.indices.push_back(first);
    to.data.indices.push_back(end_of_line(to, end));
    ++lines;
}

gltf::json mesh_parts::put(gltf::glb_writer& to) {
    gltf::json primitives = gltf::json::array();
    const auto add = [&](const part_key& key, const part& from, gltf::primitive_mode mode) {
        gltf::json primitive = gltf::add_primitive(to, from.data, mode);
        gltf::json extras = gltf::json::object();
        primitive["material"] = mode == gltf::primitive_mode::lines ? materials.material_of_edges() : key.material;
        if (mode == gltf::primitive_mode::lines)
            extras["edges"] = true;
        if (!SUAreEqual(from.layer, rules.default_layer()))
            extras["layer"] = su_text(from.layer, SULayerGetName);
        if (key.hidden)
            extras["hidden"] = true;
        if (!extras.empty())
            primitive["extras"] = extras;
        primitives.push_back(std::move(primitive));
    };
    for (const auto& [key, from] : parts)
        add(key, from, gltf::primitive_mode::triangles);
    for (const auto& [key, from] : edges)
        add(key, from, gltf::primitive_mode::lines);
    return primitives;
}
