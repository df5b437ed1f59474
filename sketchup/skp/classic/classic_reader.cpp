#include "sketchup/skp/classic/classic_reader.h"

#include "sketchup/skp/classic/archive.h"
#include "sketchup/skp/classic/model_reader.h"

#include <algorithm>
#include <utility>

namespace skp {

void read_classic(std::shared_ptr<const std::vector<std::uint8_t>> bytes, const file_header& header,
                  sketchup::model& m) {
    archive in(std::span<const std::uint8_t>(*bytes).subspan(header.body), header.body, header.wide_strings);
    in.set_where("header");
    std::ranges::copy(in.bytes(m.guid.size()), m.guid.begin());
    in.text();                      // where it was saved last
    in.skip(sizeof(std::uint32_t)); // the time of that
    model_reader(std::move(bytes), in, m).read();
}

} // namespace skp
