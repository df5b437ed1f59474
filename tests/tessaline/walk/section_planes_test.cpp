// Which section planes reach the stream as clipping records.

#include "tests/tessaline/reader_fixture.h"
#include "tests/tessaline/run_fixture.h"

#include <cmath>

namespace {

using sketchup::entity_place;
using sketchup::model_builder;
using sketchup::plane;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr plane shown_plane = {1, 0, 0, -50};
constexpr plane hidden_plane = {0, 1, 0, -50};
constexpr plane active_plane = {0, 0, 1, -50};
const std::string shown = "CLPN;(1,0,0)";
const std::string hidden = "CLPN;(0,1,0)";
const std::string active = "CLPN;(0,0,1)";

class SectionPlanes : public run_fixture {
protected:
    SectionPlanes() {
        set_global_bool("bvl_lowend_render_mode", false);
        set_global_int("ivl_section_planes", 0);
    }

    // The normals written for a model of that version with three planes across a cube of 100 inches: one that is shown
    // but not active, one hidden, one active.
    std::vector<std::string> normals_of_three(skp::classic_version version = skp::classic_version::v17) {
        model_builder m;
        m.root().box({0, 0, 0}, {100, 100, 100});
        m.root().section_plane(shown_plane);
        m.element(m.root().section_plane(hidden_plane)).hidden = true;
        m.root().section_plane(active_plane, true);
        const auto bytes = skp::write_classic(*m.finish(), version);
        reader.ReadSkpFile(batch.write("geometry.qlm", std::string(bytes.begin(), bytes.end())),
                           batch / "batch_file.txt");
        return tagged(body(), "CLPN");
    }
};

TEST_F(SectionPlanes, the_active_plane_is_written_with_a_point_in_metres) {
    model_builder m;
    m.root().box({10, 20, 0}, {110, 120, 100});
    m.root().section_plane(active_plane, true);
    // The box of the plane begins at (10, 20, 50) inches: 10 x 0.0254, 20 x 0.0254, 50 x 0.0254.
    EXPECT_THAT(tagged(body_of(m), "CLP"), ElementsAre(active, "CLPP;(0.254,0.508,1.27)"));
}

TEST_F(SectionPlanes, the_point_is_the_lowest_corner_of_the_box_even_off_the_plane) {
    model_builder m;
    m.root().box({0, 0, 0}, {100, 100, 100});
    m.root().section_plane({0.6, 0, 0.8, -70}, true);
    // 0.6 x + 0.8 z = 70: at x = 100 the plane is at z = 12.5, at x = 0 at 87.5. 12.5 x 0.0254 = 0.3175.
    EXPECT_THAT(tagged(body_of(m), "CLP"), ElementsAre("CLPN;(0.6,0,0.8)", "CLPP;(0,0,0.3175)"));
}

TEST_F(SectionPlanes, a_tiny_component_is_written_as_zero) {
    model_builder m;
    m.root().box({0, 0, 0}, {100, 100, 100});
    m.root().section_plane({1, 5e-8, -5e-8, -50}, true);
    const auto lines = tagged(body_of(m), "CLPN");
    EXPECT_THAT(lines, ElementsAre("CLPN;(1,0,0)"));
}

TEST_F(SectionPlanes, planes_stand_behind_the_faces_at_the_end_of_the_walk) {
    model_builder m;
    m.root().section_plane(active_plane, true);
    m.root().square(100);
    const auto lines = body_of(m);
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[lines.size() - 2], active);
}

TEST_F(SectionPlanes, planes_in_groups_and_components_are_not_seen) {
    set_global_int("ivl_section_planes", 2);
    model_builder m;
    m.root().group().section_plane(active_plane, true);
    auto component = m.component("part");
    component.section_plane(shown_plane);
    m.root().instance(component);
    EXPECT_THAT(tagged(body_of(m), "CLP"), IsEmpty());
}

TEST_F(SectionPlanes, by_the_host_only_the_active_plane_is_written) {
    EXPECT_THAT(normals_of_three(), ElementsAre(active));
}

TEST_F(SectionPlanes, by_the_host_a_model_of_version_8_has_its_active_plane_written) {
    EXPECT_THAT(normals_of_three(skp::classic_version::v8), ElementsAre(active));
}

TEST_F(SectionPlanes, by_the_host_a_model_of_version_6_has_every_visible_plane_written) {
    EXPECT_THAT(normals_of_three(skp::classic_version::v6), ElementsAre(shown, active));
}

