// Whether a model's ground plane is restored, and how the chunks of its text are put together.

#include "tessaline/reading/ground_plane.h"

#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>
#include <map>

namespace {

std::optional<std::string> assembled(const std::map<std::string, std::string>& texts) {
    return assembled_ground_plane([&texts](const std::string& key) -> std::optional<std::string> {
        const auto found = texts.find(key);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    });
}

TEST(GroundPlane, one_chunk_is_the_text) {
    EXPECT_EQ(assembled({{"hex_data", "5;1;x;"}, {"hex_data_chunk0", "abcde"}}), "abcde");
}

TEST(GroundPlane, a_missing_middle_chunk_ends_the_text_and_does_not_stop_the_restoration) {
    EXPECT_EQ(
        assembled(
            {{"hex_data", "800001;3;x;"}, {"hex_data_chunk0", std::string(400000, 'a')}, {"hex_data_chunk2", "c"}}),
        std::string(400000, 'a'));
}

TEST(GroundPlane, an_incomplete_header_gives_nothing) {
    for (const char* header : {"", ";1;x;", "5", "5;", "5;1", "5;1;", "5;1;x", "5;0;x;", "5;;x;", "5;-1;x;"})
        EXPECT_FALSE(assembled({{"hex_data", header}, {"hex_data_chunk0", "abcde"}})) << header;
}

TEST(GroundPlane, a_missing_last_chunk_gives_nothing) {
    EXPECT_FALSE(assembled({{"hex_data", "5;2;x;"}, {"hex_data_chunk0", "abcde"}}));
}

TEST(GroundPlane, a_length_beyond_32_bits_asks_for_no_more_room_than_the_chunks_fill) {
    EXPECT_EQ(assembled({{"hex_data", "9000000000;1;x;"}, {"hex_data_chunk0", "ab"}}), "ab");
}

TEST(GroundPlane, a_count_beyond_all_chunks_is_not_walked_through) {
    EXPECT_EQ(assembled({{"hex_data", "5;2147483647;x;"}, {"hex_data_chunk2147483646", "ab"}}), "");
    EXPECT_FALSE(assembled({{"hex_data", "5;9000000000;x;"}, {"hex_data_chunk0", "ab"}}));
}

// The dictionary of a model that carries the text "abcde" and, if there is one, this answer.
class GroundPlaneOfModel : public reader_test {
protected:
    std::optional<std::string> text_with(const std::optional<sketchup::typed_value>& answer, bool& saved) {
        builder = sketchup::model_builder();
        say("hex_data", sketchup::text("5;1;x;"));
        say("hex_data_chunk0", sketchup::text("abcde"));
        if (answer)
            say("Ground_Plane_Saved", *answer);
        return text_of_model(saved);
    }
    std::optional<std::string> text_of_model(bool& saved) {
        if (SUIsValid(open_model))
            SUModelRelease(&open_model);
        open();
        const std::vector<SUAttributeDictionaryRef> dictionaries =
            all_handles(SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries, open_model);
        return ground_plane_text(dictionaries.at(0), saved);
    }
    void say(std::string_view key, sketchup::typed_value value) {
        builder.attribute(builder.root().list(), "Zyn_Ground_Plane", key, std::move(value));
    }
};

TEST_F(GroundPlaneOfModel, is_restored_if_the_model_says_that_it_saved_one) {
    bool saved = false;
    EXPECT_EQ(text_with(sketchup::truth(true), saved), "abcde");
    EXPECT_TRUE(saved);
}

TEST_F(GroundPlaneOfModel, is_not_restored_if_the_model_denies_it_whatever_an_earlier_dictionary_said) {
    bool saved = true;
    EXPECT_EQ(text_with(sketchup::truth(false), saved), std::nullopt);
    EXPECT_FALSE(saved);
}

TEST_F(GroundPlaneOfModel, without_an_answer_that_of_an_earlier_dictionary_stands) {
    bool saved = false;
    EXPECT_EQ(text_with(std::nullopt, saved), std::nullopt);
    saved = true;
    EXPECT_EQ(text_with(std::nullopt, saved), "abcde");
    EXPECT_TRUE(saved);
}

TEST_F(GroundPlaneOfModel, values_that_are_no_text_are_not_there) {
    bool saved = true;
    say("hex_data", sketchup::whole_number(5));
    say("hex_data_chunk0", sketchup::text("abcde"));
    EXPECT_EQ(text_of_model(saved), std::nullopt);
    builder = sketchup::model_builder();
    say("hex_data", sketchup::text("5;1;x;"));
    say("hex_data_chunk0", sketchup::whole_number(5));
    EXPECT_EQ(text_of_model(saved), std::nullopt);
}

} // namespace
