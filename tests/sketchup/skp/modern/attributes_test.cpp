// Attribute dictionaries of the archive container and what they hang on.

#include "sketchup/skp/modern/model_data.h"
#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::value_code;

namespace {

bytes entry(const std::string& key, const bytes& value) {
    return rec(14006, text(key)) + rec(14500, value);
}

bytes dictionary(const std::string& name, const bytes& entries = {}, const bytes& base = rec(14000)) {
    return rec(14003, base + rec(14004, text(name)) + rec(14005, entries) + rec(14007, i32(0)));
}

// What stands below an entity part, with dictionaries.
bytes attached(const bytes& list) {
    return rec(1501, rec(14001, rec(14002, list)));
}

std::string first_name(const sketchup::model& m, const sketchup::index_range& range) {
    return range.count == 0 ? "none" : m.dictionaries[range.first].name;
}

bytes nested_dictionaries(int depth) {
    bytes inner = dictionary("innermost");
    for (int i = 1; i < depth; ++i)
        inner = dictionary("outer", {}, rec(14000, rec(1500, attached(inner))));
    return inner;
}

} // namespace

TEST(ModernAttributes, a_dictionary_keeps_its_entries_in_the_order_of_the_file) {
    const bytes list = dictionary("qlw_lamp", entry("type", rec(14509, text("1"))) +
                                                  entry("angle", rec(14505, doubles({0.5}))) + entry("none", {}));
    const auto m = read_parts(rec(502, rec(5000, rec(2000, rec(1500, attached(list))))));
    ASSERT_EQ(m->root.dictionaries.count, 1u);
    const sketchup::attribute_dictionary& d = m->dictionaries[m->root.dictionaries.first];
    EXPECT_EQ(d.name, "qlw_lamp");
    EXPECT_FALSE(d.read_only);
    EXPECT_EQ(d.entries, (std::vector<sketchup::attribute>{{"type", {value_code::string, std::string("1")}},
                                                           {"angle", {value_code::float64, 0.5}},
                                                           {"none", {}}}));
}

TEST(ModernAttributes, a_value_without_a_key_is_passed_over) {
    const bytes list = dictionary("d", rec(14500, rec(14506, u8(1))) + entry("a", rec(14506, u8(1))) + rec(14500));
    const auto m = read_parts(rec(502, rec(5000, rec(2000, rec(1500, attached(list))))));
    ASSERT_EQ(m->dictionaries.size(), 1u);
    ASSERT_EQ(m->dictionaries[0].entries.size(), 1u);
    EXPECT_EQ(m->dictionaries[0].entries[0].key, "a");
}

TEST(ModernAttributes, the_dictionaries_of_the_file_are_not_those_of_the_model) {
    const bytes properties =
        rec(14003, rec(14004, text("ModelProperties")) + rec(14005, entry("Description", rec(14509, text("A house")))) +
                       rec(14007, i32(1)));
    const auto m = read_parts(rec(521, rec(14001, rec(14002, properties))) +
                              rec(502, rec(5000, rec(2000, rec(1500, attached(dictionary("mine")))))));
    ASSERT_EQ(m->properties.count, 1u);
    EXPECT_EQ(first_name(*m, m->properties), "ModelProperties");
    EXPECT_TRUE(m->dictionaries[m->properties.first].read_only);
    ASSERT_EQ(m->root.dictionaries.count, 1u);
    EXPECT_EQ(first_name(*m, m->root.dictionaries), "mine");
    EXPECT_EQ(m->description, "A house");
}

TEST(ModernAttributes, hang_on_every_kind_of_element) {
    const auto with = [](std::uint64_t i, const char* name) {
        return rec(2000, rec(1500, rec(1502, id(i)) + attached(dictionary(name))));
    };
    const bytes lists = rec(5001, rec(2500, rec(1500, rec(1502, id(1)) + attached(dictionary("vertex"))) +
                                                rec(2501, doubles({0, 0, 0})))) +
                        rec(5014, rec(19000, rec(1500, rec(1502, id(2)) + attached(dictionary("curve"))))) +
                        rec(5015, rec(19500, rec(19000, rec(1500, rec(1502, id(3)) + attached(dictionary("arc")))))) +
                        rec(5002, rec(3000, with(4, "edge") + rec(3001, id(1)) + rec(3002, id(1)))) +
                        rec(5003, rec(3500, with(5, "face") + rec(3501, plane_up()) + rec(3502, loop(use(4))))) +
                        rec(5004, rec(6500, with(6, "instance") + rec(6503, id(50)))) +
                        rec(5005, rec(7500, rec(6500, with(7, "group") + rec(6503, id(50))))) +
                        rec(5009, rec(17001, rec(17000, with(8, "guide"))));
    const auto m = read_parts(layers(rec(15500, rec(1500, rec(1502, id(9)) + attached(dictionary("layer"))))) +
                              definitions(definition(50, "d")) + content(lists));
    EXPECT_EQ(first_name(*m, m->vertices.at(0).dictionaries), "vertex");
    EXPECT_EQ(first_name(*m, m->curves.at(0).dictionaries), "curve");
    EXPECT_EQ(first_name(*m, m->curves.at(1).dictionaries), "arc");
    EXPECT_EQ(first_name(*m, m->edges.at(0).dictionaries), "edge");
    EXPECT_EQ(first_name(*m, m->faces.at(0).dictionaries), "face");
    EXPECT_EQ(first_name(*m, m->placements.at(0).dictionaries), "instance");
    EXPECT_EQ(first_name(*m, m->placements.at(1).dictionaries), "group");
    EXPECT_EQ(first_name(*m, m->annotations.at(0).dictionaries), "guide");
    EXPECT_EQ(first_name(*m, m->layers.at(0).dictionaries), "layer");
}

TEST(ModernAttributes, nest_in_one_another_and_owners_keep_neighbours) {
    const bytes inner = rec(14000, rec(1500, attached(dictionary("c") + dictionary("d"))));
    const bytes list = dictionary("a", {}, inner) + dictionary("b");
    const auto m = read_parts(rec(502, rec(5000, rec(2000, rec(1500, attached(list))))));
    ASSERT_EQ(m->dictionaries.size(), 4u);
    ASSERT_EQ(m->root.dictionaries.count, 2u);
    const sketchup::attribute_dictionary& a = m->dictionaries[m->root.dictionaries.first];
    EXPECT_EQ(a.name, "a");
    EXPECT_EQ(m->dictionaries[m->root.dictionaries.first + 1].name, "b");
    ASSERT_EQ(a.dictionaries.count, 2u);
    EXPECT_EQ(m->dictionaries[a.dictionaries.first].name, "c");
    EXPECT_EQ(m->dictionaries[a.dictionaries.first + 1].name, "d");
}

TEST(ModernAttributes, nest_down_to_a_limit) {
    const auto nested = [](int depth) {
        return rec(502, rec(5000, rec(2000, rec(1500, attached(nested_dictionaries(depth))))));
    };
    EXPECT_EQ(read_parts(nested(skp::modern::deepest_containers))->dictionaries.size(),
              std::size_t{skp::modern::deepest_containers});
    EXPECT_THROW(read_parts(nested(skp::modern::deepest_containers + 1)), skp::format_error);
}
