// Layers and the folders that hold them.

#include "sketchup/skp/modern/model_data.h"
#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

#include <utility>

namespace skp::modern {

// 15001. The first layer is the default one, which is always there.
void model_data_reader::read_layers(byte_cursor list) {
    const std::size_t count = count_of(list, tag::layer);
    layers_.reset(count);
    m_.layers.reserve(count);
    for (const record& r : records(list))
        if (r.tag == tag::layer)
            read_layer(r.payload);
    if (m_.layers.empty()) {
        sketchup::layer& l = m_.layers.emplace_back();
        l.id = m_.give_id();
        l.name = "Layer0";
    }
}

// 15500
void model_data_reader::read_layer(byte_cursor in) {
    in.set_where("layer");
    sketchup::layer l;
    l.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        switch (r.tag) {
        case tag::entity:
            read_entity(value, l);
            break;
        case tag::layer_name:
            l.name = text_in(value);
            break;
        case tag::layer_hidden:
            l.hidden = value.boolean();
            break;
        case tag::layer_material:
            if (const auto material = descend(value, {tag::material}))
                l.material = read_material(*material);
            break;
        case tag::layer_page_behavior:
            l.page_behavior = value.u32();
            break;
        }
    }
    layers_.insert(static_cast<std::uint64_t>(l.persistent_id), static_cast<index>(m_.layers.size()));
    m_.layers.push_back(std::move(l));
}

// 16000. place: which of the model's folders this is; no_index for the root, which is none. A layer's own visibility
// stays as it is stored: whoever asks for it looks at the folders above, too.
void model_data_reader::read_folder(byte_cursor in, index place, int depth) {
    in.set_where("layer folder");
    if (depth > deepest_containers)
        in.fail("folders nest deeper than " + std::to_string(deepest_containers));
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        if (r.tag == tag::layer_folder_folders) {
            for (const record& folder : records(value)) {
                if (folder.tag != tag::layer_folder)
                    continue;
                const auto inner = static_cast<index>(m_.layer_folders.size());
                m_.layer_folders.emplace_back().parent = place;
                read_folder(folder.payload, inner, depth + 1);
            }
        } else if (place == sketchup::no_index) {
            continue;
        } else if (r.tag == tag::layer_folder_name) {
            m_.layer_folders[place].name = text_in(value);
        } else if (r.tag == tag::layer_folder_hidden) {
            m_.layer_folders[place].hidden = value.boolean();
        } else if (r.tag == tag::layer_folder_layers) {
            for_each_id(value, [this, place](std::uint64_t id) {
                const index layer = layers_.find(id);
                if (layer != sketchup::no_index && m_.layers[layer].folder == sketchup::no_index)
                    m_.layers[layer].folder = place;
            });
        }
    }
}

} // namespace skp::modern
