// Reads any bytes as the model document of an archive, without the archive around it. What stands behind the document's
// one record is the description of every material.

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/link.h"
#include "sketchup/skp/modern/model_data.h"
#include "tests/fuzz/touch_model.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace {

class one_description : public skp::modern::entry_source {
public:
    explicit one_description(std::span<const std::uint8_t> xml) : xml_(xml.begin(), xml.end()) {}
    bool has(const std::string& name) const override { return !xml_.empty() && name.size() % 4 != 3; }
    std::vector<std::uint8_t> read(const std::string&) override { return xml_; }

private:
    std::vector<std::uint8_t> xml_;
};

// How many bytes the first record takes.
std::size_t document_size(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t head = 6;
    std::uint32_t length = 0;
    if (bytes.size() < head)
        return bytes.size();
    std::memcpy(&length, bytes.data() + 2, sizeof(length));
    return std::min(bytes.size(), head + length);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span bytes(data, size);
    const std::size_t split = document_size(bytes);
    sketchup::model m;
    try {
        skp::modern::read_model_data(bytes.first(split), std::make_shared<one_description>(bytes.subspan(split)), m);
        skp::link(m);
    } catch (const skp::format_error&) {
        return 0;
    }
    touch_model(m);
    return 0;
}
