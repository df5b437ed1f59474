#include "tests/sketchup/skp/writer/archive_census.h"

#include <pugixml.hpp>
#include <zip.h>

#include <algorithm>
#include <memory>
#include <set>
#include <span>
#include <stdexcept>
#include <string_view>

namespace {

using byte_view = std::span<const std::uint8_t>;
using place_map = std::map<std::string, counted_place>;

// The records that hold records. Nothing in a file tells them from others.
bool holds_records(unsigned tag) {
    static const std::set<unsigned> containers = {
        100,   103,   104,   120,   200,   201,   202,                                                   // summary
        500,   501,   502,   503,   504,   505,   506,   507,   508,   509,   510,   511,   512,   515,  // model
        516,   517,   518,   519,   520,   521,   526,   528,   1000,                                    //
        1500,  1501,  2000,  2500,  3000,  3500,  3502,  4000,  4500,  4501,                             // elements
        5000,  5001,  5002,  5003,  5004,  5005,  5008,  5009,  5010,  5011,  5014,  5015,  5016,  5017, // their lists
        5018,  5019,  5021,  5500,  5509,  6000,  6001,  6500,  7000,  7500,  8000,                      // placements
        9000,  9500,  9501,  9502,  10000, 10001, 10002, 10003, 10007, 10008,                            // pictures
        11500, 11501, 12000, 12006, 12500, 12501, 13000, 13006, 13500,                                   // materials
        14000, 14001, 14002, 14003, 14005, 14500, 14510,                                                 // attributes
        15000, 15001, 15003, 15500, 15503, 16000, 16003, 16500, 16501, 16502,                            // layers
        17000, 17001, 17004, 17500, 18000, 19000, 19500, 20000, 20001, 20500,                            // guides
        21000, 21003, 21004, 21500, 22000, 22004, 22500, 23000, 23500, 23501, 23502, 24000, 24500,       // texts
        25000, 25001, 25002, 25004, 25500, 25503, 25504, 26000, 26500, 27000, 27001, 27003, 27500,       // settings
        28000, 28001, 28500, 29000, 29002, 29005, 29006, 29007, 29016, 29019, 29500, 31000, 31001,       // scenes
    };
    return containers.contains(tag);
}

std::uint32_t number_at(byte_view bytes, std::size_t at, std::size_t size) {
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number << 8U | bytes[at + i];
    return number;
}

// Counts the parts of one holder: each name once.
void count_parts(counted_place& holder, const std::set<std::string>& parts) {
    ++holder.seen;
    for (const std::string& part : parts)
        ++holder.parts[part];
}

void count_records(place_map& places, const std::string& path, byte_view payload) {
    std::set<std::string> parts;
    constexpr std::size_t head = 6; // two bytes of the tag, four of the length
    for (std::size_t at = 0; at < payload.size();) {
        if (payload.size() - at < head || payload.size() - at - head < number_at(payload, at + 2, 4))
            throw std::runtime_error(path + ": a record reaches beyond its end");
        const unsigned tag = number_at(payload, at, 2);
        const byte_view content = payload.subspan(at + head, number_at(payload, at + 2, 4));
        at += head + content.size();
        const std::string name = std::to_string(tag);
        parts.insert(name);
        const std::string inner = path + "/" + name;
        counted_place& place = places[inner];
        place.empty += content.empty();
        if (holds_records(tag)) {
            count_records(places, inner, content);
        } else {
            ++place.seen;
            place.zero += !content.empty() && std::ranges::all_of(content, [](std::uint8_t b) { return b == 0; });
        }
    }
    count_parts(places[path], parts);
}

std::string local_name(std::string_view name) {
    return std::string(name.substr(name.find(':') == std::string_view::npos ? 0 : name.find(':') + 1));
}

// The items of a style are told apart by their numbers.
std::string name_of(pugi::xml_node element) {
    const std::string name = local_name(element.name());
    return name == "item" ? name + " " + element.attribute("id").value() : name;
}

void count_elements(place_map& places, const std::string& path, pugi::xml_node holder) {
    std::set<std::string> parts;
    for (const pugi::xml_attribute attribute : holder.attributes())
        if (!std::string_view(attribute.name()).starts_with("xmlns")) {
            parts.insert("@" + local_name(attribute.name()));
            ++places[path + "/@" + local_name(attribute.name())].seen;
        }
    for (const pugi::xml_node element : holder.children())
        if (element.type() == pugi::node_element) {
            parts.insert(name_of(element));
            count_elements(places, path + "/" + name_of(element), element);
        }
    count_parts(places[path], parts);
}

struct archive_closer {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};

std::vector<std::uint8_t> unpacked(zip_t* archive, zip_uint64_t at) {
    zip_stat_t state;
    zip_stat_init(&state);
    zip_stat_index(archive, at, 0, &state);
    std::vector<std::uint8_t> bytes(state.size);
    zip_file_t* file = zip_fopen_index(archive, at, 0);
    const bool whole = file != nullptr && zip_fread(file, bytes.data(), bytes.size()) >= 0;
    if (file != nullptr)
        zip_fclose(file);
    if (!whole)
        throw std::runtime_error("an entry cannot be unpacked");
    return bytes;
}

// The folder of a material or style, and what else a model names, is of its own.
std::string entry_without_own_names(const std::string& name) {
    const std::size_t first = name.find('/');
    const std::size_t last = name.rfind('/');
    return first == last ? name : name.substr(0, first) + "/*" + name.substr(last);
}

void count_entry(place_map& places, const std::string& name, byte_view bytes) {
    if (name.ends_with(".dat")) {
        count_records(places, name.substr(name.rfind('/') + 1), bytes);
    } else if (name.ends_with(".xml")) {
        pugi::xml_document document;
        if (!document.load_buffer(bytes.data(), bytes.size()))
            throw std::runtime_error(name + " is no XML");
        count_elements(places, name.substr(name.rfind('/') + 1), document);
    }
}

} // namespace

