#include "tests/gltf/read_glb.h"
#include "tests/support/temporary_folder.h"
#include "tools/gltf/glb_writer.h"
#include "tools/gltf/vertex_data.h"

#include <gtest/gtest.h>

using gltf::glb_writer;
using gltf::json;

TEST(GlbWriter, lays_down_header_text_and_buffer_byte_by_byte) {
    const temporary_folder folder;
    const std::string name = folder / "a.glb";
    glb_writer writer(name);
    writer.put("abcde");
    writer.add(gltf::list::nodes, {{"name", "n"}});
    EXPECT_EQ(writer.finish({{"scene", 0}}), "");

    const std::string text = R"({"asset":{"generator":"tessaline","version":"2.0"},"buffers":[{"byteLength":8}],)"
                             R"("scene":0,"nodes":[{"name":"n"}]})";
    ASSERT_EQ(text.size(), 113U); // three blanks make 116; 12 + 8 + 116 + 8 + 8 = 152
    const std::vector<std::uint8_t> bytes = file_bytes(name);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), std::string("glTF\2\0\0\0\x98\0\0\0\x74\0\0\0JSON", 20) + text +
                                                           "   " + std::string("\x08\0\0\0BIN\0abcde\0\0\0", 16));
}

TEST(GlbWriter, leaves_the_old_file_and_nothing_beside_it_when_the_new_one_would_be_too_large) {
    const temporary_folder folder;
    const std::string name = folder.write("a.glb", "old");
    {
        glb_writer writer(name, 4, 200);
        writer.put(std::string(300, 'x'));
        EXPECT_NE(writer.finish({}).find("more than the 200 bytes of the format"), std::string::npos);
    }
    EXPECT_EQ(file_bytes(name), (std::vector<std::uint8_t>{'o', 'l', 'd'}));
    EXPECT_FALSE(platform::exists(name + ".part"));
    EXPECT_FALSE(platform::exists(name + ".buffers"));
}

TEST(GlbWriter, gives_up_early_when_there_is_far_too_much) {
    const temporary_folder folder;
    glb_writer writer(folder / "a.glb", 1000, 200);
    writer.put(std::string(300, 'x'));
    EXPECT_FALSE(writer.has_failed());
    writer.put(std::string(300, 'x'));
    EXPECT_TRUE(writer.has_failed());
}

TEST(GlbWriter, gives_up_earlier_on_its_text_which_cannot_shrink) {
    const temporary_folder folder;
    glb_writer writer(folder / "a.glb", 1000, 200);
    writer.add(gltf::list::nodes, {{"name", std::string(180, 'x')}});
    EXPECT_TRUE(writer.has_failed()); // 191 for the element and 11 for the list
}

TEST(GlbWriter, says_that_it_cannot_write_into_a_folder_that_is_not_there) {
    const temporary_folder folder;
    glb_writer writer(folder / "none/a.glb");
    EXPECT_NE(writer.finish({}).find("cannot be written"), std::string::npos);
}

TEST(GlbWriter, replaces_what_is_no_text_and_keeps_the_rest) {
    const temporary_folder folder;
    glb_writer writer(folder / "a.glb");
    writer.add(gltf::list::nodes, {{"name", "W\xFC"
                                            "rfel \xC3\xA4"}});
    EXPECT_EQ(writer.finish({}), "");
    EXPECT_EQ(read_glb(folder / "a.glb").text["nodes"][0]["name"], "W\xEF\xBF\xBDrfel \xC3\xA4");
}

TEST(GlbWriter, text_without_numbers_is_no_failure) {
    const temporary_folder folder;
    glb_writer writer(folder / "a.glb");
    writer.add(gltf::list::nodes, {{"name", "n"}});
    EXPECT_FALSE(writer.has_failed());
}

