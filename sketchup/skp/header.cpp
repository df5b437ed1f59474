#include "sketchup/skp/header.h"

#include "sketchup/skp/byte_cursor.h"
#include "sketchup/skp/classic/text.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>

namespace skp {
namespace {

constexpr std::string_view archive_mark = "VFF";
// A new-class tag: FF FF, layout 0, eleven characters of name.
constexpr std::string_view version_map_mark{"\xFF\xFF\0\0\x0B\0CVersionMap", 17};

bool begins_with(std::span<const std::uint8_t> bytes, std::string_view mark) {
    return bytes.size() >= mark.size() &&
           std::equal(mark.begin(), mark.end(), bytes.begin(),
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

// "{17.2.2555}", and nothing else: three numbers of up to nine digits.
std::optional<sketchup::version_number> version_from(std::string_view text) {
    if (text.size() < 2 || text.front() != '{' || text.back() != '}')
        return std::nullopt;
    text = text.substr(1, text.size() - 2);
    sketchup::version_number v;
    const char* at = text.data();
    const char* const end = text.data() + text.size();
    for (int* part : {&v.major, &v.minor, &v.build}) {
        if (part != &v.major && (at == end || *at++ != '.'))
            return std::nullopt;
        const auto result = std::from_chars(at, end, *part);
        if (result.ec != std::errc{} || *part < 0)
            return std::nullopt;
        at = result.ptr;
    }
    return at == end ? std::optional(v) : std::nullopt;
}

// Whether what follows the version string is the id, path and time of a classic file and then its version map.
bool is_classic_body(std::span<const std::uint8_t> body) {
    try {
        byte_cursor in(body);
        in.skip(sizeof(sketchup::guid));
        read_stored_text(in);
        in.skip(sizeof(std::uint32_t)); // the time
        return begins_with(in.bytes(version_map_mark.size()), version_map_mark);
    } catch (const format_error&) {
        return false;
    }
}

file_header read_strings(std::span<const std::uint8_t> bytes) {
    byte_cursor in(bytes);
    in.set_where("header");
    const stored_text product = read_stored_text(in);
    if (utf8_from(product) != "SketchUp Model")
        in.fail("no product name");
    const stored_text version_text = read_stored_text(in);
    const auto version = version_from(utf8_from(version_text));
    if (!version || version_text.wide != product.wide)
        in.fail("no version number");
    file_header header;
    header.version = *version;
    header.wide_strings = product.wide;
    header.body = static_cast<std::size_t>(in.offset());
    return header;
}

} // namespace

file_header read_header(std::span<const std::uint8_t> bytes) {
    file_header header;
    try {
        header = read_strings(bytes);
    } catch (const format_error&) {
        throw format_error(failure::not_a_model, 0, "header", "not a SketchUp model");
    }
    const auto body = bytes.subspan(header.body);
    // The classic mark is asked for first: it is long, while a classic file's random id may begin with the other one.
    if (is_classic_body(body))
        header.kind = container::classic;
    else if (begins_with(body, archive_mark))
        header.kind = container::modern;
    else
        throw format_error(header.version.major > newest_major_version ? failure::too_new : failure::damaged,
                           header.body, "header", "neither container follows");
    return header;
}

} // namespace skp
