#include "tools/page/write_page.h"

#include "platform/platform.h"
#include "tools/page/packed_pieces.h"
#include "tools/page/page_text.h"

#include <string_view>
#include <vector>

namespace {

constexpr std::string_view place_of_data = "<!--DATA-->";
// What a browser gives a page for one array of bytes, and what it still unpacks in reasonable time.
constexpr std::uint64_t largest_glb = (std::uint64_t{1} << 31U) - 1;

nlohmann::json view_json(const view& seen) {
    return {{"eye", seen.eye},
            {"target", seen.target},
            {"up", seen.up},
            {"perspective", seen.perspective},
            {"field_of_view", seen.field_of_view},
            {"fov_is_vertical", seen.fov_is_vertical},
            {"height", seen.height}};
}

// As the content of an element: no "<" may stand in it. Bytes that are no UTF-8 become the sign for that.
std::string facts_element(const page_facts& facts, std::uint64_t glb_bytes) {
    nlohmann::json json = {{"title", facts.title},
                           {"kind", facts.kind},
                           {"program", facts.program + " " TESSALINE_VERSION},
                           {"glb_bytes", glb_bytes}};
    if (facts.start)
        json["start"] = view_json(*facts.start);
    if (!facts.findings.is_null()) {
        json["findings"] = facts.findings;
        json["skipped_findings"] = facts.skipped_findings;
    }
    std::string text = "<script type=\"application/json\" id=\"facts\">";
    for (const char c : json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace))
        if (c == '<')
            text += "\\u003c";
        else
            text += c;
    return text + "</script>\n";
}

enum class model_written { whole, not_read, not_written };

// size: of the file. A disk that fails in the midst of it gives no bytes, as its end does.
model_written write_model(platform::file& glb, std::uint64_t size, platform::file& page) {
    constexpr std::size_t block = std::size_t{1} << 20U;
    std::vector<char> bytes(block);
    packed_pieces pieces(page);
    std::uint64_t all = 0;
    for (std::size_t count = glb.read(bytes.data(), block); count > 0; count = glb.read(bytes.data(), block)) {
        all += count;
        if (!pieces.add({bytes.data(), count}))
            return model_written::not_written;
    }
    if (all != size)
        return model_written::not_read;
    return pieces.finish() ? model_written::whole : model_written::not_written;
}

// Why something that was open could not be written to its end.
std::string cause_of(const platform::file& file) {
    return file.failure().empty() ? "cannot be written" : "cannot be written: " + file.failure();
}

} // namespace

std::string write_page(const page_facts& facts, const std::string& glb_file, const std::string& page_file) {
    const std::size_t place = page_text().find(place_of_data);
    if (place == std::string_view::npos)
        return "this build has no page, for there was no node when it was made";
    const auto size = platform::file_size(glb_file);
    platform::file glb;
    if (!size || !glb.open(glb_file, platform::open_mode::read))
        return glb_file + ": cannot be read";
    if (*size > largest_glb)
        return "the model takes " + std::to_string(*size) + " bytes, and no browser opens more than " +
               std::to_string(largest_glb) + " in one page";
    const std::string part = page_file + ".part";
    platform::file page;
    if (!page.open(part, platform::open_mode::write))
        return page_file + ": " + page.failure();
    const bool has_head = page.write_all(page_text().substr(0, place)) && page.write_all(facts_element(facts, *size));
    const model_written model = has_head ? write_model(glb, *size, page) : model_written::not_written;
    const bool is_written = model == model_written::whole &&
                            page.write_all(page_text().substr(place + place_of_data.size())) && page.close();
    if (is_written && platform::rename_replacing(part, page_file))
        return {};
    const std::string cause = is_written ? "cannot be written" : cause_of(page);
    page.close();
    platform::delete_file(part);
    return model == model_written::not_read ? glb_file + ": cannot be read to its end" : page_file + ": " + cause;
}
