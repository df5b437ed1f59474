#include "sketchup/skp/classic/archive.h"

#include "sketchup/skp/classic/text.h"

#include <string_view>

namespace skp {
namespace {

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

object_class archive::read_class_name() {
    const std::span<const std::uint8_t> characters = bytes(u16());
    const std::string name(characters.begin(), characters.end());
    const object_class what = class_named(name);
    if (what == object_class::none)
        fail("unknown class \"" + name + "\"");
    return what;
}

object_tag archive::object_of_new_class() {
    skip(sizeof(std::uint16_t)); // a layout number that files saved for older programs leave wrong; the map has the
                                 // right one
    const object_class what = read_class_name();
    take_slot(what, true);
    return new_object(what);
}

void archive::refuse_slot(std::uint32_t number) const {
    if (number == 0 || number >= slots_.size())
        fail("slot " + std::to_string(number) + " of " + std::to_string(slots_.size() - 1) + " is named");
    fail("slot " + std::to_string(number) + " holds " + (slots_[number].is_class ? "a class" : "no class"));
}

} // namespace skp
