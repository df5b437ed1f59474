#include "sketchup/skp/modern/modern_reader.h"

#include "sketchup/skp/byte_cursor.h"
#include "sketchup/skp/modern/model_data.h"
#include "sketchup/skp/modern/records.h"
#include "sketchup/skp/modern/tags.h"
#include "sketchup/skp/modern/zip_entries.h"

#include <span>
#include <utility>

namespace skp {
namespace {

// The newest layout that is known. A file names the oldest reader that may open it, which is 1 unless something in it
// would be misread; the layout of its writer may be any.
constexpr std::uint16_t newest_known_reader = 17;

// The offset at which the archive begins, behind the mark "VFF", a size, and so many bytes.
std::size_t archive_start(std::span<const std::uint8_t> bytes, const file_header& header) {
    constexpr std::size_t mark_size = 3;
    byte_cursor in(bytes.subspan(header.body), header.body);
    in.set_where("header");
    in.skip(mark_size);
    const std::uint16_t size = in.u16();
    byte_cursor fields(in.bytes(size), in.offset() - size);
    fields.set_where("header");
    const std::uint16_t lowest_reader = fields.u16();
    if (lowest_reader > newest_known_reader)
        throw format_error(failure::too_new, in.offset() - size, "header",
                           "asks for reader version " + std::to_string(lowest_reader));
    return static_cast<std::size_t>(in.offset());
}

void read_summary(modern::entry_source& entries, sketchup::model& m) {
    constexpr const char* name = "meta/meta.dat";
    if (!entries.has(name))
        return;
    const std::vector<std::uint8_t> data = entries.read(name);
    byte_cursor document(data);
    document.set_where(name);
    if (const auto id = modern::descend(document, {modern::tag::summary, modern::tag::summary_guid}))
        m.guid = modern::guid_in(*id);
}

} // namespace

void read_modern(std::shared_ptr<const std::vector<std::uint8_t>> bytes, const file_header& header,
                 sketchup::model& m) {
    const std::size_t start = archive_start(*bytes, header);
    const auto entries = std::make_shared<modern::zip_entries>(std::move(bytes), start);
    read_summary(*entries, m);
    modern::read_model_data(entries->read("model.dat"), entries, m);
}

} // namespace skp
