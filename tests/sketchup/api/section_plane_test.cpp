#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(SectionPlane, gives_its_plane_and_whether_it_is_the_active_one_of_its_list) {
    model_builder builder;
    builder.root().section_plane({0, 0, 1, -3});
    builder.root().section_plane({1, 0, 0, 7}, true);
    builder.component("Chair").section_plane({0, 1, 0, 0}, true);
    test_model opened(builder);
    std::vector<bool> active;
    for (sketchup::section_plane& s : opened.model().section_planes) {
        bool is_active = false;
        EXPECT_EQ(SUSectionPlaneIsActive(sketchup::api::handle_of<SUSectionPlaneRef>(s), &is_active), SU_ERROR_NONE);
        active.push_back(is_active);
    }
    EXPECT_EQ(active, std::vector<bool>({false, true, true}));
    const auto second = sketchup::api::handle_of<SUSectionPlaneRef>(opened.model().section_planes[1]);
    SUPlane3D plane{};
    EXPECT_EQ(SUSectionPlaneGetPlane(second, &plane), SU_ERROR_NONE);
    EXPECT_EQ(plane.a, 1);
    EXPECT_EQ(plane.d, 7);
}
