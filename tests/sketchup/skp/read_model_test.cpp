#include "sketchup/skp/read_model.h"

#include "sketchup/skp/format_error.h"
#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

namespace {

using classic::small_model;

skp::failure failure_of(std::vector<std::uint8_t> bytes) {
    try {
        skp::read_model(std::move(bytes));
    } catch (const skp::format_error& e) {
        return e.why;
    }
    ADD_FAILURE() << "opened";
    return skp::failure::damaged;
}

} // namespace

TEST(ReadModel, a_classic_body_that_claims_to_be_21_opens) {
    small_model small;
    small.version = "{21.0.0}";
    const auto m = skp::read_model(small.file());
    EXPECT_EQ(m->version, (sketchup::version_number{21, 0, 0}));
    EXPECT_FALSE(m->is_modern);
}

TEST(ReadModel, a_readable_body_of_a_version_from_the_future_is_too_new) {
    small_model small;
    small.version = "{99.1.0}";
    EXPECT_EQ(failure_of(small.file()), skp::failure::too_new);
    small.version = "{27.0.0}";
    EXPECT_EQ(failure_of(small.file()), skp::failure::too_new);
    small.version = "{26.0.0}";
    EXPECT_NE(skp::read_model(small.file()), nullptr);
}

TEST(ReadModel, no_bytes_are_no_model) {
    EXPECT_EQ(failure_of({}), skp::failure::not_a_model);
}

TEST(ReadModel, a_damaged_body_is_told_from_no_model) {
    std::vector<std::uint8_t> bytes = small_model().file();
    bytes.pop_back();
    EXPECT_EQ(failure_of(bytes), skp::failure::damaged);
}

TEST(ReadModel, what_was_read_is_linked) {
    const auto m = skp::read_model(small_model().file());
    EXPECT_EQ(m->owner, m.get());
    EXPECT_EQ(m->layers[0].owner, m.get());
}
