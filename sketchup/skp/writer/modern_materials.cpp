// Materials and layers in the archive container; what a material looks like stands in a document beside.

#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"
#include "sketchup/skp/writer/written_lists.h"

#include <vector>

namespace skp {

namespace tag = modern::tag;

using sketchup::index;
using sketchup::no_index;

namespace {

constexpr std::uint32_t usual_jpeg_quality = 70; // of a picture that does not say

void write_material(modern_output& o, const sketchup::material& m, std::uint64_t id, const std::string& folder) {
    record_sink& out = o.out;
    sketchup::entity base(sketchup::entity_kind::material); // the dictionaries stand in the document
    out.record(tag::material, [&] {
        write_entity(o, base, id);
        out.text(tag::material_folder, folder);
        out.boolean(tag::material_private, m.is_private);
        out.empty(13003);
        if (m.texture != no_index && o.model.textures[m.texture].picture != no_index) {
            const std::uint32_t quality = o.model.pictures[o.model.textures[m.texture].picture].quality;
            out.u32(tag::material_jpeg_quality, quality == 0 ? usual_jpeg_quality : quality);
        }
    });
}

void write_layer(modern_output& o, index layer) {
    record_sink& out = o.out;
    const sketchup::layer& l = o.model.layers[layer];
    out.record(tag::layer, [&] {
        write_entity(o, l, o.ids.of(&l));
        out.text(tag::layer_name, l.name);
        out.boolean(tag::layer_hidden, l.hidden);
        out.record(tag::layer_material, [&] {
            if (l.material == no_index)
                write_material(o, plain_layer_material(l), o.ids.fresh(), o.files.folder_of_layer(layer));
            else
                write_material(o, o.model.materials[l.material], o.ids.of(&o.model.materials[l.material]),
                               o.files.folder(l.material));
        });
        out.u32(tag::layer_page_behavior, l.page_behavior);
    });
}

// folder: no_index for the root, which has no name and lists no layers.
void write_folder(modern_output& o, index folder) {
    record_sink& out = o.out;
    const sketchup::model& m = o.model;
    const bool is_root = folder == no_index;
    std::vector<std::uint64_t> layers;
    for (const sketchup::layer& l : m.layers)
        if (!is_root && l.folder == folder)
            layers.push_back(o.ids.of(&l));
    out.record(tag::layer_folder, [&] {
        if (!is_root)
            write_entity(o, sketchup::entity(sketchup::entity_kind::layer), o.ids.of(&m.layer_folders[folder]));
        out.text(tag::layer_folder_name, is_root ? std::string() : m.layer_folders[folder].name);
        out.record(tag::layer_folder_folders, [&] {
            for (index i = 0; i < m.layer_folders.size(); ++i)
                if (m.layer_folders[i].parent == folder)
                    write_folder(o, i);
        });
        out.ids(tag::layer_folder_layers, layers);
        out.boolean(tag::layer_folder_hidden, !is_root && m.layer_folders[folder].hidden);
        out.boolean(tag::layer_folder_expanded, false);
    });
}

} // namespace

void write_materials(modern_output& o) {
    o.out.record(tag::material_manager, [&] {
        o.out.record(tag::material_list, [&] {
            for (const index material : materials_of_list(o.model)) {
                const sketchup::material& m = o.model.materials[material];
                write_material(o, m, o.ids.of(&m), o.files.folder(material));
            }
        });
    });
}

void write_layers(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::layer_manager, [&] {
        out.record(tag::layer_list, [&] {
            for (index i = 0; i < o.model.layers.size(); ++i)
                write_layer(o, i);
        });
        if (!o.model.layers.empty())
            out.id(tag::layer_active, o.ids.of(&o.model.layers.front()));
        out.record(tag::layer_root_folder, [&] { write_folder(o, no_index); });
    });
}

} // namespace skp
