#include "sketchup/skp/classic/archive.h"

#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

using classic::assembler;
using skp::archive;
using skp::object_class;
using skp::object_tag;

namespace {

archive wide_archive(const assembler& a) {
    return archive(a.bytes, 0, true);
}

void expect_tag(const object_tag& tag, object_class what, bool is_new, std::uint32_t slot) {
    EXPECT_EQ(tag.what, what);
    EXPECT_EQ(tag.is_new, is_new);
    EXPECT_EQ(tag.slot, slot);
}

std::string message_of(const assembler& a) {
    archive in = wide_archive(a);
    try {
        while (!in.at_end())
            in.next_tag();
    } catch (const skp::format_error& e) {
        return e.what();
    }
    return "";
}

} // namespace

TEST(Archive, a_null_tag_takes_no_slot) {
    const assembler a = assembler().null().new_class("CVertex");
    archive in = wide_archive(a);
    EXPECT_EQ(in.next_tag().what, object_class::none);
    expect_tag(in.next_tag(), object_class::vertex, true, 2);
}

TEST(Archive, a_new_class_takes_a_slot_and_its_object_the_next) {
    const assembler a = assembler().new_class("CVertex").new_class("CEdge").new_of(1).ref(2).new_of(3).ref(6);
    archive in = wide_archive(a);
    expect_tag(in.next_tag(), object_class::vertex, true, 2);
    expect_tag(in.next_tag(), object_class::edge, true, 4);
    expect_tag(in.next_tag(), object_class::vertex, true, 5);
    expect_tag(in.next_tag(), object_class::vertex, false, 2);
    expect_tag(in.next_tag(), object_class::edge, true, 6);
    expect_tag(in.next_tag(), object_class::edge, false, 6);
    EXPECT_TRUE(in.at_end());
}

TEST(Archive, slots_from_7fff_on_are_named_in_the_long_form) {
    assembler a;
    a.new_class("CVertex");
    while (a.bytes.size() < 13 + 2 * (0x7FFE - 2))
        a.new_of(1);
    a.ref(0x7FFE).new_of(1);                               // the last short one; the object in 7FFF
    a.u16(0x7FFF).u32(0x7FFF);                             // a reference to it
    a.u16(0x7FFF).u32(0x80000001).u16(0x7FFF).u32(0x8000); // a new one in 8000, and a reference to it
    archive in = wide_archive(a);
    for (std::uint32_t slot = 2; slot <= 0x7FFE; ++slot)
        EXPECT_EQ(in.next_tag().slot, slot);
    expect_tag(in.next_tag(), object_class::vertex, false, 0x7FFE);
    expect_tag(in.next_tag(), object_class::vertex, true, 0x7FFF);
    expect_tag(in.next_tag(), object_class::vertex, false, 0x7FFF);
    expect_tag(in.next_tag(), object_class::vertex, true, 0x8000);
    expect_tag(in.next_tag(), object_class::vertex, false, 0x8000);
}

TEST(Archive, a_class_slot_beyond_7fff_is_named_in_the_long_form) {
    assembler a;
    a.new_class("CVertex");
    for (std::uint32_t slot = 3; slot <= 0x7FFF; ++slot)
        a.new_of(1);
    a.new_class("CEdge").u16(0x7FFF).u32(0x80008000);
    archive in = wide_archive(a);
    for (std::uint32_t slot = 2; slot <= 0x7FFF; ++slot)
        in.next_tag();
    expect_tag(in.next_tag(), object_class::edge, true, 0x8001);
    expect_tag(in.next_tag(), object_class::edge, true, 0x8002);
}

TEST(Archive, a_slot_that_is_not_given_yet_is_refused) {
    EXPECT_EQ(message_of(assembler().new_class("CVertex").ref(3)), "offset 15, file: slot 3 of 2 is named");
    EXPECT_EQ(message_of(assembler().new_class("CVertex").u16(0x7FFF).u32(0)), "offset 19, file: slot 0 of 2 is named");
    EXPECT_EQ(message_of(assembler().new_of(0)), "offset 2, file: slot 0 of 0 is named");
}

TEST(Archive, a_class_and_an_object_are_not_taken_for_each_other) {
    EXPECT_EQ(message_of(assembler().new_class("CVertex").ref(1)), "offset 15, file: slot 1 holds a class");
    EXPECT_EQ(message_of(assembler().new_class("CVertex").new_of(2)), "offset 15, file: slot 2 holds no class");
}

TEST(Archive, an_unknown_class_is_refused_by_name) {
    EXPECT_EQ(message_of(assembler().new_class("CTeapot")), "offset 13, file: unknown class \"CTeapot\"");
}

TEST(Archive, a_tag_that_is_cut_off_is_refused) {
    EXPECT_NE(message_of(assembler().u8(0)), "");
    EXPECT_NE(message_of(assembler().u16(0xFFFF).u16(0).u16(7).characters("CVert")), "");
    EXPECT_NE(message_of(assembler().u16(0x7FFF).u16(1)), "");
}

TEST(Archive, strings_of_another_width_are_refused) {
    const assembler narrow = assembler().u8(1).characters("a");
    const assembler wide = assembler().text("a");
    EXPECT_THROW(archive(narrow.bytes, 0, true).text(), skp::format_error);
    EXPECT_THROW(archive(wide.bytes, 0, false).text(), skp::format_error);
    EXPECT_EQ(archive(narrow.bytes, 0, false).text(), "a");
    EXPECT_EQ(archive(wide.bytes, 0, true).text(), "a");
}

TEST(Archive, the_version_map_takes_two_slots_and_gives_the_layouts) {
    const assembler a = assembler()
                            .new_class("CVersionMap")
                            .text("CEntity")
                            .u32(5)
                            .text("CUnheardOf")
                            .u32(7)
                            .text("End-Of-Version-Map")
                            .u32(0)
                            .new_class("CVertex");
    archive in = wide_archive(a);
    in.read_version_map();
    EXPECT_EQ(in.layout().entity, 5);
    EXPECT_EQ(in.layout().edge, skp::layout_numbers::absent);
    expect_tag(in.next_tag(), object_class::vertex, true, 4);
}

TEST(Archive, every_class_is_found_by_the_name_it_bears) {
    for (int i = 1; i <= static_cast<int>(object_class::schema_zip_file); ++i) {
        const auto what = static_cast<object_class>(i);
        EXPECT_EQ(skp::class_named(skp::name_of(what)), what) << i;
    }
    EXPECT_EQ(skp::class_named("CFace"), object_class::face);
    EXPECT_EQ(skp::class_named("CDrawingElement"), object_class::none);
}
