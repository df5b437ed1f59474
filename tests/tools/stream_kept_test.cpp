// How much of a stream is kept before the check gives up: the names, and 64 bytes for each entry.

#include "tests/tools/stream_pieces.h"

namespace stream_pieces {
namespace {

struct checked_stream {
    batch_check::findings found;
    batch_check::stream_facts facts;
};

checked_stream checked(std::uint64_t most_kept, std::initializer_list<lines> parts) {
    checked_stream result;
    const std::string text = text_of(joined(parts));
    files_in_memory::bytes_in_memory stream(text);
    result.facts = batch_check::check_stream(stream, "batch_file.txt", result.found, most_kept);
    return result;
}

// The parts stand in a stream of which so much is kept and no more.
void expect_kept(std::uint64_t bytes, std::initializer_list<lines> parts) {
    EXPECT_EQ(checked(bytes, parts).found.count(code::stream_given_up), 0U);
    const checked_stream beyond = checked(bytes - 1, parts);
    EXPECT_EQ(beyond.found.count(code::stream_given_up), 1U) << batch_check::finding_lines(beyond.found);
    EXPECT_FALSE(beyond.facts.is_whole);
}

constexpr std::uint64_t of_entry = 64 + 27;     // "COL%3a0012_Wall.OrnMaterial"
constexpr std::uint64_t of_wall = 2 * of_entry; // as a material, and among the names
constexpr std::uint64_t of_lamp = 64;

TEST(StreamKept, a_declaration_counts_with_its_name_in_both_places_where_that_is_kept) {
    expect_kept(of_wall, {head, pass, wall, end});
    expect_first(checked(of_wall - 1, {head, pass, wall, end}).found, code::stream_given_up, 11);
}

TEST(StreamKept, a_lamp_counts_of_either_kind) {
    expect_kept(of_lamp, {head, pass, point_light, end});
    expect_kept(of_lamp, {head, pass, lamp_head, end_of_lamp, end});
}

TEST(StreamKept, what_is_passed_over_counts_as_well) {
    expect_kept(of_lamp + of_entry, {head, pass, lamp_head, {"CULL;0"}, wall, end_of_lamp, end});
    expect_kept(3 * of_lamp, {head, pass, lamp_head, {"CULL;0", "LITE;1", "LGHT;2"}, end_of_lamp, end});
}

TEST(StreamKept, nothing_more_is_kept_within_a_block_when_the_check_has_given_up) {
    const lines second = {"MATF;a.OrnMaterial", "MTX2;1", "MATI;11"};
    const lines third = {"MATF;b.OrnMaterial", "MTX2;1", "MATI;12"};
    const checked_stream result =
        checked(of_lamp + of_wall, {head, pass, lamp_head, wall, second, third, end_of_lamp, end});
    EXPECT_EQ(result.facts.materials.size(), 1U);
    const checked_stream passed_over =
        checked(of_lamp + of_entry, {head, pass, lamp_head, {"CULL;0"}, wall, second, third, end_of_lamp, end});
    EXPECT_EQ(passed_over.facts.materials.size(), 1U);
}

TEST(StreamKept, the_layers_of_a_table_count_and_the_rest_of_it_is_not_read) {
    const std::uint64_t of_layers = 64 + 6 + 64 + 5; // "Layer0", "Walls"
    expect_kept(of_layers, {head, layer_table, pass, end});
    const checked_stream beyond = checked(of_layers - 1, {head, layer_table, pass, end});
    expect_first(beyond.found, code::stream_given_up, 11);
    EXPECT_EQ(beyond.found.kept().size(), 1U) << batch_check::finding_lines(beyond.found);
}

TEST(StreamKept, the_file_that_a_plant_brings_counts_and_that_of_a_library_does_not) {
    const auto plant = [](const std::string& library) {
        return lines{"#;PLANT", "PLLB;" + library, "PLNM;/a/Oak",   "PLLC;(0,0,1)", "PLDM;1.000000",
                     "PLSN;1",  "PLRT;0.000000",   "PLSC;1.000000", "PLNT;1",       "#"};
    };
    expect_kept(64 + 6, {head, pass, plant("OrnPlant"), end}); // "/a/Oak"
    EXPECT_EQ(checked(0, {head, pass, plant("Trees"), end}).found.count(code::stream_given_up), 0U);
}

TEST(StreamKept, the_file_of_a_ground_cover_counts_once_for_faces_that_follow_one_another) {
    const lines face = joined({face_head, {"GCOR;-1", "GNDC;/a/Meadow"}, state, triangle(0), close});
    const std::uint64_t of_cover = 64 + 9;
    const std::uint64_t of_layer = 64 + 6;
    expect_kept(of_cover + of_layer, {head, pass, face, {"EMSH; Face"}, face, end});
}

TEST(StreamKept, the_layer_of_a_face_counts_once) {
    expect_kept(64 + 6, {head, pass, face_block, {"EMSH; Face"}, face_block, end});
}

} // namespace
} // namespace stream_pieces
