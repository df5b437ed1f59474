#pragma once

// Elements of a document by namespace and local name, whatever their prefix.

#include <map>
#include <pugixml.hpp>
#include <string_view>
#include <unordered_map>

namespace skp::modern {

// Remembers what each element around others declares: a hostile document may declare a million prefixes and use each.
// Lives no longer than the document.
class xml_names {
public:
    // Whether an element bears the local name in the namespace; the nearest declaration of its prefix counts.
    bool matches(pugi::xml_node element, std::string_view name_space, std::string_view local);

    // The first child that does; null if there is none.
    pugi::xml_node child(pugi::xml_node parent, std::string_view name_space, std::string_view local);

private:
    using declarations = std::map<std::string_view, std::string_view>; // namespaces by prefix

    std::string_view namespace_of(pugi::xml_node element, std::string_view prefix);
    const declarations& declared_at(pugi::xml_node element);

    std::unordered_map<std::size_t, declarations> known_; // by the element's address
};

} // namespace skp::modern
