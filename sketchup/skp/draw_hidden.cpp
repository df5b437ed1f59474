#include "sketchup/skp/draw_hidden.h"

#include <algorithm>

namespace skp {
namespace {

const sketchup::attribute* named(const std::vector<sketchup::attribute>& values, const char* name) {
    const auto found = std::ranges::find(values, name, &sketchup::attribute::key);
    return found == values.end() ? nullptr : &*found;
}

} // namespace

void add_draw_hidden(std::vector<sketchup::attribute>& options) {
    const sketchup::attribute* geometry = named(options, "DrawHiddenGeometry");
    const sketchup::attribute* objects = named(options, "DrawHiddenObjects");
    if (named(options, "DrawHidden") != nullptr || (geometry == nullptr && objects == nullptr))
        return;
    const auto is_on = [](const sketchup::attribute* a) {
        const bool* on = a != nullptr ? std::get_if<bool>(&a->value.data) : nullptr;
        return on != nullptr && *on;
    };
    options.push_back({"DrawHidden", {sketchup::value_code::boolean, is_on(geometry) || is_on(objects)}});
}

} // namespace skp
