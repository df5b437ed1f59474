#include "tests/sketchup/skp/writer/member_exceptions.h"

#include <algorithm>
#include <iterator>

namespace {

struct member_exception {
    std::string_view pattern; // a star stands for any text
    const char* reason;
};

constexpr member_exception exceptions[] = {
    // What a model says of itself is written as it says it, also where it is nothing or a switch is off.
    {"*.casts_shadows", "a switch of the element"},
    {"*.receives_shadows", "a switch of the element"},
    {"CFaceTextureCoords.front_flags", "a face may be mapped on its back alone"},
    {"CMaterial.color", "black with alpha 0 is a colour; random models and pictures have it"},
    {"CMaterial.transparency", "an opaque material has none"},
    {"CCamera.perspective", "a switch of the view"},
    {"CCamera.fov_is_vertical", "as above"},
    {"CDib.format", "a picture without a known signature, which random models have, has no number"},
    {"CCamera.target", "the origin is a point to look at"},
    {"CText.drawing.material", "the material of an element is its own"},
    {"CSketchUpModel.rendering.*", "an option that the model sets; unset ones are never zero where files fill them"},
    {"CViewPage.rendering.*", "an option that the scene sets"},
    {"CViewPage.in_slide_show", "a switch of the scene"},
    {"CSketchUpModel.shadows.*", "where and when the sun stands, and what it lights, is the model's to say"},
    {"CViewPage.shadows.*", "as for the model"},
    {"CMaterial.texture.picture", "the picture of a texture can be lost, which random models have"},
    // A model may hold less than every sample happens to.
    {"CAttributeNamed.entries", "a dictionary may be empty"},
    {"CSketchUpModel.root.definitions.definitions", "a model may place nothing"},
    {"CSketchUpModel.root.entities", "a model may be empty"},
    {"CSketchUpModel.root.drawing.entity.attributes*", "the user's dictionaries: what tools and map services leave"},
    {"CComponentInstance.drawing.entity.attributes", "the dictionaries of an element are the user's"},
    {"CSketchUpModel.schemas", "a schema of classes is a file of its own that the user loads"},
    // A model keeps that there are annotations, and neither where they lie nor what they say.
    {"CConstructionLine.point", "guides are written at the origin"},
    {"CConstructionPoint.position", "as above"},
    {"CConstructionPoint.other_end", "as above"},
    {"CText.text", "the words are not kept"},
};

bool matches(std::string_view pattern, std::string_view text) {
    const std::size_t star = pattern.find('*');
    if (star == std::string_view::npos)
        return pattern == text;
    if (!text.starts_with(pattern.substr(0, star)))
        return false;
    const std::string_view rest = pattern.substr(star + 1);
    for (std::size_t at = star; at <= text.size(); ++at)
        if (matches(rest, text.substr(at)))
            return true;
    return false;
}

} // namespace

bool is_excepted(std::string_view path) {
    return std::any_of(std::begin(exceptions), std::end(exceptions),
                       [path](const member_exception& one) { return matches(one.pattern, path); });
}
