// How keys and values come out of an attribute dictionary.

#include "tessaline/model/dictionary_values.h"

#include "tessaline/model/model_text.h"

#include <cstddef>
#include <deque>

std::optional<bool> typed_value::boolean() const {
    bool answer = false;
    if (SUTypedValueGetBool(value, &answer) != SU_ERROR_NONE)
        return std::nullopt;
    return answer;
}

std::optional<double> typed_value::number() const {
    double answer = 0;
    if (SUTypedValueGetDouble(value, &answer) != SU_ERROR_NONE)
        return std::nullopt;
    return answer;
}

std::optional<std::string> typed_value::text() const {
    model_text string;
    if (SUTypedValueGetString(value, string.out()) != SU_ERROR_NONE)
        return std::nullopt;
    return string.utf8();
}

std::optional<fpt> typed_value::vector() const {
    double answer[3] = {};
    if (SUTypedValueGetVector3d(value, answer) != SU_ERROR_NONE)
        return std::nullopt;
    return fpt{answer[0], answer[1], answer[2]};
}

std::vector<std::string> keys_of(SUAttributeDictionaryRef dictionary) {
    std::size_t count = 0;
    SUAttributeDictionaryGetNumKeys(dictionary, &count);
    std::deque<model_text> texts(count);
    std::vector<SUStringRef> handles;
    for (model_text& text : texts)
        handles.push_back(*text.out());
    if (count != 0)
        SUAttributeDictionaryGetKeys(dictionary, count, handles.data(), &count);
    std::vector<std::string> keys;
    for (std::size_t at = 0; at < count && at < texts.size(); ++at)
        keys.push_back(texts[at].utf8());
    return keys;
}
