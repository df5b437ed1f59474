#pragma once

// Models built in memory behind handles, and short ways to ask them.

#include "sketchup/api/handles.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/link.h"

#include <string>
#include <utility>
#include <vector>

// A model behind a handle; closed at the end of its scope.
class test_model {
public:
    explicit test_model(sketchup::model_builder& builder) {
        auto built = builder.finish();
        skp::link(*built);
        model_ = built.get();
        ref = sketchup::api::adopt_model(std::move(built));
    }
    test_model(const test_model&) = delete;
    test_model& operator=(const test_model&) = delete;
    ~test_model() {
        if (SUIsValid(ref))
            SUModelRelease(&ref);
    }

    sketchup::model& model() { return *model_; }
    SUEntitiesRef root() { return sketchup::api::handle_of<SUEntitiesRef>(model_->root); }
    SUFaceRef face(sketchup::index at = 0) { return sketchup::api::handle_of<SUFaceRef>(model_->faces[at]); }
    SUEdgeRef edge(sketchup::index at = 0) { return sketchup::api::handle_of<SUEdgeRef>(model_->edges[at]); }
    SULayerRef layer(sketchup::index at = 0) { return sketchup::api::handle_of<SULayerRef>(model_->layers[at]); }
    SUMaterialRef material(sketchup::index at = 0) {
        return sketchup::api::handle_of<SUMaterialRef>(model_->materials[at]);
    }
    SUTextureRef texture(sketchup::index at = 0) {
        return sketchup::api::handle_of<SUTextureRef>(model_->textures[at]);
    }
    SUComponentDefinitionRef definition(sketchup::index at = 0) {
        return sketchup::api::handle_of<SUComponentDefinitionRef>(model_->definitions[at]);
    }
    SUAttributeDictionaryRef dictionary(sketchup::index at = 0) {
        return sketchup::api::handle_of<SUAttributeDictionaryRef>(model_->dictionaries[at]);
    }
    template<class Handle>
    Handle placement(sketchup::index at = 0) {
        return sketchup::api::handle_of<Handle>(model_->placements[at]);
    }

    SUModelRef ref = SU_INVALID;

private:
    sketchup::model* model_;
};

// A created string or typed value; released at the end of its scope.
struct test_string {
    test_string() { SUStringCreate(&ref); }
    test_string(const test_string&) = delete;
    test_string& operator=(const test_string&) = delete;
    ~test_string() { SUStringRelease(&ref); }
    std::string text() const {
        size_t length = 0;
        SUStringGetUTF8Length(ref, &length);
        std::string result(length, '\0');
        SUStringGetUTF8(ref, length, result.data(), &length);
        return result;
    }
    SUStringRef ref = SU_INVALID;
};

struct test_value {
    test_value() { SUTypedValueCreate(&ref); }
    test_value(const test_value&) = delete;
    test_value& operator=(const test_value&) = delete;
    ~test_value() { SUTypedValueRelease(&ref); }
    SUTypedValueType type() const {
        SUTypedValueType result = SUTypedValueType_Empty;
        SUTypedValueGetType(ref, &result);
        return result;
    }
    SUTypedValueRef ref = SU_INVALID;
};

// The text that a getter of names gives; the number of the result code in angle brackets if it fails.
template<class Handle>
std::string text_from(SUResult (*get)(Handle, SUStringRef*), Handle handle) {
    test_string name;
    const SUResult result = get(handle, &name.ref);
    return result == SU_ERROR_NONE ? name.text() : "<" + std::to_string(result) + ">";
}

// All items of a list, in its order.
template<class Item, class Owner>
std::vector<Item> all_of(SUResult (*number)(Owner, size_t*), SUResult (*get)(Owner, size_t, Item*, size_t*),
                         Owner owner) {
    size_t count = 0;
    number(owner, &count);
    std::vector<Item> items(count);
    get(owner, items.size(), items.data(), &count);
    items.resize(count);
    return items;
}

template<class Handle>
bool same(Handle a, Handle b) {
    return a.ptr && a.ptr == b.ptr;
}
