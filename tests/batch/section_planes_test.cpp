// Which section planes reach the stream of a whole run.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;
using skp::classic_version;

// A square of 10 inches and three planes across it: the active one at x = 5, a hidden one at y = 2.5, and one in the
// plane of the square that looks down. The points of their records: 5 x 0.0254, 2.5 x 0.0254 and the origin.
void put_three_planes(batch& b, const std::vector<std::pair<std::string, typed_value>>& settings,
                      classic_version version = classic_version::v17) {
    model_builder m;
    m.root().square(10);
    m.root().section_plane({1, 0, 0, -5}, true);
    m.element(m.root().section_plane({0, 1, 0, -2.5})).hidden = true;
    m.root().section_plane({0, 0, -1, 0});
    for (const auto& [name, value] : settings)
        m.attribute(m.root().list(), "qlw_globals", name, value);
    b.put_model(m, "geometry.qlm", version);
}

void expect_planes(const std::string& case_name, const std::vector<std::pair<std::string, typed_value>>& settings,
                   classic_version version = classic_version::v17) {
    batch b;
    put_three_planes(b, settings, version);
    expect_run(b, case_name);
}

const std::pair<std::string, typed_value> low_end = {"bvl_lowend_render_mode", text("1")};

constexpr classic_version later_versions[] = {classic_version::v8, classic_version::v17, classic_version::v20};
constexpr classic_version all_versions[] = {classic_version::v6, classic_version::v8, classic_version::v17,
                                            classic_version::v20};

void expect_planes_of_mode(int mode, const std::string& case_name, classic_version version) {
    SCOPED_TRACE(mode);
    expect_planes(case_name, {{"ivl_section_planes", whole_number(mode)}}, version);
}

TEST(SectionPlanesBatch, by_the_host_the_active_plane_stands_behind_the_faces) {
    expect_planes("section_plane_that_is_active", {});
    for (const classic_version version : later_versions)
        expect_planes_of_mode(0, "section_plane_that_is_active", version);
}

TEST(SectionPlanesBatch, by_the_host_a_model_of_version_6_has_the_planes_that_are_not_hidden) {
    expect_planes_of_mode(0, "section_planes_that_are_shown", classic_version::v6);
}

TEST(SectionPlanesBatch, the_modes_1_2_and_3_write_those_that_are_shown_all_and_none_whatever_the_version) {
    for (const classic_version version : all_versions) {
        expect_planes_of_mode(1, "section_planes_that_are_shown", version);
        expect_planes_of_mode(2, "section_planes_all", version);
        expect_planes_of_mode(3, "one_square", version);
        expect_planes_of_mode(4, "section_planes_all", version);
    }
}

TEST(SectionPlanesBatch, the_low_end_mode_asks_its_own_setting_and_not_the_mode) {
    expect_planes("section_plane_that_is_active", {low_end, {"ivl_section_planes", whole_number(2)}});
    expect_planes("one_square", {low_end, {"bvl_lowend_section_planes", text("0")}});
    expect_planes("section_planes_that_are_shown", {low_end}, classic_version::v6);
    expect_planes("one_square", {low_end, {"bvl_lowend_section_planes", text("0")}}, classic_version::v6);
}

TEST(SectionPlanesBatch, planes_in_groups_are_not_seen) {
    batch b;
    model_builder m;
    m.root().square(10);
    m.root().group("walls").section_plane({1, 0, 0, -5}, true);
    m.attribute(m.root().list(), "qlw_globals", "ivl_section_planes", whole_number(2));
    b.put_model(m);
    expect_run(b, "one_square");
}

TEST(SectionPlanesBatch, a_document_has_the_active_plane_or_none) {
    const std::pair<std::string, typed_value> document = {"sqlw_extract_mode", text("3dpdf")};
    const std::pair<std::string, typed_value> all = {"ivl_section_planes", whole_number(2)};
    expect_planes("section_plane_that_is_active", {document, all});
    expect_planes("one_square", {document, all, {"iql3d_pdf_section_planes", whole_number(1)}});
}

} // namespace
