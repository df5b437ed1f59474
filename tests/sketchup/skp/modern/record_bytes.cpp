#include "tests/sketchup/skp/modern/record_bytes.h"

#include "sketchup/skp/modern/model_data.h"
#include "sketchup/skp/read_model.h"

#include <stdexcept>
#include <utility>
#include <zip.h>

namespace record_bytes {
namespace {

class listed_entries : public skp::modern::entry_source {
public:
    explicit listed_entries(entries all) : all_(std::move(all)) {}
    bool has(const std::string& name) const override { return all_.contains(name); }
    bytes read(const std::string& name) override { return all_.at(name); }

private:
    entries all_;
};

bytes marked_text(const std::string& ascii) {
    bytes b = {0xFF, 0xFE, 0xFF, static_cast<std::uint8_t>(ascii.size())};
    for (const char c : ascii)
        b = b + bytes{static_cast<std::uint8_t>(c), 0};
    return b;
}

} // namespace

std::unique_ptr<sketchup::model> read_parts(const bytes& parts, const entries& beside) {
    auto m = std::make_unique<sketchup::model>();
    skp::modern::read_model_data(rec(500, parts), std::make_shared<listed_entries>(beside), *m);
    return m;
}

bytes archive_of(const entries& all) {
    zip_source_t* target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(target);
    zip_t* archive = zip_open_from_source(target, ZIP_TRUNCATE, nullptr);
    if (archive == nullptr)
        throw std::runtime_error("no archive could be made");
    for (const auto& [name, content] : all)
        zip_file_add(archive, name.c_str(), zip_source_buffer(archive, content.data(), content.size(), 0),
                     ZIP_FL_ENC_UTF_8);
    if (zip_close(archive) != 0)
        throw std::runtime_error("the archive could not be written");
    zip_source_open(target);
    zip_source_seek(target, 0, SEEK_END);
    bytes result(static_cast<std::size_t>(zip_source_tell(target)));
    zip_source_seek(target, 0, SEEK_SET);
    zip_source_read(target, result.data(), result.size());
    zip_source_close(target);
    zip_source_free(target);
    return result;
}

bytes file_of(const entries& all, std::uint16_t lowest_reader, std::uint16_t layout) {
    return marked_text("SketchUp Model") + marked_text("{21.0.339}") + text("VFF") + raw(std::uint16_t{8}) +
           raw(lowest_reader) + raw(layout) + raw(std::uint32_t{0x12345678}) + archive_of(all);
}

std::optional<skp::failure> refusal(const bytes& file) {
    try {
        skp::read_model(file);
    } catch (const skp::format_error& e) {
        return e.why;
    }
    return std::nullopt;
}

} // namespace record_bytes
