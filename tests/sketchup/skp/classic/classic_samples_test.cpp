// Every real model of the classic container gives the figures that were established for it by independent means.

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/samples_folder.h"
#include "tests/sketchup/skp/model_figures.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

json expected_figures(const std::string& folder) {
    std::ifstream file(folder + "expected.json");
    return json::parse(file);
}

// Leaves out what needs more than a reader: sizes of pictures, and all that follows from placing the content.
json readable_part(json expected) {
    for (const char* key : {"opens", "bytes", "placed", "written", "written_turned"})
        expected.erase(key);
    for (json& material : expected["materials"])
        material.erase("pixels");
    return expected;
}

} // namespace

TEST(ClassicSamples, every_model_gives_the_figures_established_for_it) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const json all = expected_figures(folder);
    int models = 0;
    for (const auto& [name, expected] : all.items()) {
        if (!expected["opens"] || expected["container"] != "classic")
            continue;
        SCOPED_TRACE(name);
        ++models;
        std::unique_ptr<sketchup::model> m;
        ASSERT_NO_THROW(m = skp::read_model(file_bytes(folder + name)));
        const json found = model_figures(*m);
        const json wanted = readable_part(expected);
        for (const auto& [key, value] : wanted.items())
            EXPECT_EQ(found.value(key, json()).dump(), value.dump()) << key;
    }
    EXPECT_GT(models, 100);
}

TEST(ClassicSamples, what_is_no_model_or_too_new_is_refused_for_that_reason) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto reason = [&folder](const std::string& name) {
        try {
            skp::read_model(file_bytes(folder + name));
        } catch (const skp::format_error& e) {
            return e.why;
        }
        ADD_FAILURE() << name << " opened";
        return skp::failure::damaged;
    };
    EXPECT_EQ(reason("testup-SU99.skp"), skp::failure::too_new);
    EXPECT_EQ(reason("testup-invalid.skp"), skp::failure::not_a_model);
    EXPECT_EQ(reason("testup-not_a_sketchup_file.skp"), skp::failure::not_a_model);
    EXPECT_EQ(reason("jmsmi-dunbar-appledouble.skp"), skp::failure::not_a_model);
}

TEST(ClassicSamples, every_loop_closes_over_shared_vertices) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "openskp-gondola_v20.skp"));
    const auto from = [&m](const sketchup::edge_use& u) {
        const sketchup::edge& e = m->edges[u.edge];
        return u.reversed ? e.end : e.start;
    };
    const auto to = [&m](const sketchup::edge_use& u) {
        const sketchup::edge& e = m->edges[u.edge];
        return u.reversed ? e.start : e.end;
    };
    ASSERT_FALSE(m->loops.empty());
    for (const sketchup::loop& l : m->loops)
        for (sketchup::index i = 0; i < l.uses.count; ++i)
            EXPECT_EQ(to(m->edge_uses[l.uses.first + i]), from(m->edge_uses[l.uses.first + (i + 1) % l.uses.count]));
}

TEST(ClassicSamples, a_picture_is_handed_out_as_it_stands_in_the_file) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "testup-MaterialTests.skp"));
    ASSERT_FALSE(m->pictures.empty());
    for (const sketchup::picture& p : m->pictures) {
        const std::vector<std::uint8_t> bytes = p.load();
        ASSERT_GT(bytes.size(), 4u);
        const bool is_jpeg = bytes[0] == 0xFF && bytes[1] == 0xD8;
        const bool is_png = bytes[0] == 0x89 && bytes[1] == 'P';
        EXPECT_TRUE(p.format == 1 ? is_jpeg : is_png) << p.format;
    }
}
