// In which order the model's textures get their ids.

#include "tessaline/materials/texture_preload.h"

#include "tessaline/model/handle_lists.h"

namespace {

void load_entity(SUTextureWriterRef writer, SUEntityRef entity) {
    long id = 0;
    SUTextureWriterLoadEntity(writer, entity, &id);
}

void load_list(SUTextureWriterRef writer, SUEntitiesRef entities) {
    long front_id = 0;
    long back_id = 0;
    for (const SUFaceRef face : all_handles(SUEntitiesGetNumFaces, SUEntitiesGetFaces, entities))
        SUTextureWriterLoadFace(writer, face, &front_id, &back_id);
    for (const SUComponentInstanceRef instance :
         all_handles(SUEntitiesGetNumInstances, SUEntitiesGetInstances, entities))
        load_entity(writer, SUComponentInstanceToEntity(instance));
    for (const SUGroupRef group : all_handles(SUEntitiesGetNumGroups, SUEntitiesGetGroups, entities)) {
        SUEntitiesRef content = SU_INVALID;
        SUGroupGetEntities(group, &content);
        load_list(writer, content);
    }
    for (const SUImageRef image : all_handles(SUEntitiesGetNumImages, SUEntitiesGetImages, entities))
        load_entity(writer, SUImageToEntity(image));
}

} // namespace

void preload_textures(SUModelRef model, SUTextureWriterRef writer) {
    SUEntitiesRef top = SU_INVALID;
    if (SUModelGetEntities(model, &top) != SU_ERROR_NONE)
        return;
    load_list(writer, top);
    for (const SUComponentDefinitionRef definition :
         all_handles(SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions, model)) {
        SUEntitiesRef entities = SU_INVALID;
        SUComponentDefinitionGetEntities(definition, &entities);
        load_list(writer, entities);
    }
}
