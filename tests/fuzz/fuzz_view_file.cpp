// Reads any bytes as a file of pages: sizes stay above zero, and what follows the end of the current page changes
// nothing.

#include "qlw/text_format.h"
#include "tessaline/reading/view_file.h"
#include "tests/support/temporary_folder.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

camera_view view_of(const temporary_folder& batch, const std::string& pages) {
    batch.write("zyn_pages.txt", pages);
    return read_view_file(batch.name());
}

// All of a view as text, in which a number that is none equals itself.
std::string shown(const camera_view& v) {
    const auto point = [](const fpt& p) { return format_text("%g %g %g ", p.x, p.y, p.z).value_or("?"); };
    return point(v.eye) + point(v.target) + v.camera_type +
           format_text(" %d %d %d %g %g %g %g %g %g %g", v.target_seen, v.pixel_width, v.pixel_height, v.field_of_view,
                       v.margin_d, v.margin_l, v.margin_r, v.margin_b, v.margin_t, v.ortho_height)
               .value_or("?");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const temporary_folder batch;
    const std::string page = std::string(reinterpret_cast<const char*>(data), size) + '\n';
    const camera_view view = view_of(batch, page);
    if (view.pixel_width < 0 || view.pixel_height < 0 || view.ortho_height < 0)
        std::abort();
    const std::string more_pages = "END_CURRENT;\nEYE;(9,8,7)\nTARGETX;6\nFOV;5\nCAMERATYPE;other\nHEIGHT;4\nM_D;3\n";
    if (shown(view_of(batch, page + more_pages)) != shown(view))
        std::abort();
    return 0;
}
