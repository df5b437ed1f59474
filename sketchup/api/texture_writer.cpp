// The texture writer: which pictures a model needs, each under a number.

#include "image/encode_picture.h"
#include "platform/platform.h"
#include "sketchup/api/calls.h"
#include "sketchup/api/image_texture.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/texture_pixels.h"
#include "sketchup/api/writer_coordinates.h"
#include "sketchup/model/straighten_texture.h"
#include "sketchup/model/straightened_side.h"

namespace sketchup::api {
namespace {

long& distorted_id(texture_writer::face_ids& ids, face_side side) {
    return side == face_side::front ? ids.front : ids.back;
}

// The id under which a distorted side was loaded; 0 if it was not.
long id_of_distorted(const texture_writer& writer, const face& f, face_side side) {
    const auto found = writer.ids_of_distorted_face.find(&f);
    if (found == writer.ids_of_distorted_face.end())
        return 0;
    return side == face_side::front ? found->second.front : found->second.back;
}

long id_of(const texture_writer& writer, const texture& t) {
    const auto found = writer.id_of_texture.find(&t);
    return found == writer.id_of_texture.end() ? 0 : found->second;
}

long add(texture_writer& writer, const texture_writer::entry& entry) {
    writer.loaded.push_back(entry);
    return static_cast<long>(writer.loaded.size());
}

long load(texture_writer& writer, const texture& t) {
    long& id = writer.id_of_texture[&t];
    if (id == 0)
        id = add(writer, {&t, nullptr, face_side::front});
    return id;
}

// The id of a side, loaded now if need be; 0 if it has no texture.
long load(texture_writer& writer, const face& f, face_side side) {
    const texture* t = texture_of_side(*f.owner, f, side);
    if (!t)
        return 0;
    if (is_affine(mapping_of_side(*f.owner, f, side)))
        return load(writer, *t);
    long& id = distorted_id(writer.ids_of_distorted_face[&f], side);
    if (id == 0)
        id = add(writer, {t, &f, side});
    return id;
}

// The texture that an entity is painted with; null for kinds that the writer does not take.
const texture* texture_of_entity(const entity& e) {
    const model& m = *e.owner;
    index painted = no_index;
    switch (e.kind) {
    case entity_kind::image:
        return image_texture(static_cast<const placement&>(e));
    case entity_kind::group:
    case entity_kind::component_instance:
        painted = static_cast<const placement&>(e).material;
        break;
    case entity_kind::layer:
        painted = static_cast<const layer&>(e).material;
        break;
    default:
        return nullptr;
    }
    if (painted == no_index || m.materials[painted].texture == no_index)
        return nullptr;
    return &m.textures[m.materials[painted].texture];
}

const texture_writer::entry* entry_of(const texture_writer& writer, long id) {
    const bool given_out = id > 0 && static_cast<unsigned long>(id) <= writer.loaded.size();
    return given_out ? &writer.loaded[static_cast<std::size_t>(id) - 1] : nullptr;
}

// Writes the picture that belongs to the coordinates of a distorted side.
bool write_straightened(const texture_writer::entry& entry, const std::string& path) {
    if (image::format_of_name(path) == image::picture_format::unknown)
        return false;
    const image::picture_pyramid* shown = kept_pixels(*entry.texture);
    if (!shown)
        return false;
    const face& f = *entry.distorted_face;
    return image::write_picture(path, straighten_texture(*shown, *f.owner, f, entry.side));
}

} // namespace

side_coordinates coordinates_for_writer(const face& f, face_side side, const texture_writer* writer) {
    if (writer && id_of_distorted(*writer, f, side) != 0 && texture_of_side(*f.owner, f, side))
        return straightened_coordinates(*f.owner, f);
    return coordinates_of_side(*f.owner, f, side);
}

} // namespace sketchup::api

using namespace sketchup::api;
using sketchup::face_side;
using sketchup::texture;

SUResult SUTextureWriterCreate(SUTextureWriterRef* writer) {
    return create(writer, provider().texture_writers, [](texture_writer&) {});
}

SUResult SUTextureWriterRelease(SUTextureWriterRef* writer) {
    return release(writer, provider().texture_writers);
}

