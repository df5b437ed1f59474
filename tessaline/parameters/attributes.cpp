// How the values of attribute dictionaries become text, the attribute list of the run, and settings.

#include "tessaline/parameters/attributes.h"

#include "qlw/qlw_globals.h"
#include "qlw/text_format.h"
#include "qlw/text_numbers.h"
#include "tessaline/model/dictionary_values.h"
#include "tessaline/model/handle_lists.h"
#include "tessaline/model/model_text.h"
#include "tessaline/state/run_state.h"

namespace {

// What one of the interface's getters gives; the zero of the type if it fails.
template<class Value>
Value got(SUResult (*getter)(SUTypedValueRef, Value*), SUTypedValueRef value) {
    Value result{};
    getter(value, &result);
    return result;
}

template<class... Arguments>
std::string formatted(std::string_view format, const Arguments&... arguments) {
    return format_text(format, arguments...).value_or(std::string());
}

std::string color_text(const SUColor& color) {
    return formatted("(%d, %d, %d, %d)", color.red, color.green, color.blue, color.alpha);
}

std::string string_text(SUTypedValueRef value) {
    model_text text;
    SUTypedValueGetString(value, text.out());
    return text.utf8();
}

} // namespace

std::string attribute_text(SUTypedValueRef value) {
    SUTypedValueType type = SUTypedValueType_Empty;
    SUTypedValueGetType(value, &type);
    switch (type) {
    case SUTypedValueType_Byte:
        return formatted("%c", got(SUTypedValueGetByte, value));
    case SUTypedValueType_Short:
        return formatted("%d", got(SUTypedValueGetInt16, value));
    case SUTypedValueType_Int32:
        return formatted("%d", got(SUTypedValueGetInt32, value));
    case SUTypedValueType_Float:
        return formatted("%f", static_cast<double>(got(SUTypedValueGetFloat, value)));
    case SUTypedValueType_Double:
        return formatted("%f", got(SUTypedValueGetDouble, value));
    case SUTypedValueType_Bool:
        return formatted("%d", got(SUTypedValueGetBool, value));
    case SUTypedValueType_Color:
        return color_text(got(SUTypedValueGetColor, value));
    case SUTypedValueType_String:
        return string_text(value);
    default:
        return {};
    }
}

void read_attributes(SUEntityRef entity) {
    attribute_list.clear();
    for (const SUAttributeDictionaryRef dictionary :
         all_handles(SUEntityGetNumAttributeDictionaries, SUEntityGetAttributeDictionaries, entity)) {
        if (SUIsInvalid(dictionary))
            continue;
        const std::string name = name_by(SUAttributeDictionaryGetName, dictionary);
        for (const std::string& key : keys_of(dictionary)) {
            typed_value value;
            SUAttributeDictionaryGetValue(dictionary, key.c_str(), value.out());
            add_attribute(name, key, value.get());
        }
    }
}

void add_attribute(std::string_view dictionary, std::string_view key, SUTypedValueRef value) {
    attribute_list.push_back({std::string(dictionary), std::string(key), attribute_text(value)});
}

void set_global_from_value(const std::string& key, SUTypedValueRef value) {
    const std::string text = attribute_text(value);
    switch (key.empty() ? '\0' : key.front()) {
    case 's':
        set_global_string(key, text);
        break;
    case 'b':
        set_global_bool(key, decimal_value(text) != 0);
        break;
    case 'i':
        set_global_int(key, decimal_value(text));
        break;
    case 'r':
        set_global_double(key, double_value(text));
        break;
    default:
        break;
    }
}

bool text_is_true(std::string_view text) {
    return text == "true" || text == "1";
}
