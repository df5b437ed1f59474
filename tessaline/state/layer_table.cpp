// Which number, name and handle belong to one layer.

#include "tessaline/state/layer_table.h"

#include "tessaline/model/model_text.h"

void layer_table::add(SULayerRef layer) {
    const std::string& name = name_of(layer);
    index_by_name[name] = size();
    layers.push_back(layer);
    names.push_back(name);
}

int layer_table::index_of(const std::string& name) const {
    const auto found = index_by_name.find(name);
    return found == index_by_name.end() ? -1 : found->second;
}

SULayerRef layer_table::layer_named(const std::string& name) const {
    const int index = index_of(name);
    return index < 0 ? SULayerRef SU_INVALID : layers[static_cast<std::size_t>(index)];
}

const std::string& layer_table::name_of(SULayerRef layer) {
    const auto [entry, is_new] = name_by_handle.try_emplace(layer.ptr);
    if (is_new && SUIsValid(layer))
        entry->second = name_by(SULayerGetName, layer);
    return entry->second;
}

void layer_table::clear() {
    layers.clear();
    names.clear();
    index_by_name.clear();
    name_by_handle.clear();
}
