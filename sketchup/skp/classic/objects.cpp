// How objects behind tags are reached: what may stand at a place, how deep bodies nest, which function reads which
// class.

#include "sketchup/skp/classic/model_reader.h"

#include <string>

namespace skp {

model_reader::model_reader(std::shared_ptr<const std::vector<std::uint8_t>> file, archive& in, sketchup::model& m)
    : file_(std::move(file)), in_(in), m_(m), layout_(in.layout()) {}

// An object of one of the classes, new or known, or the null tag.
model_reader::object model_reader::ref(class_set accepted) {
    const object_tag tag = in_.next_tag();
    if (tag.what == object_class::none)
        return {};
    if (!accepted.contains(tag.what))
        fail_expected(accepted, tag.what);
    if (tag.is_new)
        read_object(tag);
    return {tag.what, in_.place_of(tag.slot)};
}

model_reader::object model_reader::required_ref(class_set accepted) {
    const object found = ref(accepted);
    if (found.is_null())
        fail_expected(accepted, object_class::none);
    return found;
}

// An element that belongs to one owner, so that its first mention stands there.
model_reader::object model_reader::introduced_here(object_class what) {
    const object_tag tag = in_.next_tag();
    if (tag.what != what)
        fail_expected(what, tag.what);
    if (!tag.is_new)
        in_.fail(std::string(name_of(what)) + " in slot " + std::to_string(tag.slot) + " belongs to something else");
    read_object(tag);
    return {tag.what, in_.place_of(tag.slot)};
}

std::uint32_t model_reader::list_count() {
    return in_.count(sizeof(std::uint16_t)); // an element is at least a tag
}

void model_reader::skip_list(class_set accepted) {
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i)
        ref(accepted);
}

} // namespace skp
