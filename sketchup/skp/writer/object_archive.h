#pragma once

// The object tags of the classic container as a writer sees them: every class and every object takes the next slot, the
// first mention of an object writes its body, every later one its slot.

#include "sketchup/skp/writer/byte_sink.h"
#include "sketchup/skp/writer/classic_version_map.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace skp {

class object_archive : public byte_sink {
public:
    explicit object_archive(classic_version version) : version_(version) {}

    // The layout number of a class in the version being written, -1 if the version lacks it.
    int number(std::string_view class_name) const { return layout_number(class_name, version_); }

    // A wide string. text: UTF-8; a byte that is no UTF-8 becomes U+FFFD.
    void str(std::string_view text);

    void null() { u16(0); }

    // Mentions the object that `key` stands for: its slot if it was written before, else a tag and what `body` writes.
    // A null key writes the null tag. The slot is taken before the body, so the body may mention its own object.
    template<class Body>
    void object(std::string_view class_name, const void* key, Body body) {
        if (key == nullptr) {
            null();
            return;
        }
        if (const auto known = objects_.find(key); known != objects_.end()) {
            reference(known->second);
            return;
        }
        new_tag(class_name);
        objects_[key] = next_slot_++;
        body();
    }

    // From here on that key stands for another object, one that was not written yet.
    void forget(const void* key) { objects_.erase(key); }

    // An object that is mentioned only here.
    template<class Body>
    void object(std::string_view class_name, Body body) {
        new_tag(class_name);
        ++next_slot_;
        body();
    }

private:
    void reference(std::uint32_t slot);
    void new_tag(std::string_view class_name);

    classic_version version_;
    std::uint32_t next_slot_ = 3; // 1 and 2 are the version map's class and object
    std::unordered_map<std::string, std::uint32_t> classes_;
    std::unordered_map<const void*, std::uint32_t> objects_;
};

} // namespace skp
