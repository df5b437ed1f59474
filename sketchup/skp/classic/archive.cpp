#include "sketchup/skp/classic/archive.h"

#include "sketchup/skp/classic/text.h"

#include <string_view>

namespace skp {
namespace {

constexpr std::uint16_t null_tag = 0;
constexpr std::uint16_t new_class_tag = 0xFFFF;
constexpr std::uint16_t long_tag = 0x7FFF;
constexpr std::uint16_t short_class_bit = 0x8000;
constexpr std::uint32_t long_class_bit = 0x80000000;
constexpr std::string_view end_of_version_map = "End-Of-Version-Map";

} // namespace

std::string archive::text() {
    const stored_text stored = read_stored_text(*this);
    if (stored.wide != wide_)
        fail(stored.wide ? "wide string in a file of narrow ones" : "narrow string in a file of wide ones");
    return utf8_from(stored);
}

void archive::spend_array_elements(std::uint32_t count) {
    if (count > array_elements_left_)
        fail("arrays of more elements than a file of this size holds");
    array_elements_left_ -= count;
}

void archive::read_version_map() {
    set_where("CVersionMap");
    if (next_tag().what != object_class::version_map)
        fail("no version map");
    for (;;) {
        const std::string name = text();
        const std::uint32_t number = u32();
        if (name == end_of_version_map)
            return;
        layout_.note(name, number);
    }
}

object_tag archive::next_tag() {
    const std::uint16_t tag = u16();
    if (tag == null_tag)
        return {};
    if (tag == new_class_tag) {
        skip(sizeof(std::uint16_t)); // a layout number that files saved for older programs leave wrong; the map has the
                                     // right one
        const object_class what = read_class_name();
        take_slot(what, true);
        return new_object(what);
    }
    if (tag == long_tag) {
        const std::uint32_t number = u32();
        return (number & long_class_bit) != 0 ? object_of_class_slot(number & ~long_class_bit) : reference(number);
    }
    if ((tag & short_class_bit) != 0)
        return object_of_class_slot(tag & ~std::uint32_t{short_class_bit});
    return reference(tag);
}

object_class archive::read_class_name() {
    const std::span<const std::uint8_t> characters = bytes(u16());
    const std::string name(characters.begin(), characters.end());
    const object_class what = class_named(name);
    if (what == object_class::none)
        fail("unknown class \"" + name + "\"");
    return what;
}

std::uint32_t archive::take_slot(object_class what, bool is_class) {
    slots_.push_back({what, is_class});
    return static_cast<std::uint32_t>(slots_.size() - 1);
}

object_tag archive::new_object(object_class what) {
    return {what, true, take_slot(what, false)};
}

object_tag archive::object_of_class_slot(std::uint32_t number) {
    require_slot(number, true);
    return new_object(slots_[number].what);
}

object_tag archive::reference(std::uint32_t number) {
    require_slot(number, false);
    return {slots_[number].what, false, number};
}

void archive::require_slot(std::uint32_t number, bool is_class) const {
    if (number == 0 || number >= slots_.size())
        fail("slot " + std::to_string(number) + " of " + std::to_string(slots_.size() - 1) + " is named");
    if (slots_[number].is_class != is_class)
        fail("slot " + std::to_string(number) + " holds " + (is_class ? "no class" : "a class"));
}

} // namespace skp