TEST_F(SectionPlanes, mode_1_leaves_out_hidden_planes) {
    set_global_int("ivl_section_planes", 1);
    EXPECT_THAT(normals_of_three(), ElementsAre(shown, active));
}

TEST_F(SectionPlanes, mode_2_writes_hidden_and_inactive_planes) {
    set_global_int("ivl_section_planes", 2);
    EXPECT_THAT(normals_of_three(), ElementsAre(shown, hidden, active));
}

TEST_F(SectionPlanes, mode_3_writes_none) {
    set_global_int("ivl_section_planes", 3);
    EXPECT_THAT(normals_of_three(), IsEmpty());
}

TEST_F(SectionPlanes, any_other_mode_writes_all) {
    for (const int mode : {4, -1}) {
        set_global_int("ivl_section_planes", mode);
        EXPECT_THAT(normals_of_three(), ElementsAre(shown, hidden, active)) << mode;
    }
}

TEST_F(SectionPlanes, a_document_that_wants_none_gets_none_whatever_the_mode) {
    set_global_int("ivl_section_planes", 2);
    set_global_string("sqlw_extract_mode", "3dpdf");
    set_global_int("iql3d_pdf_section_planes", 1);
    EXPECT_THAT(normals_of_three(), IsEmpty());
}

TEST_F(SectionPlanes, a_document_that_does_not_mind_gets_the_active_plane_whatever_the_mode) {
    set_global_int("ivl_section_planes", 2);
    set_global_string("sqlw_extract_mode", "3dpdf");
    set_global_int("iql3d_pdf_section_planes", 0);
    EXPECT_THAT(normals_of_three(), ElementsAre(active));
}

TEST_F(SectionPlanes, the_name_of_the_document_mode_is_compared_exactly) {
    set_global_int("ivl_section_planes", 2);
    set_global_string("sqlw_extract_mode", "3dPDF");
    set_global_int("iql3d_pdf_section_planes", 1);
    EXPECT_THAT(normals_of_three(), ElementsAre(shown, hidden, active));
}

TEST_F(SectionPlanes, the_low_end_mode_writes_none_unless_it_is_told_to) {
    set_global_bool("bvl_lowend_render_mode", true);
    set_global_bool("bvl_lowend_section_planes", false);
    set_global_int("ivl_section_planes", 2);
    EXPECT_THAT(normals_of_three(), IsEmpty());
    EXPECT_THAT(normals_of_three(skp::classic_version::v6), IsEmpty());
}

TEST_F(SectionPlanes, the_low_end_mode_writes_what_clips_in_the_host) {
    set_global_bool("bvl_lowend_render_mode", true);
    set_global_bool("bvl_lowend_section_planes", true);
    set_global_int("ivl_section_planes", 3); // does not count
    EXPECT_THAT(normals_of_three(), ElementsAre(active));
    EXPECT_THAT(normals_of_three(skp::classic_version::v6), ElementsAre(shown, active));
}

// The writer has no version 7, so the reader is told one.
class SectionPlanesOfAVersion : public reader_test {
protected:
    // Which of two planes are written: one that is shown and not active, and one that is hidden and active.
    std::vector<bool> written_at(int version_major) {
        reader.version_major = version_major;
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(open_model, &entities);
        std::vector<bool> written;
        for (const SUSectionPlaneRef each :
             all_handles(SUEntitiesGetNumSectionPlanes, SUEntitiesGetSectionPlanes, entities))
            written.push_back(reader.process_section_plane(each) != 0);
        return written;
    }
    void open_two_planes() {
        builder.root().box({0, 0, 0}, {100, 100, 100});
        builder.root().section_plane(shown_plane);
        builder.element(builder.root().section_plane(active_plane, true)).hidden = true;
        open();
    }
};

TEST_F(SectionPlanesOfAVersion, from_7_on_the_active_one_is_written_and_before_it_those_that_are_shown) {
    open_two_planes();
    EXPECT_THAT(written_at(7), ElementsAre(false, true));
    EXPECT_THAT(written_at(6), ElementsAre(true, false));
}

TEST_F(SectionPlanesOfAVersion, the_render_mode_of_the_low_end_draws_the_same_line) {
    set_global_bool("bvl_lowend_render_mode", true);
    set_global_bool("bvl_lowend_section_planes", true);
    open_two_planes();
    EXPECT_THAT(written_at(7), ElementsAre(false, true));
    EXPECT_THAT(written_at(6), ElementsAre(true, false));
}

} // namespace
