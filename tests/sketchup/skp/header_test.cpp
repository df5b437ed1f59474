#include "sketchup/skp/header.h"

#include "sketchup/skp/format_error.h"
#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

using classic::assembler;

namespace {

assembler strings(std::string_view version, bool wide = true) {
    assembler a;
    a.wide = wide;
    return a.text("SketchUp Model").text(version);
}

assembler classic_body(assembler a) {
    return a.zeros(16).text("model.skp").u32(0).new_class("CVersionMap");
}

assembler archive_body(assembler a) {
    return a.characters("VFF").u16(8).u16(1).u16(17).u32(0).characters("PK\3\4");
}

skp::failure failure_of(const assembler& a) {
    try {
        skp::read_header(a.bytes);
    } catch (const skp::format_error& e) {
        return e.why;
    }
    ADD_FAILURE() << "read";
    return skp::failure::damaged;
}

} // namespace

TEST(Header, a_classic_file_is_told_by_its_version_map) {
    const skp::file_header header = skp::read_header(classic_body(strings("{17.2.2555}")).bytes);
    EXPECT_EQ(header.kind, skp::container::classic);
    EXPECT_EQ(header.version, (sketchup::version_number{17, 2, 2555}));
    EXPECT_TRUE(header.wide_strings);
    EXPECT_EQ(header.body, 4u + 28 + 4 + 22); // two marks of 4 bytes, 14 and 11 units of 2
}

TEST(Header, the_oldest_files_have_narrow_strings) {
    const skp::file_header header = skp::read_header(classic_body(strings("{3.1.33}", false)).bytes);
    EXPECT_EQ(header.version, (sketchup::version_number{3, 1, 33}));
    EXPECT_FALSE(header.wide_strings);
}

TEST(Header, an_archive_is_told_by_its_mark) {
    const skp::file_header header = skp::read_header(archive_body(strings("{25.0.575}")).bytes);
    EXPECT_EQ(header.kind, skp::container::modern);
    EXPECT_EQ(header.version, (sketchup::version_number{25, 0, 575}));
    EXPECT_EQ(header.body, 4u + 28 + 4 + 20);
}

TEST(Header, the_container_is_told_by_structure_and_not_by_version) {
    EXPECT_EQ(skp::read_header(classic_body(strings("{21.0.0}")).bytes).kind, skp::container::classic);
    EXPECT_EQ(skp::read_header(archive_body(strings("{20.0.0}")).bytes).kind, skp::container::modern);
}

TEST(Header, a_classic_id_that_looks_like_the_mark_of_an_archive_does_not_mislead) {
    assembler a = strings("{17.2.2555}").characters("VFF").zeros(13).text("").u32(0).new_class("CVersionMap");
    EXPECT_EQ(skp::read_header(a.bytes).kind, skp::container::classic);
}

TEST(Header, other_bytes_are_no_model) {
    EXPECT_EQ(failure_of(assembler()), skp::failure::not_a_model);
    EXPECT_EQ(failure_of(assembler().characters("This is no model at all")), skp::failure::not_a_model);
    EXPECT_EQ(failure_of(classic_body(assembler().text("SketchUp Mode1").text("{17.2.2555}"))),
              skp::failure::not_a_model);
}

TEST(Header, a_version_must_be_three_numbers_in_braces) {
    for (const char* version :
         {"", "17.2.2555", "{17.2}", "{17.2.2555.1}", "{17.-2.1}", "{a.b.c}", "{17.2.99999999999}", "{17..1}", "{}"})
        EXPECT_EQ(failure_of(classic_body(strings(version))), skp::failure::not_a_model) << version;
}

TEST(Header, a_known_version_in_an_unknown_container_is_damaged) {
    EXPECT_EQ(failure_of(strings("{17.2.2555}").zeros(100)), skp::failure::damaged);
    EXPECT_EQ(failure_of(strings("{17.2.2555}")), skp::failure::damaged);
}

TEST(Header, a_future_version_in_an_unknown_container_is_too_new) {
    EXPECT_EQ(failure_of(strings("{27.0.0}").zeros(100)), skp::failure::too_new);
}

TEST(Header, a_cut_in_the_strings_is_no_model) {
    const std::vector<std::uint8_t> bytes = strings("{17.2.2555}").bytes;
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        assembler a;
        a.bytes.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(failure_of(a), skp::failure::not_a_model) << size;
    }
}
