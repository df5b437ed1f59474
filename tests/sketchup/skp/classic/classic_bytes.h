#pragma once

// Assembles classic files by hand: single values and tags, and a whole small model around what a test is about.

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace classic {

// Bytes that grow from left to right. Numbers are little-endian, as the machine's.
class assembler {
public:
    // Decides what an empty entity base looks like: nothing below 3, a null tag, from 5 on an id mask too.
    int entity_number = 3;
    bool wide = true;
    std::vector<std::uint8_t> bytes;

    assembler& u8(unsigned value) { return raw(static_cast<std::uint8_t>(value)); }
    assembler& u16(unsigned value) { return raw(static_cast<std::uint16_t>(value)); }
    assembler& u32(std::uint32_t value) { return raw(value); }
    assembler& f32(float value) { return raw(value); }
    assembler& f64(double value) { return raw(value); }
    assembler& v3(double x, double y, double z) { return f64(x).f64(y).f64(z); }
    assembler& zeros(std::size_t count) {
        bytes.insert(bytes.end(), count, 0);
        return *this;
    }
    assembler& characters(std::string_view text) {
        bytes.insert(bytes.end(), text.begin(), text.end());
        return *this;
    }
    // A string of fewer than 255 ASCII characters.
    assembler& text(std::string_view ascii) {
        if (!wide)
            return u8(static_cast<unsigned>(ascii.size())).characters(ascii);
        u8(0xFF).u16(0xFFFE).u8(static_cast<unsigned>(ascii.size()));
        for (const char c : ascii)
            u16(static_cast<unsigned char>(c));
        return *this;
    }
    assembler& append(const assembler& other) {
        bytes.insert(bytes.end(), other.bytes.begin(), other.bytes.end());
        return *this;
    }

    assembler& null() { return u16(0); }
    assembler& new_class(std::string_view name) {
        return u16(0xFFFF).u16(0).u16(static_cast<unsigned>(name.size())).characters(name);
    }
    assembler& new_of(unsigned class_slot) { return u16(0x8000 | class_slot); }
    assembler& ref(unsigned slot) { return u16(slot); }

    assembler& entity() { return zeros(entity_number < 3 ? 0 : entity_number < 5 ? 2 : 3); }
    // Of layout 9: no attributes, no material, visible, casting and receiving shadows, on the default layer.
    assembler& drawing() { return entity().drawing_behind_entity(); }
    assembler& drawing_behind_entity() { return null().u8(0).u8(1).u8(1).u8(0).u8(0).u8(0).null(); }

private:
    template<class T>
    assembler& raw(T value) {
        const std::size_t at = bytes.size();
        bytes.resize(at + sizeof(T));
        std::memcpy(bytes.data() + at, &value, sizeof(T));
        return *this;
    }
};

using numbers = std::vector<std::pair<std::string, std::uint32_t>>;

// The layout numbers of version 6.
numbers version_6_numbers();

// A whole file: a model with one layer and no scene, around the parts that a test fills in. Slots 1 and 2 are those of
// the version map, 3 and 4 the class and the object of the layer; the parts take theirs from 5 on, in the order that
// they stand in here.
struct small_model {
    explicit small_model(int entity_number = 3);

    std::string version = "{6.4.112}";
    numbers layout = version_6_numbers();
    assembler empty;          // has the width and the entity number of this model; start parts from a copy
    assembler root_base;      // drawing element of the root component
    assembler materials;      // count and objects
    assembler layer_material; // inline, behind name and visibility of the layer
    assembler definitions;    // count and objects
    assembler entities;       // count and objects
    assembler relationships;  // count and objects
    assembler active_section_plane;

    void set_number(const std::string& class_name, std::uint32_t number);
    std::vector<std::uint8_t> file() const;
};

// A definition's body from its component to its entity list: no materials, layers, definitions. The list (count and
// objects) stands between the two.
assembler definition_head(const small_model& around);
assembler definition_tail(const small_model& around, std::string_view name);

// A placement's body behind its tag up to the definition's tag, and from the transformation on.
assembler placement_head(const small_model& around);
assembler placement_tail(const small_model& around, std::string_view name);

} // namespace classic
