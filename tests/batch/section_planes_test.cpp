// Which section planes clip, by the settings and by the age of the model.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;
using settings = std::vector<std::pair<std::string, typed_value>>;

// Three planes through the middle of a diagonal of 100 by 100 by 100 inches: one that is shown but not active, one
// hidden, one active.
void expect_planes(const std::string& case_name, const settings& wanted, skp::classic_version version) {
    SCOPED_TRACE(case_name);
    batch b;
    model_builder m;
    m.root().edge({0, 0, 0}, {100, 100, 100});
    m.root().section_plane({1, 0, 0, -50});
    m.element(m.root().section_plane({0, 1, 0, -50})).hidden = true;
    m.root().section_plane({0, 0, 1, -50}, true);
    m.root().group("walls").section_plane({1, 0, 0, -1}, true); // planes in groups are not seen
    for (const auto& [name, value] : wanted)
        m.attribute(m.root().list(), "qlw_globals", name, value);
    b.put_model(m, "geometry.qlm", version);
    expect_run(b, case_name);
}

void expect_planes_of_mode(int mode, const std::string& case_name, skp::classic_version version) {
    expect_planes(case_name, {{"ivl_section_planes", whole_number(mode)}}, version);
}

constexpr auto v6 = skp::classic_version::v6;
constexpr auto v8 = skp::classic_version::v8;
constexpr auto v20 = skp::classic_version::v20;

TEST(SectionPlanesBatch, by_the_host_an_old_model_clips_by_what_is_shown_and_a_later_one_by_what_is_active) {
    expect_planes_of_mode(0, "section_planes_shown", v6);
    expect_planes_of_mode(0, "section_planes_active", v8);
    expect_planes_of_mode(0, "section_planes_active", v20);
}

TEST(SectionPlanesBatch, mode_1_takes_those_that_are_shown) {
    for (const auto version : {v6, v8, v20})
        expect_planes_of_mode(1, "section_planes_shown", version);
}

TEST(SectionPlanesBatch, mode_2_and_any_number_above_3_take_all) {
    for (const auto version : {v6, v8, v20})
        for (const int mode : {2, 4})
            expect_planes_of_mode(mode, "section_planes_all", version);
}

TEST(SectionPlanesBatch, mode_3_takes_none) {
    for (const auto version : {v6, v8, v20})
        expect_planes_of_mode(3, "section_planes_none", version);
}

TEST(SectionPlanesBatch, the_low_end_mode_takes_none_unless_it_is_told_to) {
    const settings none = {{"bvl_lowend_render_mode", truth(true)},
                           {"bvl_lowend_section_planes", truth(false)},
                           {"ivl_section_planes", whole_number(2)}};
    const settings some = {{"bvl_lowend_render_mode", truth(true)},
                           {"bvl_lowend_section_planes", truth(true)},
                           {"ivl_section_planes", whole_number(3)}};
    for (const auto version : {v6, v8, v20}) {
        expect_planes("section_planes_none", none, version);
        expect_planes(version == v6 ? "section_planes_shown" : "section_planes_active", some, version);
    }
}

TEST(SectionPlanesBatch, a_document_has_a_setting_of_its_own_in_which_1_means_none) {
    const settings none = {{"sqlw_extract_mode", text("3dpdf")},
                           {"iql3d_pdf_section_planes", whole_number(1)},
                           {"ivl_section_planes", whole_number(2)}};
    const settings some = {{"sqlw_extract_mode", text("3dpdf")},
                           {"iql3d_pdf_section_planes", whole_number(0)},
                           {"ivl_section_planes", whole_number(2)}};
    expect_planes("section_planes_none", none, v8);
    expect_planes("section_planes_active", some, v8);
}

} // namespace
