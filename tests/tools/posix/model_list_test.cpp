// Lists of models: which names are taken, and where each model has its place.

#include "tools/model_lists/model_list.h"

#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

list_reading read(std::string_view text, const std::optional<std::string>& root = std::nullopt) {
    return read_model_list(text, "/house", root);
}

TEST(ModelList, places_are_below_the_deepest_folder_that_holds_all_models) {
    const list_reading read_list = read("/m/houses/a/x.skp\n/m/houses/b/y.skp\n");
    EXPECT_EQ(read_list.refusal, "");
    EXPECT_EQ(read_list.list.root, "/m/houses");
    EXPECT_THAT(read_list.list.places, ElementsAre("a/x.skp", "b/y.skp"));
    EXPECT_EQ(read_list.list.model(1), "/m/houses/b/y.skp");
}

TEST(ModelList, names_that_begin_alike_do_not_make_a_common_folder) {
    EXPECT_EQ(read("/m/house1/x.skp\n/m/house2/x.skp").list.root, "/m");
    EXPECT_EQ(read("/m/a.skp\n/m/a.skp.skp").list.root, "/m");
}

TEST(ModelList, the_common_folder_of_one_model_is_its_own) {
    const list_reading read_list = read("/m/x.skp");
    EXPECT_EQ(read_list.list.root, "/m");
    EXPECT_THAT(read_list.list.places, ElementsAre("x.skp"));
}

TEST(ModelList, models_that_share_nothing_have_their_places_below_the_root_of_the_system) {
    const list_reading read_list = read("/m/x.skp\n/n/y.skp");
    EXPECT_EQ(read_list.list.root, "");
    EXPECT_THAT(read_list.list.places, ElementsAre("m/x.skp", "n/y.skp"));
    EXPECT_EQ(read_list.list.model(0), "/m/x.skp");
}

TEST(ModelList, a_name_that_is_not_full_starts_at_the_folder_given) {
    EXPECT_EQ(read("x.skp\nhouses/y.skp").list.model(1), "/house/houses/y.skp");
    EXPECT_EQ(read("../x.skp").list.model(0), "/x.skp");
    EXPECT_EQ(read("../../../x.skp").list.model(0), "/x.skp");
}

TEST(ModelList, lines_may_end_either_way_and_empty_ones_name_nothing) {
    EXPECT_THAT(read("a.skp\r\n\r\n\nb.skp\nc.skp").list.places, ElementsAre("a.skp", "b.skp", "c.skp"));
}

TEST(ModelList, blanks_quotation_marks_and_letters_of_any_alphabet_belong_to_the_name) {
    EXPECT_THAT(read(" a b .skp\n\"c\".skp\nit's.skp\n#d\nMaß Ω 日本.skp\n\xFF.skp\n-e\n").list.places,
                ElementsAre(" a b .skp", "\"c\".skp", "it's.skp", "#d", "Maß Ω 日本.skp", "\xFF.skp", "-e"));
}

TEST(ModelList, names_ended_by_zero_bytes_may_hold_line_feeds) {
    using namespace std::string_view_literals;
    EXPECT_THAT(read("a\nb.skp\0c\r\0"sv).list.places, ElementsAre("a\nb.skp", "c\r"));
}

TEST(ModelList, a_model_listed_twice_is_one_model_however_it_is_spelt) {
    EXPECT_THAT(read("a/x.skp\nb/y.skp\n./a//x.skp\nb/../a/x.skp\n/house/a/./x.skp\n").list.places,
                ElementsAre("a/x.skp", "b/y.skp"));
}

TEST(ModelList, a_folder_may_be_named_as_the_common_one) {
    EXPECT_THAT(read("a/x.skp", "/").list.places, ElementsAre("house/a/x.skp"));
    EXPECT_THAT(read("a/x.skp", ".").list.places, ElementsAre("a/x.skp"));
    EXPECT_THAT(read("/m/a/x.skp", "/m/b/../").list.places, ElementsAre("a/x.skp"));
}

TEST(ModelList, a_model_outside_the_common_folder_is_refused_by_name) {
    EXPECT_EQ(read("/m/a.skp\n/n/b.skp", "/m").refusal, "/n/b.skp does not lie below /m/");
    EXPECT_EQ(read("/m2/a.skp", "/m").refusal, "/m2/a.skp does not lie below /m/");
    EXPECT_EQ(read("/m", "/m").refusal, "/m does not lie below /m/");
}

TEST(ModelList, a_list_without_a_model_is_refused) {
    EXPECT_EQ(read("").refusal, "the list names no model");
    EXPECT_EQ(read("\n\r\n").refusal, "the list names no model");
}

TEST(ModelList, a_model_inside_another_is_refused) {
    // Between the two, in the order of bytes, stands "a!".
    EXPECT_EQ(read("/m/a/x.skp\n/m/a!\n/m/a\n").refusal, "the batch of a/x.skp would lie in the batch of a");
}

TEST(ModelList, a_place_in_the_folder_of_the_list_is_refused) {
    EXPECT_THAT(read("/m/tessaline-list/x.skp\n/m/y.skp").refusal, HasSubstr("would lie in the folder tessaline-list"));
    EXPECT_THAT(read("/m/tessaline-list\n").refusal, HasSubstr("would lie in the folder tessaline-list"));
    EXPECT_THAT(read("/m/tessaline-list.skp\n/m/a/tessaline-list/x.skp\n").refusal, IsEmpty());
}

TEST(ModelList, the_system_itself_and_nothing_are_no_models) {
    EXPECT_EQ(read("/\n").refusal, " does not lie below /");
    EXPECT_EQ(read("..\n/m/x.skp").refusal, " does not lie below /");
}

TEST(ModelList, a_batch_has_the_place_of_its_model_and_a_report_one_like_it) {
    EXPECT_EQ(batch_folder("/out", "a/x.skp"), "/out/a/x.skp");
    EXPECT_EQ(report_file("/out", "a/x.skp"), "/out/tessaline-list/reports/a/x.skp.json");
}

} // namespace
