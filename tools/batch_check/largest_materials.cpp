#include "tools/batch_check/largest_materials.h"

#include <algorithm>

namespace batch_check {
namespace {

std::string name_of(const declared_material& material) {
    constexpr std::string_view ending = ".OrnMaterial";
    std::string name = material.name;
    if (name.ends_with(ending))
        name.resize(name.size() - ending.size());
    constexpr std::size_t most_bytes = 255; // a longer name is that of no file
    return name.size() > most_bytes ? name.substr(0, most_bytes) + "..." : name;
}

} // namespace

std::vector<shown_material> largest_materials(const stream_facts& stream, std::size_t most) {
    std::vector<const declared_material*> all;
    for (const declared_material& material : stream.materials)
        if (material.triangles > 0)
            all.push_back(&material);
    const auto more = [](const declared_material* a, const declared_material* b) {
        return a->triangles != b->triangles ? a->triangles > b->triangles : a->name < b->name;
    };
    most = std::min(most, all.size());
    std::partial_sort(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(most), all.end(), more);
    std::vector<shown_material> largest;
    for (std::size_t i = 0; i < most; ++i)
        largest.push_back({name_of(*all[i]), all[i]->triangles});
    return largest;
}

} // namespace batch_check
