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
    object_tag next_tag() {
        const std::uint16_t tag = u16();
        if (tag == null_tag)
            return {};
        if (tag < long_tag)
            return reference(tag);
        if (tag != new_class_tag && tag != long_tag)
            return object_of_class_slot(tag & ~std::uint32_t{short_class_bit});
        return tag == long_tag ? long_tagged() : object_of_new_class();
    }

    // Where the object of a slot is kept: a number that means something to the reader of its class alone.
    std::uint32_t place_of(std::uint32_t slot) const { return slots_[slot].place; }
    void set_place(std::uint32_t slot, std::uint32_t place) { slots_[slot].place = place; }

private:
    struct slot_entry {
        object_class what = object_class::none;
        bool is_class = false;
        std::uint32_t place = 0xFFFFFFFF;
    };

    static constexpr std::uint16_t null_tag = 0;
    static constexpr std::uint16_t long_tag = 0x7FFF; // a number of 32 bits follows
    static constexpr std::uint16_t new_class_tag = 0xFFFF;
    static constexpr std::uint16_t short_class_bit = 0x8000;
    static constexpr std::uint32_t long_class_bit = 0x80000000;

    std::uint32_t take_slot(object_class what, bool is_class) {
        slots_.push_back({what, is_class});
        return static_cast<std::uint32_t>(slots_.size() - 1);
    }
    object_class read_class_name();
    object_tag object_of_new_class();
    object_tag new_object(object_class what) { return {what, true, take_slot(what, false)}; }
    object_tag long_tagged() {
        const std::uint32_t number = u32();
        return (number & long_class_bit) != 0 ? object_of_class_slot(number & ~long_class_bit) : reference(number);
    }
    object_tag object_of_class_slot(std::uint32_t number) {
        require_slot(number, true);
        return new_object(slots_[number].what);
    }
    object_tag reference(std::uint32_t number) {
        require_slot(number, false);
        return {slots_[number].what, false, number};
    }
    void require_slot(std::uint32_t number, bool is_class) const {
        if (number == 0 || number >= slots_.size() || slots_[number].is_class != is_class) [[unlikely]]
            refuse_slot(number);
    }
    [[noreturn]] void refuse_slot(std::uint32_t number) const;

    static constexpr std::uint64_t free_array_elements = 65536;

    bool wide_;
    std::uint64_t array_elements_left_;
    layout_numbers layout_;
    std::vector<slot_entry> slots_{slot_entry{}}; // numbering begins at 1
};

} // namespace skp
