#pragma once

// The model's layers by number, by name and by handle.

#include "sketchup/SketchUpAPI.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// The layer of all that was put on no other; the model's own list has it too.
inline constexpr std::string_view default_layer_name = "Layer0";

class layer_table {
public:
    // Numbers the layer from 0 in the order of the calls. A later layer of the same name takes the name over.
    void add(SULayerRef layer);

    // The number of the layer of that name; -1 if the model has none.
    int index_of(const std::string& name) const;

    // The layer of that name, the last one if several have it; an invalid handle if the model has none.
    SULayerRef layer_named(const std::string& name) const;

    // The name of a layer, whether it was added or not. The handle is asked once; the reference stays valid until
    // clear(). An invalid handle has the empty name.
    const std::string& name_of(SULayerRef layer);

    const std::string& name_at(int index) const { return names.at(static_cast<std::size_t>(index)); }
    int size() const { return static_cast<int>(names.size()); }
    void clear();

private:
    std::vector<SULayerRef> layers;
    std::vector<std::string> names;
    std::unordered_map<std::string, int> index_by_name;
    std::unordered_map<const void*, std::string> name_by_handle; // nodes stay put, so references into it last
};
