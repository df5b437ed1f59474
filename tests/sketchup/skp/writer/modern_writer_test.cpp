// What other readers rely on in a file of the archive container, looked at in its bytes and records.

#include "sketchup/skp/writer/modern_writer.h"

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/modern/records.h"
#include "sketchup/skp/read_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace sketchup;
using skp::byte_cursor;
using skp::modern::descend;
using skp::modern::record;
using skp::modern::records;

using bytes = std::vector<std::uint8_t>;

const bytes bitmap = {'B', 'M', 0, 0, 1, 2, 3};

unsigned u16_at(const bytes& file, std::size_t at) {
    return file[at] | static_cast<unsigned>(file[at + 1]) << 8U;
}
std::size_t u32_at(const bytes& file, std::size_t at) {
    return u16_at(file, at) | static_cast<std::size_t>(u16_at(file, at + 2)) << 16U;
}

// One entry as the archive's central directory tells it, found from the end of the file as any unpacker does.
struct directory_entry {
    std::string name;
    unsigned flags;
    unsigned method;
    unsigned time;
    unsigned date;
    std::size_t local_header;
};

std::vector<directory_entry> directory_of(const bytes& file, std::size_t archive_start) {
    const std::size_t end = file.size() - 22; // of the fixed size that it has without a comment
    EXPECT_EQ(u32_at(file, end), 0x06054B50u);
    std::vector<directory_entry> entries;
    std::size_t at = archive_start + u32_at(file, end + 16);
    for (unsigned i = u16_at(file, end + 10); i > 0; --i) {
        EXPECT_EQ(u32_at(file, at), 0x02014B50u);
        const std::size_t name_size = u16_at(file, at + 28);
        const auto name = file.begin() + static_cast<std::ptrdiff_t>(at + 46);
        entries.push_back({std::string(name, name + static_cast<std::ptrdiff_t>(name_size)), u16_at(file, at + 8),
                           u16_at(file, at + 10), u16_at(file, at + 12), u16_at(file, at + 14), u32_at(file, at + 42)});
        at += 46 + name_size + u16_at(file, at + 30) + u16_at(file, at + 32);
    }
    return entries;
}

std::unique_ptr<model> painted_model() {
    model_builder m;
    m.textured_material("Ti:les", bitmap, "C:\\pictures\\tiles.bmp", 10, 20);
    m.material("ti_les", {1, 2, 3, 255});
    m.layer("Walls");
    m.root().square(9);
    return m.finish();
}

std::vector<std::uint16_t> tags_in(byte_cursor container) {
    std::vector<std::uint16_t> tags;
    for (const record& r : records(container))
        tags.push_back(r.tag);
    return tags;
}

byte_cursor part(const bytes& data, std::initializer_list<std::uint16_t> path) {
    const auto found = descend(byte_cursor(data), path);
    EXPECT_TRUE(found.has_value());
    return found.value_or(byte_cursor({}));
}

// The payloads of all records 1502, which hold the ids of elements, wherever they are below the model's containers.
void collect_ids(byte_cursor container, std::vector<std::uint64_t>& ids) {
    const std::set<std::uint16_t> with_ids = {500,   502,   503,   504,   505,   519,   1500,  2000,  2500,  3000,
                                              3500,  5000,  5001,  5002,  5003,  5004,  5005,  5500,  6000,  6001,
                                              6500,  7500,  12500, 12501, 13000, 15000, 15001, 15500, 15503, 28000,
                                              28001, 28500, 29000, 509,   20000, 20001, 20500};
    for (const record& r : records(container)) {
        if (r.tag == 1502)
            ids.push_back(skp::modern::id_in(r.payload));
        else if (with_ids.contains(r.tag))
            collect_ids(r.payload, ids);
    }
}

} // namespace

TEST(ModernWriter, the_header_names_product_version_and_layout) {
    const bytes file = skp::write_modern(*painted_model(), skp::modern_version::v25);
    const bytes expected = {0xFF, 0xFE, 0xFF, 14, 'S', 0,  'k', 0, 'e', 0, 't', 0,   'c', 0, 'h',  0,    'U',  0,
                            'p',  0,    ' ',  0,  'M', 0,  'o', 0, 'd', 0, 'e', 0,   'l', 0, 0xFF, 0xFE, 0xFF, 8,
                            '{',  0,    '2',  0,  '5', 0,  '.', 0, '0', 0, '.', 0,   '1', 0, '}',  0,    'V',  'F',
                            'F',  8,    0,    1,  0,   17, 0,   0, 0,   0, 0,   'P', 'K', 3, 4};
    EXPECT_EQ(bytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(expected.size())), expected);
}