SUResult SUTextureWriterLoadEntity(SUTextureWriterRef writer, SUEntityRef entity, long* id) {
    texture_writer* w = object_of(writer);
    const sketchup::entity* e = object_of(entity);
    if (!w || !e)
        return SU_ERROR_INVALID_INPUT;
    if (!id)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return guarded([&] {
        const texture* found = texture_of_entity(*e);
        if (!found)
            return SU_ERROR_GENERIC;
        *id = load(*w, *found);
        return SU_ERROR_NONE;
    });
}

SUResult SUTextureWriterLoadFace(SUTextureWriterRef writer, SUFaceRef face, long* front_id, long* back_id) {
    texture_writer* w = object_of(writer);
    const sketchup::face* f = object_of(face);
    if (!w || !f)
        return SU_ERROR_INVALID_INPUT;
    const bool has_front = sketchup::texture_of_side(*f->owner, *f, face_side::front);
    const bool has_back = sketchup::texture_of_side(*f->owner, *f, face_side::back);
    if ((has_front && !front_id) || (has_back && !back_id))
        return SU_ERROR_NULL_POINTER_OUTPUT;
    if (!has_front && !has_back)
        return SU_ERROR_GENERIC;
    return guarded([&] {
        const long front = load(*w, *f, face_side::front);
        const long back = load(*w, *f, face_side::back);
        if (has_front)
            *front_id = front;
        if (has_back)
            *back_id = back;
        return SU_ERROR_NONE;
    });
}

SUResult SUTextureWriterGetNumTextures(SUTextureWriterRef writer, size_t* count) {
    return give(writer, count, [](const texture_writer& w) { return w.loaded.size(); });
}

SUResult SUTextureWriterWriteTexture(SUTextureWriterRef writer, long id, const char* path, bool /*reduce_size*/) {
    const texture_writer* w = object_of(writer);
    const texture_writer::entry* entry = w ? entry_of(*w, id) : nullptr;
    if (!entry)
        return SU_ERROR_INVALID_INPUT;
    if (!path)
        return SU_ERROR_NULL_POINTER_INPUT;
    return guarded([&] {
        const std::string own_path = platform::own_from_utf8(path);
        const bool written =
            entry->distorted_face ? write_straightened(*entry, own_path) : write_texture(*entry->texture, own_path);
        return written ? SU_ERROR_NONE : SU_ERROR_SERIALIZATION;
    });
}

SUResult SUTextureWriterIsTextureAffine(SUTextureWriterRef writer, long id, bool* is_affine) {
    const texture_writer* w = object_of(writer);
    const texture_writer::entry* entry = w ? entry_of(*w, id) : nullptr;
    if (!entry)
        return SU_ERROR_INVALID_INPUT;
    if (!is_affine)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    *is_affine = entry->distorted_face == nullptr;
    return SU_ERROR_NONE;
}

SUResult SUTextureWriterGetTextureIdForFace(SUTextureWriterRef writer, SUFaceRef face, bool front, long* id) {
    const texture_writer* w = object_of(writer);
    const sketchup::face* f = object_of(face);
    if (!w || !f)
        return SU_ERROR_INVALID_INPUT;
    if (!id)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const face_side side = front ? face_side::front : face_side::back;
    const texture* painted = sketchup::texture_of_side(*f->owner, *f, side);
    if (!painted)
        return SU_ERROR_GENERIC;
    const bool affine = sketchup::is_affine(sketchup::mapping_of_side(*f->owner, *f, side));
    const long found = affine ? id_of(*w, *painted) : id_of_distorted(*w, *f, side);
    if (found == 0)
        return SU_ERROR_GENERIC;
    *id = found;
    return SU_ERROR_NONE;
}

SUResult SUTextureWriterGetTextureIdForEntity(SUTextureWriterRef writer, SUEntityRef entity, long* id) {
    const texture_writer* w = object_of(writer);
    const sketchup::entity* e = object_of(entity);
    if (!w || !e)
        return SU_ERROR_INVALID_INPUT;
    if (!id)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const texture* painted = texture_of_entity(*e);
    const long found = painted ? id_of(*w, *painted) : 0;
    if (found == 0)
        return SU_ERROR_GENERIC;
    *id = found;
    return SU_ERROR_NONE;
}
