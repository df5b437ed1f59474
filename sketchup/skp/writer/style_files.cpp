#include "sketchup/skp/writer/style_files.h"

#include "sketchup/skp/writer/style_document_writer.h"

#include <string>

namespace skp {

std::vector<archive_entry> style_files(const sketchup::model& m, std::uint16_t format) {
    const std::string text = style_document_text(style_folder, m.rendering_options, format);
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    std::vector<archive_entry> entries;
    for (const char* folder : {style_folder, working_style_folder})
        entries.push_back({std::string("styles/") + folder + "/style.xml", bytes});
    return entries;
}

} // namespace skp
