#include "platform/platform.h"

#include <gtest/gtest.h>

namespace {

TEST(TextEncoding, plain_letters_are_the_same_in_both) {
    EXPECT_EQ(platform::own_from_utf8("C:\\a b\\house_12.png"), "C:\\a b\\house_12.png");
    EXPECT_EQ(platform::utf8_from_own("C:\\a b\\house_12.png"), "C:\\a b\\house_12.png");
    EXPECT_EQ(platform::own_from_utf8(""), "");
}

TEST(TextEncoding, a_name_out_of_a_model_comes_back_from_the_own_encoding) {
    EXPECT_EQ(platform::utf8_from_own(platform::own_from_utf8("K\xc3\xb6"
                                                              "ff")),
              "K\xc3\xb6"
              "ff");
}

TEST(TextEncoding, what_is_no_utf8_stays_as_it_is) {
    EXPECT_EQ(platform::own_from_utf8("K\xf6"
                                      "ff"),
              "K\xf6"
              "ff");
}

} // namespace
