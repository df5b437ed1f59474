#include "sketchup/skp/modern/xml_names.h"

#include <optional>
#include <utility>

namespace skp::modern {
namespace {

// "n0:Attribute" apart: prefix and local name.
std::pair<std::string_view, std::string_view> split_name(std::string_view name) {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos)
        return {{}, name};
    return {name.substr(0, colon), name.substr(colon + 1)};
}

// The prefix that an attribute declares, empty for the default one; nothing if it declares none.
std::optional<std::string_view> declared_prefix(pugi::xml_attribute attribute) {
    const auto [prefix, local] = split_name(attribute.name());
    if (prefix == "xmlns")
        return local;
    if (prefix.empty() && local == "xmlns")
        return prefix;
    return std::nullopt;
}

} // namespace

const xml_names::declarations& xml_names::declared_at(pugi::xml_node element) {
    const auto [place, is_new] = known_.try_emplace(element.hash_value());
    if (is_new)
        for (const pugi::xml_attribute a : element.attributes())
            if (const auto prefix = declared_prefix(a))
                place->second.emplace(*prefix, a.value());
    return place->second;
}

std::string_view xml_names::namespace_of(pugi::xml_node element, std::string_view prefix) {
    for (const pugi::xml_attribute a : element.attributes()) // not remembered: most elements hold no others
        if (declared_prefix(a) == prefix)
            return a.value();
    for (pugi::xml_node around = element.parent(); around; around = around.parent()) {
        const declarations& declared = declared_at(around);
        if (const auto found = declared.find(prefix); found != declared.end())
            return found->second;
    }
    return {};
}

bool xml_names::matches(pugi::xml_node element, std::string_view name_space, std::string_view local) {
    const auto [prefix, name] = split_name(element.name());
    return name == local && namespace_of(element, prefix) == name_space;
}

pugi::xml_node xml_names::child(pugi::xml_node parent, std::string_view name_space, std::string_view local) {
    return parent.find_child([&](pugi::xml_node node) { return matches(node, name_space, local); });
}

} // namespace skp::modern
