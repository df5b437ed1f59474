#include "sketchup/skp/modern/records.h"

#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using skp::byte_cursor;
using skp::format_error;
using namespace skp::modern;

namespace {

std::vector<int> tags_of(const bytes& container) {
    std::vector<int> tags;
    for (const record& r : records(byte_cursor(container)))
        tags.push_back(r.tag);
    return tags;
}

std::vector<std::uint64_t> ids_of(const bytes& payload) {
    std::vector<std::uint64_t> ids;
    for_each_id(byte_cursor(payload), [&ids](std::uint64_t i) { ids.push_back(i); });
    return ids;
}

} // namespace

TEST(Records, follow_one_another_without_gaps) {
    const bytes container = {0xB8, 0x0B, 2, 0, 0, 0, 0xAA, 0xBB, 0x63, 0, 0, 0, 0, 0};
    EXPECT_EQ(tags_of(container), (std::vector<int>{3000, 99}));
}

TEST(Records, an_empty_payload_holds_none) {
    EXPECT_TRUE(tags_of({}).empty());
}

TEST(Records, one_that_ends_behind_its_container_is_an_error) {
    const bytes container = {0xB8, 0x0B, 3, 0, 0, 0, 0xAA, 0xBB};
    EXPECT_THROW(tags_of(container), format_error);
}

TEST(Records, a_length_of_four_billion_is_an_error) {
    EXPECT_THROW(tags_of({0xB8, 0x0B, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0}), format_error);
}

TEST(Records, a_cut_head_is_an_error) {
    const bytes head = {0xB8, 0x0B, 0, 0, 0};
    for (std::size_t size = 1; size <= head.size(); ++size)
        EXPECT_THROW(tags_of(bytes(head.begin(), head.begin() + static_cast<std::ptrdiff_t>(size))), format_error)
            << size;
}

TEST(Records, a_message_names_the_offset_in_the_whole_document_and_the_class) {
    const bytes container = rec(500, rec(502, {1, 2, 3}));
    byte_cursor document(container);
    document.set_where("edge");
    try {
        descend(document, {500, 502, 5000});
        FAIL() << "no error";
    } catch (const format_error& e) {
        // Behind two heads of 6 bytes and the tag of 2 bytes.
        EXPECT_STREQ(e.what(), "offset 14, edge: needs 4 bytes, 1 left");
    }
}

TEST(Records, a_path_leads_to_the_first_record_of_each_tag) {
    const bytes container = rec(99, i32(0)) + rec(506, rec(13500, u8(1))) + rec(506, rec(13500, u8(2)));
    std::optional<byte_cursor> found = descend(byte_cursor(container), {506, 13500});
    ASSERT_TRUE(found);
    EXPECT_EQ(found->u8(), 1);
    EXPECT_FALSE(descend(byte_cursor(container), {506, 13501}));
}

TEST(Records, are_counted_by_tag) {
    EXPECT_EQ(count_of(byte_cursor(rec(99) + rec(2500) + rec(2500)), 2500), 2u);
}

TEST(Records, are_told_from_other_payloads_by_their_lengths) {
    EXPECT_TRUE(looks_like_records(byte_cursor(bytes{})));
    EXPECT_TRUE(looks_like_records(byte_cursor(rec(1, {1, 2}) + rec(2))));
    EXPECT_FALSE(looks_like_records(byte_cursor(rec(1, {1, 2}) + bytes{0})));
    EXPECT_FALSE(looks_like_records(byte_cursor(text("Section"))));
}

TEST(Ids, have_as_many_bytes_as_their_payload) {
    EXPECT_EQ(id_in(byte_cursor(bytes{0x2F})), 47u);
    EXPECT_EQ(id_in(byte_cursor(bytes{0xDD, 0x2D})), 11741u);
    EXPECT_EQ(id_in(byte_cursor(bytes{0x25, 0x0D, 0x2A})), 2755877u);
    EXPECT_EQ(id_in(byte_cursor(bytes{0, 0, 0, 1})), 16777216u);
    EXPECT_EQ(id_in(byte_cursor(bytes{0, 0, 0, 0, 1})), 4294967296u);
    EXPECT_EQ(id_in(byte_cursor(bytes{0, 0, 0, 0, 0, 1})), 1099511627776u);
    EXPECT_EQ(id_in(byte_cursor(bytes{0, 0, 0, 0, 0, 0, 1})), 281474976710656u);
    EXPECT_EQ(id_in(byte_cursor(bytes{0, 0, 0, 0, 0, 0, 0, 1})), 72057594037927936u);
}

TEST(Ids, of_no_bytes_are_zero_and_of_nine_an_error) {
    EXPECT_EQ(id_in(byte_cursor(bytes{})), 0u);
    EXPECT_THROW(id_in(byte_cursor(bytes(9, 0))), format_error);
}

TEST(Ids, stand_in_a_list_with_their_sizes) {
    EXPECT_EQ(ids_of({0x01, 0x13, 0x01, 0x16, 0x02, 0xDD, 0x2D}), (std::vector<std::uint64_t>{19, 22, 11741}));
    EXPECT_TRUE(ids_of({}).empty());
}

TEST(Ids, that_end_behind_their_list_are_an_error) {
    EXPECT_THROW(ids_of({0x02, 0x13}), format_error);
    EXPECT_THROW(ids_of({0x09, 1, 2, 3, 4, 5, 6, 7, 8, 9}), format_error);
}

TEST(PrimitivePayloads, give_text_guid_and_doubles) {
    EXPECT_EQ(text_in(byte_cursor(text("Gr\xC3\xBCn"))), "Gr\xC3\xBCn");
    EXPECT_EQ(guid_in(byte_cursor(guid(7)))[15], 7);
    EXPECT_EQ((doubles_in<2>(byte_cursor(doubles({1.5, -2})))), (std::array<double, 2>{1.5, -2}));
    EXPECT_THROW(guid_in(byte_cursor(bytes(15, 0))), format_error);
    EXPECT_THROW((doubles_in<2>(byte_cursor(bytes(15, 0)))), format_error);
}

TEST(PrimitivePayloads, of_text_replace_what_is_no_utf_8_but_give_the_bytes_as_they_stand) {
    const bytes broken = {'a', 0xFF, 0xC3, 0xA9, 0xE2, 0x82};
    EXPECT_EQ(text_in(byte_cursor(broken)), "a\xEF\xBF\xBD\xC3\xA9\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(bytes_in(byte_cursor(broken)), "a\xFF\xC3\xA9\xE2\x82");
}
