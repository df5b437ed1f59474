#include "sketchup/skp/modern/modern_reader.h"

#include "sketchup/skp/read_model.h"
#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using skp::failure;

namespace {

bytes small_model() {
    return layers(layer(1, "Layer0")) + content(square_lists() + rec(5003, square_face(21)));
}

} // namespace

TEST(ModernReader, reads_a_whole_file) {
    const auto m = skp::read_model(file_of_parts(small_model()));
    EXPECT_TRUE(m->is_modern);
    EXPECT_EQ(m->version, (sketchup::version_number{21, 0, 339}));
    EXPECT_EQ(m->faces.size(), 1u);
    EXPECT_EQ(m->faces[0].owner, m.get());
    EXPECT_EQ(m->edges[0].faces.count, 1u);
}

TEST(ModernReader, an_empty_model_opens) {
    const auto m = skp::read_model(file_of_parts({}));
    EXPECT_EQ(m->layers.size(), 1u);
    EXPECT_TRUE(m->root.faces.empty());
    EXPECT_NE(m->root.id, 0);
}

TEST(ModernReader, takes_the_guid_from_the_summary) {
    const auto m = skp::read_model(file_of({{"model.dat", rec(500)}, {"meta/meta.dat", rec(100, rec(102, guid(5)))}}));
    EXPECT_EQ(m->guid[0], 5);
}

TEST(ModernReader, refuses_a_file_that_asks_for_a_newer_reader) {
    const entries model = {{"model.dat", rec(500)}};
    EXPECT_EQ(refusal(file_of(model, 1000)), failure::too_new);
    EXPECT_EQ(refusal(file_of(model, 18)), failure::too_new);
    EXPECT_EQ(refusal(file_of(model, 17)), std::nullopt);
}

TEST(ModernReader, opens_a_file_of_an_unknown_layout) {
    EXPECT_EQ(refusal(file_of({{"model.dat", rec(500)}}, 1, 1000)), std::nullopt);
}

TEST(ModernReader, refuses_an_archive_without_a_model) {
    EXPECT_EQ(refusal(file_of({{"meta/meta.dat", rec(100)}})), failure::damaged);
    EXPECT_EQ(refusal(file_of({{"model.dat", {}}})), failure::damaged);
    EXPECT_EQ(refusal(file_of({{"model.dat", rec(501)}})), failure::damaged);
}

TEST(ModernReader, every_file_that_was_cut_short_is_refused) {
    const bytes whole = file_of_parts(small_model());
    ASSERT_EQ(refusal(whole), std::nullopt);
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_NE(refusal(bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))), std::nullopt)
            << size;
}

TEST(ModernReader, every_document_that_was_cut_short_is_refused) {
    const bytes whole = rec(500, small_model());
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(
            refusal(file_of({{"model.dat", bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))}})),
            failure::damaged)
            << size;
}

TEST(ModernReader, any_part_that_was_cut_short_inside_whole_frames_is_refused_or_left_out) {
    const bytes whole = small_model();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto why =
            refusal(file_of_parts(bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))));
        EXPECT_TRUE(!why || why == failure::damaged) << size;
    }
}

TEST(ModernReader, any_changed_byte_is_refused_or_read) {
    const bytes whole = small_model();
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const int change : {0x01, 0x80, 0xFF}) {
            bytes changed = whole;
            changed[at] ^= static_cast<std::uint8_t>(change);
            const auto why = refusal(file_of_parts(changed));
            EXPECT_TRUE(!why || why == failure::damaged) << at;
        }
}
