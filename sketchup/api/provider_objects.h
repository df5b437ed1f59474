#pragma once

// What the provider makes for a caller beside models. All of it comes from pools and goes back there, so that a helper
// for each face, a string for each name costs no allocation once the pools are warm.

#include "image/picture.h"
#include "sketchup/model/model.h"
#include "sketchup/model/texture_coordinates.h"
#include "sketchup/model/triangulate.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace sketchup::api {

// Stands where the structs of a model have their entity_kind, with numbers that no entity has.
enum class object_kind : unsigned char {
    released = 0x80,
    string,
    typed_value,
    uv_helper,
    mesh_helper,
    texture_writer,
    opening
};
static_assert(static_cast<unsigned char>(entity_kind::shadow_info) < 0x80);

struct provider_object {
    object_kind kind = object_kind::released;
};

struct string_object : provider_object {
    static constexpr object_kind live_kind = object_kind::string;
    std::string text; // UTF-8
    void clear() { text.clear(); }
};

struct typed_value_object : provider_object {
    static constexpr object_kind live_kind = object_kind::typed_value;
    typed_value value;
    std::vector<typed_value_object*> items; // handed out for an array; made when first asked for
    bool is_item = false;                   // owned by an array
    void clear() {
        value = {};
        items.clear();
        is_item = false;
    }
};

struct uv_helper : provider_object {
    static constexpr object_kind live_kind = object_kind::uv_helper;
    std::optional<side_coordinates> front; // none if the side was not asked for
    std::optional<side_coordinates> back;
    void clear() {
        front.reset();
        back.reset();
    }
};

struct mesh_helper : provider_object {
    static constexpr object_kind live_kind = object_kind::mesh_helper;
    const sketchup::face* face = nullptr;
    face_mesh mesh;
    std::optional<side_coordinates> front; // none if its coordinates were not asked for
    std::optional<side_coordinates> back;
    std::vector<vec3> normals; // one a vertex; empty until asked for
    void clear() {
        face = nullptr;
        mesh.clear();
        front.reset();
        back.reset();
        normals.clear();
    }
};

struct opening_object : provider_object {
    static constexpr object_kind live_kind = object_kind::opening;
    std::vector<vec3> points;
    void clear() { points.clear(); }
};

// The textures that a caller has loaded, by id. An id is a position in `loaded` plus 1.
struct texture_writer : provider_object {
    static constexpr object_kind live_kind = object_kind::texture_writer;
    struct entry {
        const sketchup::texture* texture = nullptr;
        const sketchup::face* distorted_face = nullptr; // null if the id stands for the picture itself
        face_side side = face_side::front;
    };
    struct face_ids {
        long front = 0; // 0: not loaded
        long back = 0;
    };
    std::vector<entry> loaded;
    std::unordered_map<const sketchup::texture*, long> id_of_texture;
    std::unordered_map<const sketchup::face*, face_ids> ids_of_distorted_face;
    void clear() {
        loaded.clear();
        id_of_texture.clear();
        ids_of_distorted_face.clear();
    }
};

// A texture that the caller made and that belongs to no model.
struct loose_texture : texture {
    image::picture pixels;
};

} // namespace sketchup::api
