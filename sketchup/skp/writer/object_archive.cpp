#include "sketchup/skp/writer/object_archive.h"

#include "sketchup/skp/text_encoding.h"

#include <stdexcept>

namespace skp {

namespace {

constexpr std::uint32_t first_long_slot = 0x7FFF; // from here on a slot takes the long form
constexpr std::uint16_t long_form = 0x7FFF;
constexpr std::uint16_t new_class = 0xFFFF;

} // namespace

void object_archive::str(std::string_view text) {
    const std::u16string units = utf16_from_utf8(text);
    u8(0xFF);
    u16(0xFFFE);
    if (units.size() < 0xFF) {
        u8(static_cast<std::uint8_t>(units.size()));
    } else {
        u8(0xFF);
        if (units.size() < 0xFFFF) {
            u16(static_cast<std::uint16_t>(units.size()));
        } else {
            u16(0xFFFF);
            size(units.size());
        }
    }
    for (const char16_t unit : units)
        u16(unit);
}

void object_archive::reference(std::uint32_t slot) {
    if (slot < first_long_slot) {
        u16(static_cast<std::uint16_t>(slot));
    } else {
        u16(long_form);
        u32(slot);
    }
}

void object_archive::new_tag(std::string_view class_name) {
    const auto [known, is_new] = classes_.try_emplace(std::string(class_name), next_slot_);
    if (!is_new) {
        const std::uint32_t slot = known->second;
        if (slot < first_long_slot) {
            u16(static_cast<std::uint16_t>(slot | 0x8000U));
        } else {
            u16(long_form);
            u32(slot | 0x80000000U);
        }
        return;
    }
    const int schema = number(class_name);
    if (schema < 0)
        throw std::invalid_argument("the version has no " + std::string(class_name));
    ++next_slot_;
    u16(new_class);
    u16(static_cast<std::uint16_t>(schema));
    u16(static_cast<std::uint16_t>(class_name.size()));
    raw(class_name);
}

} // namespace skp
