#include "tools/gltf/glb_writer.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <utility>

namespace gltf {

namespace {

constexpr std::array<const char*, 9> list_names = {"accessors", "bufferViews", "cameras", "images",  "lights",
                                                   "materials", "meshes",      "nodes",   "textures"};
constexpr std::size_t lights_at = static_cast<std::size_t>(list::lights);
constexpr std::string_view lights_begin = R"(,"extensions":{"KHR_lights_punctual":{"lights":[)";
constexpr std::uint64_t header_size = 12;
constexpr std::uint64_t chunk_header_size = 8;

std::uint64_t padded(std::uint64_t size) {
    return (size + 3) / 4 * 4;
}

void append32(std::string& bytes, std::uint64_t number) {
    for (unsigned shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<char>(number >> shift & 255));
}

std::string opening_of(std::size_t at) {
    return at == lights_at ? std::string(lights_begin) : std::string(",\"") + list_names[at] + "\":[";
}

std::string_view closing_of(std::size_t at) {
    return at == lights_at ? "]}}" : "]";
}

} // namespace

std::string text_of(const json& value) {
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

glb_writer::glb_writer(std::string file_name, std::size_t memory, std::uint64_t limit)
    : target(std::move(file_name)), most_bytes(limit), spooled(target + ".buffers", memory) {
    for (json_list& one : lists)
        one.text = spooled.begin();
    parts.push_back({spooled.begin(), width::as_it_is});
}

std::size_t glb_writer::add(list to, const json& element) {
    return add_text(to, text_of(element));
}

std::size_t glb_writer::add_text(list to, std::string_view element) {
    json_list& one = lists[static_cast<std::size_t>(to)];
    if (one.count > 0)
        spooled.append(one.text, ",");
    spooled.append(one.text, element);
    return one.count++;
}

void glb_writer::extend(list to, std::string_view more) {
    spooled.append(lists[static_cast<std::size_t>(to)].text, more);
}

void glb_writer::extend(list to, byte_spool::strand more) {
    is_torn = !spooled.append_strand(lists[static_cast<std::size_t>(to)].text, more) || is_torn;
}

std::uint64_t glb_writer::put(std::string_view bytes) {
    assert(parts.size() == 1);
    const std::uint64_t offset = buffer_size;
    spooled.append(parts.front().from, bytes);
    buffer_size = padded(offset + bytes.size());
    spooled.append(parts.front().from, std::string_view("\0\0\0", buffer_size - offset - bytes.size()));
    return offset;
}

std::uint64_t glb_writer::put_strand(byte_spool::strand from, width kept) {
    const std::uint64_t offset = buffer_size;
    const std::uint64_t size = spooled.size(from);
    parts.push_back({from, kept});
    buffer_size = padded(offset + (kept == width::as_it_is ? size : size / 2));
    return offset;
}

// Of the buffer no more than half can go away, where 32-bit numbers become 16-bit ones; of the text nothing.
bool glb_writer::has_failed() const {
    const std::uint64_t text = size_of_lists();
    // The text counts the brackets of the lists, which are not spooled.
    const std::uint64_t numbers = spooled.size() - std::min(spooled.size(), text);
    return spooled.has_failed() || is_torn || text > std::min(most_bytes, text_limit) || numbers / 2 > most_bytes;
}

// All but the lists and the closing brace.
std::string glb_writer::head_of(json all) const {
    all["asset"] = {{"version", "2.0"}, {"generator", "tessaline"}};
    if (buffer_size > 0)
        all["buffers"] = {{{"byteLength", buffer_size}}};
    std::set<std::string> used = extensions;
    if (count(list::lights) > 0)
        used.insert("KHR_lights_punctual");
    if (!used.empty())
        all["extensionsUsed"] = used;
    std::string text = text_of(all);
    text.pop_back();
    return text;
}

std::uint64_t glb_writer::size_of_lists() const {
    std::uint64_t size = 0;
    for (std::size_t at = 0; at < lists.size(); ++at)
        if (lists[at].count > 0)
            size += opening_of(at).size() + spooled.size(lists[at].text) + closing_of(at).size();
    return size;
}

std::string glb_writer::finish(json document) {
    const std::string head = head_of(std::move(document));
    const std::string tail = "}";
    const std::uint64_t json_bytes = head.size() + size_of_lists() + tail.size();
    const std::uint64_t total =
        header_size + chunk_header_size + padded(json_bytes) + (buffer_size > 0 ? chunk_header_size + buffer_size : 0);
    if (json_bytes > text_limit)
        return "the text of the GLB file would need more than the " + std::to_string(text_limit) +
               " bytes that browsers can hold";
    if (total > most_bytes)
        return "a GLB file of more than the " + std::to_string(most_bytes) + " bytes of the format would be needed";
    const std::string part = target + ".part";
    if (!spooled.has_failed() && !is_torn && write_parts(head, tail, json_bytes) &&
        platform::rename_replacing(part, target))
        return {};
    platform::delete_file(part);
    return "the file " + target + " cannot be written: the disk may be full, or the folder may not be written to";
}

bool glb_writer::write_parts(const std::string& head, const std::string& tail, std::uint64_t json_bytes) {
    platform::file out;
    if (!out.open(target + ".part", platform::open_mode::write))
        return false;
    std::string block;
    constexpr std::size_t block_size = std::size_t{1} << 18U;
    const auto to = [&](std::string_view bytes) {
        if (block.empty() && bytes.size() >= block_size)
            return out.write_all(bytes);
        block.append(bytes);
        if (block.size() < block_size)
            return true;
        const bool done = out.write_all(block);
        block.clear();
        return done;
    };
    const std::uint64_t json_padded = padded(json_bytes);
    std::string header = "glTF";
    append32(header, 2);
    append32(header,
             header_size + chunk_header_size + json_padded + (buffer_size > 0 ? chunk_header_size + buffer_size : 0));
    append32(header, json_padded);
    header += "JSON";
    bool done = to(header) && to(head);
    for (std::size_t at = 0; done && at < lists.size(); ++at)
        done = lists[at].count == 0 || (to(opening_of(at)) && spooled.read(lists[at].text, to) && to(closing_of(at)));
    done = done && to(tail) && to(std::string(json_padded - json_bytes, ' '));
    if (buffer_size > 0) {
        std::string chunk;
        append32(chunk, buffer_size);
        chunk += std::string_view("BIN\0", 4);
        done = done && to(chunk) && write_buffer(to);
    }
    return done && out.write_all(block) && out.close();
}

// 16-bit numbers are the low halves of the 32-bit ones; pieces hold whole numbers, for their size is a multiple of 4,
// as is that of every segment of a strand of 32-bit numbers.
bool glb_writer::write_buffer(const std::function<bool(std::string_view)>& to) {
    std::string halves;
    for (const buffer_part& part : parts) {
        std::uint64_t size = 0;
        const auto count_and_give = [&](std::string_view bytes) {
            size += bytes.size();
            return to(bytes);
        };
        const auto narrow = [&](std::string_view bytes) {
            halves.resize(bytes.size() / 2);
            for (std::size_t i = 0; i + 1 < halves.size(); i += 2)
                std::memcpy(&halves[i], &bytes[2 * i], 2);
            return count_and_give(halves);
        };
        const bool done =
            part.kept == width::as_it_is ? spooled.read(part.from, count_and_give) : spooled.read(part.from, narrow);
        if (!done || !to(std::string_view("\0\0\0", padded(size) - size)))
            return false;
    }
    return true;
}

} // namespace gltf
