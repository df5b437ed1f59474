#include "tools/skp_glb/attributes_json.h"

#include "tools/model_opening/su_lists.h"

#include <cmath>

namespace {

using gltf::json;

constexpr int deepest = 32; // arrays in arrays, dictionaries in dictionaries; what lies deeper is null

json value_json(SUTypedValueRef value, int depth);

json number_json(double number) {
    return std::isfinite(number) ? json(number) : json(nullptr);
}

json array_json(SUTypedValueRef value, int depth) {
    json result = json::array();
    if (depth < deepest)
        for (const SUTypedValueRef item : su_list(value, SUTypedValueGetNumArrayItems, SUTypedValueGetArrayItems))
            result.push_back(value_json(item, depth + 1));
    return result;
}

template<class Number>
Number number_of(SUTypedValueRef value, SUResult (*get)(SUTypedValueRef, Number*)) {
    Number number{};
    get(value, &number);
    return number;
}

json value_json(SUTypedValueRef value, int depth) {
    enum SUTypedValueType type = SUTypedValueType_Empty;
    SUTypedValueGetType(value, &type);
    switch (type) {
    case SUTypedValueType_Byte:
        return static_cast<int>(number_of(value, SUTypedValueGetByte));
    case SUTypedValueType_Short:
        return number_of(value, SUTypedValueGetInt16);
    case SUTypedValueType_Int32:
        return number_of(value, SUTypedValueGetInt32);
    case SUTypedValueType_Float:
        return number_json(double{number_of(value, SUTypedValueGetFloat)});
    case SUTypedValueType_Double:
        return number_json(number_of(value, SUTypedValueGetDouble));
    case SUTypedValueType_Bool:
        return number_of(value, SUTypedValueGetBool);
    case SUTypedValueType_Color: {
        const SUColor color = number_of(value, SUTypedValueGetColor);
        return {color.red, color.green, color.blue, color.alpha};
    }
    case SUTypedValueType_Time:
        return number_of(value, SUTypedValueGetTime);
    case SUTypedValueType_String:
        return su_text(value, SUTypedValueGetString);
    case SUTypedValueType_Vector3D: {
        double v[3] = {};
        SUTypedValueGetVector3d(value, v);
        return {number_json(v[0]), number_json(v[1]), number_json(v[2])};
    }
    case SUTypedValueType_Array:
        return array_json(value, depth);
    default:
        return nullptr;
    }
}

std::vector<std::string> keys_of(SUAttributeDictionaryRef dictionary) {
    std::size_t count = 0;
    SUAttributeDictionaryGetNumKeys(dictionary, &count);
    std::vector<SUStringRef> handles(count, SUStringRef{});
    for (SUStringRef& handle : handles)
        SUStringCreate(&handle);
    if (count > 0)
        SUAttributeDictionaryGetKeys(dictionary, count, handles.data(), &count);
    std::vector<std::string> keys;
    for (SUStringRef& handle : handles) {
        std::size_t length = 0;
        SUStringGetUTF8Length(handle, &length);
        std::string& key = keys.emplace_back(length, '\0');
        SUStringGetUTF8(handle, length, key.data(), &length);
        SUStringRelease(&handle);
    }
    return keys;
}

json dictionaries_json(const std::vector<SUAttributeDictionaryRef>& dictionaries, int depth);

json dictionary_json(SUAttributeDictionaryRef dictionary, int depth) {
    json result = json::object();
    SUTypedValueRef value = SU_INVALID;
    SUTypedValueCreate(&value);
    for (const std::string& key : keys_of(dictionary))
        if (SUAttributeDictionaryGetValue(dictionary, key.c_str(), &value) == SU_ERROR_NONE)
            result[key] = value_json(value, 0);
    SUTypedValueRelease(&value);
    if (depth < deepest) {
        const json inside =
            dictionaries_json(su_list(SUAttributeDictionaryToEntity(dictionary), SUEntityGetNumAttributeDictionaries,
                                      SUEntityGetAttributeDictionaries),
                              depth + 1);
        if (!inside.is_null())
            result.update(inside);
    }
    return result;
}

json dictionaries_json(const std::vector<SUAttributeDictionaryRef>& dictionaries, int depth) {
    json result;
    for (const SUAttributeDictionaryRef dictionary : dictionaries)
        if (SUIsValid(dictionary))
            result[su_text(dictionary, SUAttributeDictionaryGetName)] = dictionary_json(dictionary, depth);
    return result;
}

} // namespace

json attributes_json(SUEntityRef entity) {
    return dictionaries_json(su_list(entity, SUEntityGetNumAttributeDictionaries, SUEntityGetAttributeDictionaries), 0);
}

json attributes_json(SUModelRef model) {
    return dictionaries_json(su_list(model, SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries), 0);
}
