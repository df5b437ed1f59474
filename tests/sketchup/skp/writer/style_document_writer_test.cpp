#include "sketchup/skp/writer/style_document_writer.h"

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/modern/formats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::Not;

std::string document(std::uint16_t format) {
    sketchup::rendering_options options;
    options.values = {{"RenderMode", sketchup::whole_number(5)},
                      {"DrawHorizon", sketchup::truth(true)},
                      {"FaceBackColor", {sketchup::value_code::color, sketchup::rgba{0xA4, 0xB2, 0xBB, 0xFF}}}};
    return skp::style_document_text("a <style>", options, format);
}

} // namespace

TEST(StyleDocument, begins_as_those_of_the_program) {
    EXPECT_THAT(document(skp::modern::format_2021),
                testing::StartsWith(
                    R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?>)"
                    R"(<styleDocument xmlns="http://sketchup.google.com/schemas/sketchup/1.0/style" )"
                    R"(xmlns:sty="http://sketchup.google.com/schemas/sketchup/1.0/style">)"
                    R"(<sty:style xmlns:t="http://sketchup.google.com/schemas/1.0/types" name="a &lt;style>")"));
}

TEST(StyleDocument, holds_what_the_options_say_and_else_the_usual_values) {
    const std::string text = document(skp::modern::format_2021);
    EXPECT_THAT(text, HasSubstr(R"(<sty:item id="2001"><t:variant type="4">5</t:variant></sty:item>)"));
    EXPECT_THAT(text, HasSubstr(R"(<sty:item id="4002"><t:variant type="1">1</t:variant></sty:item>)"));
    EXPECT_THAT(text, HasSubstr(R"(<sty:item id="2008"><t:variant type="7">0.65</t:variant></sty:item>)"));
}

TEST(StyleDocument, colors_are_signed_numbers_with_red_lowest_and_have_a_type_of_their_own_since_2024) {
    // 0xFFBBB2A4 - 2^32
    EXPECT_THAT(document(skp::modern::format_2021),
                HasSubstr(R"(<sty:item id="2003"><t:variant type="4">-4476252</t:variant></sty:item>)"));
    EXPECT_THAT(document(skp::modern::format_2025),
                HasSubstr(R"(<sty:item id="2003"><t:variant type="5">-4476252</t:variant></sty:item>)"));
}

TEST(StyleDocument, has_the_items_of_its_layout_alone) {
    EXPECT_THAT(document(skp::modern::format_2021), Not(HasSubstr(R"(id="8100")")));
    EXPECT_THAT(document(skp::modern::format_2025),
                HasSubstr(R"(<sty:item id="8102"><t:variant type="6">10</t:variant></sty:item>)"));
}
