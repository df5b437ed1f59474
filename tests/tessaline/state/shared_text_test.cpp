#include "tessaline/state/shared_text.h"

#include <gtest/gtest.h>

TEST(SharedText, is_empty_until_it_is_given_a_text) {
    shared_text text;
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.str(), "");
    text = "spot";
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text, "spot");
    text = "";
    EXPECT_TRUE(text.empty());
}

TEST(SharedText, copies_share_their_bytes_until_one_is_given_others) {
    shared_text text;
    text = std::string(1000, 'a');
    shared_text copy = text;
    EXPECT_EQ(&copy.str(), &text.str());
    copy = "b";
    EXPECT_EQ(text, std::string(1000, 'a'));
    EXPECT_EQ(copy, "b");
}

TEST(SharedText, keeps_bytes_of_any_kind) {
    shared_text text;
    text = std::string_view("a\0b", 3);
    EXPECT_EQ(text.str().size(), 3u);
    EXPECT_EQ(std::string_view(text), std::string_view("a\0b", 3));
}