TEST(ModernWriter, every_entry_is_deflated_dated_1980_and_found_from_the_start_of_the_archive) {
    constexpr std::size_t archive_start = 65; // behind 32 + 20 bytes of strings and 13 of the mark and its fields
    const bytes file = skp::write_modern(*painted_model(), skp::modern_version::v25);
    const std::vector<directory_entry> entries = directory_of(file, archive_start);
    for (const directory_entry& e : entries) {
        EXPECT_EQ(u32_at(file, archive_start + e.local_header), 0x04034B50u) << e.name;
        EXPECT_EQ(u16_at(file, archive_start + e.local_header + 6) & 8u, 0u) << "sizes behind the data: " << e.name;
        EXPECT_EQ(e.method, 8u) << e.name;
        EXPECT_EQ(e.time, 0u) << e.name;
        EXPECT_EQ(e.date, 0x0021u) << e.name;       // year 0, month 1, day 1
        EXPECT_EQ(e.flags & 0x0809u, 0u) << e.name; // neither encrypted nor marked as UTF-8
    }
}

TEST(ModernWriter, materials_and_layers_have_a_folder_each_and_the_model_comes_last) {
    const bytes file = skp::write_modern(*painted_model(), skp::modern_version::v25);
    std::vector<std::string> names;
    for (const directory_entry& e : directory_of(file, 65))
        names.push_back(e.name);
    // In the order of the model's materials: the default layer's was there first. Names differ in more than case.
    EXPECT_EQ(names,
              (std::vector<std::string>{"meta/model_thumbnail.png", "meta/preview_thumbnail.png", "meta/meta.dat",
                                        "materials/Layer_Layer0/material.xml", "materials/Ti_les/material.xml",
                                        "materials/Ti_les/tiles.bmp", "materials/ti_les1/material.xml",
                                        "materials/Layer_Walls/material.xml", "styles/Model style/style.xml",
                                        "styles/Model style_1/style.xml", "model.dat"}));
}

TEST(ModernWriter, equal_models_give_equal_bytes) {
    EXPECT_EQ(skp::write_modern(*painted_model(), skp::modern_version::v21),
              skp::write_modern(*painted_model(), skp::modern_version::v21));
}

TEST(ModernWriter, the_parts_of_the_model_stand_in_the_order_of_the_program) {
    const bytes old = skp::modern_model_data(*painted_model(), skp::modern_version::v21);
    EXPECT_EQ(tags_in(part(old, {500})),
              (std::vector<std::uint16_t>{522, 521, 512, 501, 506, 507, 516, 508, 520, 503, 504, 509, 510,
                                          511, 513, 515, 505, 502, 524, 525, 518, 519, 517, 526, 527}));
    const bytes now = skp::modern_model_data(*painted_model(), skp::modern_version::v25);
    EXPECT_EQ(tags_in(part(now, {500})),
              (std::vector<std::uint16_t>{99,  522, 521, 512, 501, 506, 507, 516, 508, 520, 503, 504, 509, 510,
                                          511, 513, 515, 505, 502, 524, 525, 518, 528, 519, 517, 526, 527}));
    EXPECT_EQ(tags_in(part(now, {500, 505})), (std::vector<std::uint16_t>{99, 6000}));
}

TEST(ModernWriter, an_entity_list_stands_in_the_order_of_its_table_and_leaves_empty_lists_out) {
    const bytes data = skp::modern_model_data(*painted_model(), skp::modern_version::v25);
    EXPECT_EQ(tags_in(part(data, {500, 502, 5000})),
              (std::vector<std::uint16_t>{2000, 5001, 5002, 5003, 5022, 5006, 5019, 5023, 5024}));
    EXPECT_EQ(tags_in(part(data, {500, 502, 5000, 5003, 3500})), (std::vector<std::uint16_t>{2000, 3501, 3502}));
}

