// Sizes at which the form of a file changes, or at which it is refused.

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/modern_writer.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace sketchup;

std::unique_ptr<model> read_classic(const model& m) {
    return skp::read_model(skp::write_classic(m, skp::classic_version::v17));
}

std::unique_ptr<model> read_modern(const model& m) {
    return skp::read_model(skp::write_modern(m, skp::modern_version::v25));
}

// Components that each hold the next one `placements` times; the last holds an edge, the first stands in the model.
// inner_first: whether a component is listed before those that hold it.
std::unique_ptr<model> chain(int links, int placements, bool inner_first) {
    model_builder m;
    std::vector<list_builder> components;
    for (int i = 0; i < links; ++i)
        components.push_back(m.component("link"));
    if (inner_first)
        components = {components.rbegin(), components.rend()};
    components.back().edge({0, 0, 0}, {1, 0, 0});
    for (std::size_t i = 0; i + 1 < components.size(); ++i)
        for (int k = 0; k < placements; ++k)
            components[i].instance(components[i + 1]);
    m.root().instance(components.front());
    return m.finish();
}

std::string refusal(const std::function<void()>& read) {
    try {
        read();
    } catch (const skp::format_error& e) {
        return e.what();
    }
    return "opened";
}

} // namespace

TEST(WriterLimits, a_model_with_more_objects_than_short_tags_can_number_comes_back) {
    model_builder m;
    constexpr int edges = 12000; // an edge and two vertices each: 36,000 slots, and the short ones end at 32,766
    for (int i = 0; i < edges; ++i)
        m.root().edge({1.0 * i, 0, 0}, {1.0 * i, 1, 0});
    const auto original = m.finish();
    const auto read = read_classic(*original);
    ASSERT_EQ(read->root.edges.size(), 12000u);
    EXPECT_EQ(read->vertices[read->edges[read->root.edges[11999]].end].position, (vec3{11999, 1, 0}));
}

TEST(WriterLimits, texts_of_254_255_65534_65535_and_70000_characters_come_back) {
    for (const std::size_t size : {254u, 255u, 65534u, 65535u, 70000u}) {
        model_builder m;
        m.model().description = std::string(size, 'x');
        const auto original = m.finish();
        EXPECT_EQ(read_classic(*original)->description, std::string(size, 'x'));
        EXPECT_EQ(read_modern(*original)->description, std::string(size, 'x'));
    }
}

TEST(WriterLimits, nesting_1000_deep_comes_back) {
    EXPECT_EQ(read_classic(*chain(1000, 1, true))->definitions.size(), 1000u);
    EXPECT_EQ(read_classic(*chain(1000, 1, false))->definitions.size(), 1000u);
    EXPECT_EQ(read_modern(*chain(1000, 1, false))->definitions.size(), 1000u);
}

TEST(WriterLimits, nesting_4096_deep_comes_back_from_a_classic_file_whichever_way_it_is_listed) {
    EXPECT_EQ(read_classic(*chain(4096, 1, true))->definitions.size(), 4096u);
    EXPECT_EQ(read_classic(*chain(4096, 1, false))->definitions.size(), 4096u);
}

TEST(WriterLimits, nesting_10000_deep_is_refused_when_read) {
    const std::string reason = "placements nest deeper than 4096";
    EXPECT_NE(refusal([] { read_classic(*chain(10000, 1, true)); }).find(reason), std::string::npos);
    EXPECT_NE(refusal([] { read_classic(*chain(10000, 1, false)); }).find(reason), std::string::npos);
    EXPECT_NE(refusal([] { read_modern(*chain(10000, 1, false)); }).find(reason), std::string::npos);
}

TEST(WriterLimits, a_classic_file_cannot_hold_definitions_that_contain_one_another) {
    model_builder m;
    list_builder one = m.component("one");
    list_builder other = m.component("other");
    one.instance(other);
    other.instance(one);
    EXPECT_THROW(skp::write_classic(*m.finish(), skp::classic_version::v17), std::invalid_argument);
}

// 31 components in a chain of two placements each: 2^30 edges in the end, and 2^31 - 2 placements on the way.
TEST(WriterLimits, a_small_model_that_multiplies_beyond_2147483647_entities_is_refused_when_read) {
    const std::string reason = "more than 2147483647 entities";
    EXPECT_NE(refusal([] { read_classic(*chain(31, 2, true)); }).find(reason), std::string::npos);
    EXPECT_NE(refusal([] { read_modern(*chain(31, 2, true)); }).find(reason), std::string::npos);
    // Half of it: 2^29 edges, 2^30 - 2 placements below the first and that one.
    EXPECT_EQ(refusal([] { read_classic(*chain(30, 2, true)); }), "opened");
    EXPECT_EQ(refusal([] { read_modern(*chain(30, 2, true)); }), "opened");
}
