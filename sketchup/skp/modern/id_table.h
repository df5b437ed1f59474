#pragma once

// Finds an element by the id that the file gives it. Open addressing in one block, since a model looks up millions.

#include "sketchup/model/model.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace skp::modern {

class id_table {
public:
    // Forgets all and makes room for count elements. Costs count steps, however large the table was before.
    void reset(std::size_t count) {
        const std::size_t slots = std::bit_ceil(2 * count + 1); // at most half full, so that runs stay short
        slots_.assign(slots, slot{});
        mask_ = slots - 1;
        room_ = count;
    }

    // The first element of an id keeps it. The id 0 and elements beyond the number reserved are not kept.
    void insert(std::uint64_t id, sketchup::index place) {
        if (id == 0 || room_ == 0)
            return;
        slot& s = slots_[find_slot(id)];
        if (s.id == id)
            return;
        s = {id, place};
        --room_;
    }

    // no_index for an unknown id.
    sketchup::index find(std::uint64_t id) const {
        if (id == 0 || slots_.empty())
            return sketchup::no_index;
        return slots_[find_slot(id)].place;
    }

private:
    struct slot {
        std::uint64_t id = 0;
        sketchup::index place = sketchup::no_index;
    };

    // Neighbouring ids are the rule. Multiplying by 2^64 / golden ratio scatters them; the high bits are the best.
    std::size_t find_slot(std::uint64_t id) const {
        const std::uint64_t scattered = id * 0x9E3779B97F4A7C15u;
        std::size_t i = static_cast<std::size_t>(scattered ^ (scattered >> 32)) & mask_;
        while (slots_[i].id != 0 && slots_[i].id != id)
            i = (i + 1) & mask_;
        return i;
    }

    std::vector<slot> slots_;
    std::size_t mask_ = 0;
    std::size_t room_ = 0;
};

} // namespace skp::modern
