#include "sketchup/skp/writer/xml_text.h"

#include "sketchup/skp/text_encoding.h"

#include <cstddef>

namespace skp {

namespace {

struct string_writer : pugi::xml_writer {
    std::string text;
    void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
};

} // namespace

void set(pugi::xml_node element, const char* name, const std::string& value) {
    element.append_attribute(name).set_value(well_formed_utf8(value).c_str());
}

pugi::xml_node add_root(pugi::xml_document& document, const char* name, const char* prefix, const char* of_namespace) {
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    set(declaration, "version", "1.0");
    set(declaration, "encoding", "UTF-8");
    set(declaration, "standalone", "no");
    pugi::xml_node root = document.append_child(name);
    set(root, "xmlns", of_namespace);
    set(root, (std::string("xmlns:") + prefix).c_str(), of_namespace);
    return root;
}

std::string text_of(const pugi::xml_document& document) {
    string_writer out;
    document.save(out, "", pugi::format_raw, pugi::encoding_utf8);
    return out.text;
}

} // namespace skp
