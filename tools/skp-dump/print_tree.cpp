#include "tools/skp-dump/prints.h"

#include "tools/model_opening/su_lists.h"
#include "tools/skp-dump/value_text.h"

#include <cstdio>

namespace {

void indent(int depth) {
    std::printf("%*s", 2 * depth, "");
}

void print_dictionary(SUAttributeDictionaryRef dictionary, int depth) {
    std::size_t count = 0;
    SUAttributeDictionaryGetNumKeys(dictionary, &count);
    std::vector<SUStringRef> keys(count, SUStringRef{});
    for (SUStringRef& key : keys)
        SUStringCreate(&key);
    if (count > 0)
        SUAttributeDictionaryGetKeys(dictionary, count, keys.data(), &count);
    indent(depth);
    std::printf("[%s]\n", su_text(dictionary, SUAttributeDictionaryGetName).c_str());
    SUTypedValueRef value = SU_INVALID;
    SUTypedValueCreate(&value);
    for (SUStringRef& key : keys) {
        std::size_t length = 0;
        SUStringGetUTF8Length(key, &length);
        std::string name(length, '\0');
        SUStringGetUTF8(key, length, name.data(), &length);
        SUStringRelease(&key);
        if (SUAttributeDictionaryGetValue(dictionary, name.c_str(), &value) != SU_ERROR_NONE)
            continue;
        indent(depth + 1);
        std::printf("%s = %s\n", name.c_str(), value_text(value).c_str());
    }
    SUTypedValueRelease(&value);
}

void print_attributes(SUEntityRef entity, int depth) {
    for (const SUAttributeDictionaryRef dictionary :
         su_list(entity, SUEntityGetNumAttributeDictionaries, SUEntityGetAttributeDictionaries))
        if (SUIsValid(dictionary))
            print_dictionary(dictionary, depth);
}

void print_placement(const char* kind, const std::string& name, const std::string& definition,
                     SUDrawingElementRef element, const SUTransformation& t, int depth) {
    SULayerRef layer = SU_INVALID;
    SUDrawingElementGetLayer(element, &layer);
    bool hidden = false;
    SUDrawingElementGetHidden(element, &hidden);
    SUMaterialRef material = SU_INVALID;
    indent(depth);
    std::printf("%s \"%s\"%s%s%s layer \"%s\"%s", kind, name.c_str(), definition.empty() ? "" : " of \"",
                definition.c_str(), definition.empty() ? "" : "\"", su_text(layer, SULayerGetName).c_str(),
                hidden ? " hidden" : "");
    if (SUDrawingElementGetMaterial(element, &material) == SU_ERROR_NONE)
        std::printf(" material \"%s\"", su_text(material, SUMaterialGetName).c_str());
    const double* m = t.values;
    std::printf(" x (%.6g, %.6g, %.6g) y (%.6g, %.6g, %.6g) z (%.6g, %.6g, %.6g) at (%.6g, %.6g, %.6g)", m[0], m[1],
                m[2], m[4], m[5], m[6], m[8], m[9], m[10], m[12], m[13], m[14]);
    if (m[15] != 1)
        std::printf(" weight %.6g", m[15]);
    std::puts("");
    print_attributes(SUDrawingElementToEntity(element), depth + 1);
}

std::size_t count_of(SUEntitiesRef entities, SUResult (*count)(SUEntitiesRef, std::size_t*)) {
    std::size_t result = 0;
    count(entities, &result);
    return result;
}

std::size_t points_of(SUOpeningRef opening) {
    std::size_t points = 0;
    SUOpeningGetNumPoints(opening, &points);
    return points;
}

// Faces are numbered from 0 in the order of the list.
void print_openings(SUEntitiesRef entities, int depth) {
    const std::vector<SUFaceRef> faces = su_list(entities, SUEntitiesGetNumFaces, SUEntitiesGetFaces);
    for (std::size_t i = 0; i < faces.size(); ++i)
        for (SUOpeningRef opening : su_list(faces[i], SUFaceGetNumOpenings, SUFaceGetOpenings)) {
            indent(depth);
            std::printf("opening of %zu points in face %zu\n", points_of(opening), i);
            SUOpeningRelease(&opening);
        }
}

void print_entities(SUEntitiesRef entities, int depth) {
    const std::size_t faces = count_of(entities, SUEntitiesGetNumFaces);
    const std::size_t planes = count_of(entities, SUEntitiesGetNumSectionPlanes);
    std::size_t edges = 0;
    SUEntitiesGetNumEdges(entities, false, &edges);
    indent(depth);
    std::printf("%zu faces, %zu edges, %zu section planes\n", faces, edges, planes);
    print_openings(entities, depth);
    for (const SUGroupRef group : su_list(entities, SUEntitiesGetNumGroups, SUEntitiesGetGroups)) {
        SUTransformation t = {};
        SUGroupGetTransform(group, &t);
        print_placement("group", su_text(group, SUGroupGetName), "", SUGroupToDrawingElement(group), t, depth);
        SUEntitiesRef inside = SU_INVALID;
        SUGroupGetEntities(group, &inside);
        print_entities(inside, depth + 1);
    }
    for (const SUComponentInstanceRef instance : su_list(entities, SUEntitiesGetNumInstances, SUEntitiesGetInstances)) {
        SUTransformation t = {};
        SUComponentInstanceGetTransform(instance, &t);
        SUComponentDefinitionRef definition = SU_INVALID;
        SUComponentInstanceGetDefinition(instance, &definition);
        print_placement("instance", su_text(instance, SUComponentInstanceGetName),
                        su_text(definition, SUComponentDefinitionGetName),
                        SUComponentInstanceToDrawingElement(instance), t, depth);
        print_attributes(SUComponentDefinitionToEntity(definition), depth + 1);
        SUEntitiesRef inside = SU_INVALID;
        SUComponentDefinitionGetEntities(definition, &inside);
        print_entities(inside, depth + 1);
    }
    for (const SUImageRef image : su_list(entities, SUEntitiesGetNumImages, SUEntitiesGetImages)) {
        SUTransformation t = {};
        SUImageGetTransform(image, &t);
        print_placement("image", su_text(image, SUImageGetFileName), "", SUImageToDrawingElement(image), t, depth);
    }
}

} // namespace

void print_tree(SUModelRef model) {
    std::puts("model");
    for (const SUAttributeDictionaryRef dictionary :
         su_list(model, SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries))
        print_dictionary(dictionary, 1);
    SUEntitiesRef entities = SU_INVALID;
    SUModelGetEntities(model, &entities);
    print_entities(entities, 1);
}
