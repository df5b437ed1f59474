#pragma once

// The object graph under a classic file: strings of one width, tags that introduce or repeat objects, and the one
// numbering of classes and objects that the tags use.

#include "sketchup/skp/byte_cursor.h"
#include "sketchup/skp/classic/layout_numbers.h"
#include "sketchup/skp/classic/object_class.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace skp {

// What stands at a place where an object is due.
struct object_tag {
    object_class what = object_class::none; // none: the null tag
    bool is_new = false;                    // the object's body follows
    std::uint32_t slot = 0;
};

class archive : public byte_cursor {
public:
    // bytes: what is to be read; base: the offset of the first of them in the file. wide: how all strings must be
    // stored.
    archive(std::span<const std::uint8_t> bytes, std::uint64_t base, bool wide)
        : byte_cursor(bytes, base), wide_(wide), array_elements_left_(free_array_elements + bytes.size() / 4) {}

    // A string as UTF-8. Fails if it is stored in the other width: no writer mixes them.
    std::string text();

    // Takes that many elements of attribute arrays from what the file may hold. In memory an element is some hundred
    // times its smallest form in the file, a single byte; numbers take five bytes or more there. So a file may have one
    // element for every four bytes, beside as many as never matter. Fails if it asks for more.
    void spend_array_elements(std::uint32_t count);

    // Reads the version map with its tag; its class and itself take the slots 1 and 2.
    void read_version_map();
    const layout_numbers& layout() const { return layout_; }

    // Reads a tag; a new object takes its slot at once, so that its body may refer to it. Fails on an unknown class and
    // on a number that is not yet given.
    object_tag next_tag();

    // Where the object of a slot is kept: a number that means something to the reader of its class alone.
    std::uint32_t place_of(std::uint32_t slot) const { return slots_[slot].place; }
    void set_place(std::uint32_t slot, std::uint32_t place) { slots_[slot].place = place; }

private:
    struct slot_entry {
        object_class what = object_class::none;
        bool is_class = false;
        std::uint32_t place = 0xFFFFFFFF;
    };

    std::uint32_t take_slot(object_class what, bool is_class);
    object_class read_class_name();
    object_tag new_object(object_class what);
    object_tag object_of_class_slot(std::uint32_t number);
    object_tag reference(std::uint32_t number);
    void require_slot(std::uint32_t number, bool is_class) const;

    static constexpr std::uint64_t free_array_elements = 65536;

    bool wide_;
    std::uint64_t array_elements_left_;
    layout_numbers layout_;
    std::vector<slot_entry> slots_{slot_entry{}}; // numbering begins at 1
};

} // namespace skp
