#pragma once

// Writes a GLB file, version 2.0: one JSON text and one buffer. Neither stands in memory as a whole: all that is added
// goes to a spool, and the file is put together from it at the end.

#include "tools/gltf/byte_spool.h"

#include <array>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <string_view>

namespace gltf {

using json = nlohmann::json;

// The lists of the JSON text that grow while a file comes about.
enum class list { accessors, bufferViews, cameras, images, lights, materials, meshes, nodes, textures };

class glb_writer {
public:
    // What a GLB can hold: its length is a 32-bit number.
    static constexpr std::uint64_t container_limit = 0xffffffff;
    // The longest text that browsers can hold, so that a file with more is of no use: some four million nodes.
    static constexpr std::uint64_t text_limit = (std::uint64_t{1} << 29U) - 24;

    // file_name: as the system spells it. Until finish() nothing stands under that name; beside it lie "NAME.part" and,
    // if memory is full, "NAME.buffers", which are gone when the writer is. memory: bytes kept before that.
    explicit glb_writer(std::string file_name, std::size_t memory = byte_spool::usual_memory,
                        std::uint64_t limit = container_limit);

    // Adds an element; gives its index in its list. Texts that are no UTF-8 get the sign for that.
    std::size_t add(list to, const json& element);
    // The same with the JSON text of an element.
    std::size_t add_text(list to, std::string_view element);
    // More text of the element that was added last to a list, for one that is too long to be held.
    void extend(list to, std::string_view more);
    // The same with all bytes of a strand.
    void extend(list to, byte_spool::strand more);
    std::size_t count(list of) const { return lists[static_cast<std::size_t>(of)].count; }

    // For the list of the extensions that the file uses.
    void use_extension(const std::string& name) { extensions.insert(name); }

    // Adds bytes to the buffer, from an offset that 4 divides; gives that offset.
    std::uint64_t put(std::string_view bytes);

    // A strand of bytes that may grow till put_strand. Strands are put behind all bytes of put().
    byte_spool& spool() { return spooled; }

    enum class width { as_it_is, from_32_to_16_bits };
    // Puts the strand into the buffer as it will be in the end; gives the offset. From then on put() may not be called.
    std::uint64_t put_strand(byte_spool::strand from, width kept = width::as_it_is);

    // The file cannot come about any more: it would be too large, or the disk is full. To be asked now and then.
    bool has_failed() const;

    // Writes the file. document: what stands in the JSON text beside the lists above and "asset": "scene", "scenes",
    // "samplers". Gives why it could not be written, in words, or an empty text; then no file is left.
    std::string finish(json document);

private:
    struct json_list {
        byte_spool::strand text = 0;
        std::size_t count = 0;
    };
    struct buffer_part {
        byte_spool::strand from = 0;
        width kept = width::as_it_is;
    };

    std::uint64_t size_of_lists() const;
    bool write_parts(const std::string& head, const std::string& tail, std::uint64_t json_bytes);
    bool write_buffer(const std::function<bool(std::string_view)>& to);
    std::string head_of(json all) const;

    std::string target; // the name of the file
    std::uint64_t most_bytes;
    byte_spool spooled;
    std::array<json_list, 9> lists;
    std::vector<buffer_part> parts; // the first holds what was put at once
    std::uint64_t buffer_size = 0;
    bool is_torn = false; // a strand could not be read again
    std::set<std::string> extensions;
};

// The JSON text of a value on one line; a text in it that is no UTF-8 gets the sign for that.
std::string text_of(const json& value);

} // namespace gltf
