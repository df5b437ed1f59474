#include "sketchup/skp/read_model.h"

#include "sketchup/skp/classic/classic_reader.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/header.h"
#include "sketchup/skp/link.h"
#include "sketchup/skp/modern/modern_reader.h"

#include <utility>

namespace skp {

std::unique_ptr<sketchup::model> read_model(std::vector<std::uint8_t> bytes) {
    const file_header header = read_header(bytes);
    if (header.version.major > newest_major_version)
        throw format_error(failure::too_new, 0, "header",
                           "version " + std::to_string(header.version.major) + " is newer than any known");
    const auto file = std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes));
    auto m = std::make_unique<sketchup::model>();
    m->version = header.version;
    m->is_modern = header.kind == container::modern;
    // The container decides, not the version: there are classic files that claim to be newer.
    if (header.kind == container::classic)
        read_classic(file, header, *m);
    else
        read_modern(file, header, *m);
    link(*m);
    return m;
}

} // namespace skp
