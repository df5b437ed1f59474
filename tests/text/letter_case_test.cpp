#include "text/letter_case.h"

#include <gtest/gtest.h>

TEST(LetterCase, changes_the_letters_from_a_to_z_alone) {
    EXPECT_EQ(in_capitals("az AZ 09 @[`{"), "AZ AZ 09 @[`{");
    EXPECT_EQ(lower_case("az AZ 09 @[`{"), "az az 09 @[`{");
}

TEST(LetterCase, leaves_the_bytes_of_other_letters_alone) {
    EXPECT_EQ(in_capitals("b\xc3\xbcro"), "B\xc3\xbcRO");
    EXPECT_EQ(lower_case("B\xc3\x9cRO"), "b\xc3\x9cro");
}