TEST(ModernWriter, elements_without_an_id_get_fresh_ones_above_all_others) {
    model_builder m;
    m.root().square(9);
    m.model().faces[0].persistent_id = 70000;
    m.model().edges[0].persistent_id = 12;
    m.model().edges[1].persistent_id = 12; // the second owner of an id has to give it up
    const bytes data = skp::modern_model_data(*m.finish(), skp::modern_version::v25);
    std::vector<std::uint64_t> ids;
    collect_ids(byte_cursor(data), ids);
    // A font, a layer and its material, four vertices, four edges, a face.
    EXPECT_EQ(ids.size(), 12u);
    EXPECT_EQ(std::set<std::uint64_t>(ids.begin(), ids.end()).size(), ids.size());
    EXPECT_EQ(std::ranges::count_if(ids, [](std::uint64_t id) { return id > 70000; }), 10);
    const std::uint64_t next = skp::modern::id_in(part(data, {500, 501, 1000, 1001}));
    EXPECT_GT(next, *std::ranges::max_element(ids));
}

TEST(ModernWriter, an_id_takes_as_few_bytes_as_it_needs) {
    model_builder m;
    m.root().square(9);
    m.model().faces[0].persistent_id = 0x0D25;
    const bytes data = skp::modern_model_data(*m.finish(), skp::modern_version::v25);
    byte_cursor id = part(data, {500, 502, 5000, 5003, 3500, 2000, 1500, 1502});
    ASSERT_EQ(id.left(), 2u);
    EXPECT_EQ(id.u16(), 0x0D25u);
}

TEST(ModernWriter, keys_of_a_dictionary_are_sorted_by_their_bytes) {
    model_builder m;
    for (const char* key : {"b", "a", "B", "\xC3\xA9"})
        m.attribute(m.root().list(), "d", key, whole_number(1));
    const bytes data = skp::modern_model_data(*m.finish(), skp::modern_version::v25);
    std::vector<std::string> keys;
    for (const record& r : records(part(data, {500, 502, 5000, 2000, 1500, 1501, 14001, 14002, 14003, 14005})))
        if (r.tag == 14006)
            keys.push_back(skp::modern::text_in(r.payload));
    EXPECT_EQ(keys, (std::vector<std::string>{"B", "a", "b", "\xC3\xA9"}));
}

TEST(ModernWriter, a_picture_of_two_materials_is_stored_once) {
    model_builder m;
    const sketchup::index first = m.textured_material("first", bitmap, "tiles.bmp", 10, 20);
    const sketchup::index second = m.textured_material("second", bitmap, "tiles.bmp", 5, 5);
    model& made = m.model();
    made.textures[made.materials[second].texture].picture = made.textures[made.materials[first].texture].picture;
    const bytes file = skp::write_modern(*m.finish(), skp::modern_version::v25);
    const auto read = skp::read_model(file);
    ASSERT_EQ(read->pictures.size(), 1u);
    EXPECT_EQ(read->pictures[0].load(), bitmap);
    EXPECT_EQ(read->textures[read->materials[read->listed_materials[1]].texture].picture, 0u);
}

TEST(ModernWriter, a_texture_named_like_the_document_does_not_replace_it) {
    model_builder m;
    m.textured_material("paint", bitmap, "somewhere/material.xml", 10, 20);
    const auto read = skp::read_model(skp::write_modern(*m.finish(), skp::modern_version::v25));
    EXPECT_EQ(read->materials[read->listed_materials[0]].name, "paint");
    EXPECT_EQ(read->pictures[0].load(), bitmap);
}

TEST(ModernWriter, the_description_of_the_model_becomes_a_property_of_the_file) {
    model_builder m;
    m.model().description = "A house";
    const auto read = skp::read_model(skp::write_modern(*m.finish(), skp::modern_version::v25));
    EXPECT_EQ(read->description, "A house");
    ASSERT_EQ(read->properties.count, 1u);
    EXPECT_EQ(read->dictionaries[read->properties.first].name, "ModelProperties");
}

TEST(ModernWriter, bytes_that_are_no_utf_8_become_replacement_characters) {
    model_builder m;
    m.layer("a\xFFz");
    const auto read = skp::read_model(skp::write_modern(*m.finish(), skp::modern_version::v25));
    EXPECT_EQ(read->layers[1].name, "a\xEF\xBF\xBDz");
}
