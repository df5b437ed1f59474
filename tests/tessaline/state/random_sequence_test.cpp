#include "tessaline/state/random_sequence.h"

#include <gtest/gtest.h>

namespace {

// 1 x 214013 + 2531011 = 2745024, of which bits 16 to 30 are 41; the other values follow in the same way.
TEST(RandomSequence, it_begins_with_the_same_numbers_in_every_process) {
    random_sequence chance;
    for (const int expected : {41, 18467, 6334, 26500, 19169, 15724, 11478, 29358, 26962, 24464})
        EXPECT_EQ(chance.next(), expected);
}

TEST(RandomSequence, no_number_is_negative_or_above_32767) {
    random_sequence chance;
    for (int i = 0; i != 100000; ++i) {
        const int number = chance.next();
        ASSERT_GE(number, 0);
        ASSERT_LE(number, 32767);
    }
}

} // namespace
