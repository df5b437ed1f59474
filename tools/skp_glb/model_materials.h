#pragma once

// The materials of a model in a GLB, each made when it is first asked for.

#include "sketchup/SketchUpAPI.h"
#include "tools/glb_pictures/embedded_picture.h"

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

class model_materials {
public:
    // temporary_file: full name, without ending, of a file that is made and deleted while pictures are fetched.
    model_materials(gltf::glb_writer& to, std::string temporary_file);

    // How often the picture of a material repeats in an inch, if it has one that can be shown.
    struct picture_scale {
        double u = 1;
        double v = 1;
    };
    std::optional<picture_scale> picture_of(SUMaterialRef material);

    // The number of the material in the GLB. An invalid one is that of bare faces.
    std::size_t material_of(SUMaterialRef material, bool two_sided, bool with_picture);
    // That of a placed image, seen from both sides.
    std::size_t material_of(SUImageRef image);
    // That of lines.
    std::size_t material_of_edges();

    std::size_t pictures() const { return embedded; }
    // In words, a line each, at most 20.
    const std::vector<std::string>& notes() const { return said; }

private:
    struct shown_picture {
        std::optional<std::size_t> texture;
        coverage covers = coverage::opaque;
        picture_scale scale;
    };

    const shown_picture& picture_behind(SUTextureRef texture, const std::string& material, bool is_recoloured);
    std::optional<embedded_picture> fetch(SUTextureRef texture, bool is_recoloured);
    std::optional<embedded_picture> taken(SUResult written, const std::string& file);
    SUTextureRef texture_of(SUImageRef image);
    void note(std::string text);

    gltf::glb_writer& writer;
    std::string temporary;
    std::unordered_map<const void*, shown_picture> by_texture;
    std::unordered_map<const void*, std::size_t> by_image; // by definition
    std::map<std::tuple<const void*, bool, bool>, std::size_t> made;
    std::optional<std::size_t> edges;
    std::size_t embedded = 0;
    std::vector<std::string> said;
};