TEST(GlbWriter, names_the_extensions_that_are_used) {
    const temporary_folder folder;
    glb_writer writer(folder / "a.glb");
    writer.add(gltf::list::lights, {{"type", "point"}});
    writer.use_extension("KHR_materials_ior");
    EXPECT_EQ(writer.finish({}), "");
    const json text = read_glb(folder / "a.glb").text;
    EXPECT_EQ(text["extensionsUsed"], json({"KHR_lights_punctual", "KHR_materials_ior"}));
    EXPECT_EQ(text["extensions"]["KHR_lights_punctual"]["lights"][0]["type"], "point");
}

namespace {

gltf::primitive_data fan(std::uint32_t vertices) {
    gltf::primitive_data data;
    for (std::uint32_t i = 0; i < vertices; ++i)
        data.positions.push_back({static_cast<float>(i), 0.1F, -0.3F});
    data.indices = {0, 1, vertices - 1};
    return data;
}

} // namespace

TEST(VertexData, says_the_least_and_the_greatest_to_the_bit) {
    const temporary_folder folder;
    glb_writer writer(folder / "a.glb");
    const json primitive = gltf::add_primitive(writer, fan(3), gltf::primitive_mode::triangles);
    EXPECT_EQ(writer.finish({}), "");
    const read_glb read(folder / "a.glb");
    const json& accessor = read.text["accessors"][primitive["attributes"]["POSITION"].get<std::size_t>()];
    EXPECT_EQ(accessor["min"], json({0.0, double{0.1F}, double{-0.3F}}));
    EXPECT_EQ(accessor["max"], json({2.0, double{0.1F}, double{-0.3F}}));
    EXPECT_EQ(accessor["min"][1].get<double>(), 0.10000000149011612);
}

TEST(VertexData, has_indices_of_16_bits_up_to_65535_vertices) {
    const temporary_folder folder;
    for (const std::uint32_t vertices : {65535U, 65536U}) {
        glb_writer writer(folder / "a.glb");
        gltf::growing_primitive growing(writer.spool(), false, false);
        const gltf::primitive_data data = fan(vertices);
        for (const gltf::float3& position : data.positions)
            growing.add_vertex(position, {}, {});
        growing.add_indices(data.indices);
        const json at_once = gltf::add_primitive(writer, data, gltf::primitive_mode::triangles);
        const json grown = growing.put(writer, gltf::primitive_mode::triangles);
        EXPECT_EQ(writer.finish({}), "");
        const read_glb read(folder / "a.glb");
        for (const json& primitive : {at_once, grown}) {
            const json& accessor = read.text["accessors"][primitive["indices"].get<std::size_t>()];
            EXPECT_EQ(accessor["componentType"], vertices == 65535 ? 5123 : 5125);
            EXPECT_EQ(read.indices(primitive), (std::vector<double>{0, 1, vertices - 1.0}));
        }
    }
}

TEST(VertexData, that_grew_among_others_beyond_memory_comes_out_whole) {
    const temporary_folder folder;
    glb_writer writer(folder / "a.glb", 64);
    std::vector<gltf::growing_primitive> all(3, {writer.spool(), false, false});
    for (gltf::growing_primitive& one : all)
        one = {writer.spool(), true, true};
    for (float i = 0; i < 50; ++i)
        for (gltf::growing_primitive& one : all) {
            const std::uint32_t vertex = one.add_vertex({i, 1, 2}, {0, 0, 1}, {i / 50, 0});
            one.add_indices(std::array<std::uint32_t, 3>{vertex, 0, vertex});
        }
    std::vector<json> primitives;
    for (const gltf::growing_primitive& one : all)
        primitives.push_back(one.put(writer, gltf::primitive_mode::triangles));
    EXPECT_EQ(writer.finish({}), "");
    const read_glb read(folder / "a.glb");
    for (const json& primitive : primitives) {
        const std::vector<double> positions = read.attribute(primitive, "POSITION");
        const std::vector<double> indices = read.indices(primitive);
        ASSERT_EQ(positions.size(), 150U);
        ASSERT_EQ(indices.size(), 150U);
        for (std::size_t i = 0; i < 50; ++i) {
            EXPECT_EQ(positions[3 * i], static_cast<double>(i));
            EXPECT_EQ(indices[3 * i + 2], static_cast<double>(i));
        }
    }
}