void archive_census::add(const std::vector<std::uint8_t>& file) {
    constexpr std::string_view mark = "PK\3\4";
    const auto start = std::search(file.begin(), file.end(), mark.begin(), mark.end());
    const std::size_t size = static_cast<std::size_t>(file.end() - start);
    zip_source_t* source = zip_source_buffer_create(file.data() + (file.size() - size), size, 0, nullptr);
    const std::unique_ptr<zip_t, archive_closer> archive(zip_open_from_source(source, ZIP_RDONLY, nullptr));
    if (!archive) {
        zip_source_free(source); // the archive's, had it opened
        throw std::runtime_error("no archive");
    }
    std::set<std::string> entries;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive.get(), 0); ++i) {
        const auto at = static_cast<zip_uint64_t>(i);
        const std::string name = zip_get_name(archive.get(), at, ZIP_FL_ENC_RAW);
        const std::vector<std::uint8_t> bytes = unpacked(archive.get(), at);
        entries.insert(entry_without_own_names(name));
        counted_place& place = places_["entries/" + entry_without_own_names(name)];
        ++place.seen;
        place.empty += bytes.empty();
        count_entry(places_, name, bytes);
    }
    count_parts(places_["entries"], entries);
}

std::vector<finding> lacks_of(const archive_census& ours, const archive_census& real) {
    std::vector<finding> findings;
    for (const auto& [path, place] : ours.places()) {
        const auto known = real.places().find(path);
        if (known == real.places().end())
            continue;
        for (const auto& [part, times] : known->second.parts) {
            const auto found = place.parts.find(part);
            const std::size_t present = found == place.parts.end() ? 0 : found->second;
            if (times == known->second.seen && present < place.seen)
                findings.push_back({path + "/" + part, lack::absent, place.seen - present});
        }
        if (known->second.empty > 0)
            continue;
        if (place.empty > 0)
            findings.push_back({path, lack::empty, place.empty});
        if (known->second.zero == 0 && place.zero > 0)
            findings.push_back({path, lack::zero, place.zero});
    }
    return findings;
}
