// Opens any bytes as a model and touches what came of it.

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto m = skp::read_model(std::vector<std::uint8_t>(data, data + size));
        for (const sketchup::edge& e : m->edges)
            if (m->vertices.at(e.start).owner != m.get() || m->vertices.at(e.end).owner != m.get())
                std::abort();
        for (const sketchup::placement& p : m->placements)
            if (m->definitions.at(p.definition).id == 0 || m->layers.at(p.layer).id == 0)
                std::abort();
        for (const sketchup::picture& p : m->pictures)
            p.load();
    } catch (const skp::format_error&) {
        return 0;
    }
    return 0;
}
