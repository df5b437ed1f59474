// Names that come out of a model, put behind a folder.

#include "tessaline/files/paths.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(PathsInside, an_ordinary_name_stands_behind_the_folder) {
    const std::string folder = with_own_separators("/batch");
    EXPECT_EQ(joined_inside(folder, "Brick Wall.qlobj"), with_own_separators("/batch/Brick Wall.qlobj"));
    EXPECT_EQ(joined_inside(folder + platform::path_separator, "..."), with_own_separators("/batch/..."));
    EXPECT_EQ(joined_inside(folder, "..x"), with_own_separators("/batch/..x"));
}

TEST(PathsInside, a_name_that_would_lead_elsewhere_gives_none) {
    for (const std::string& name :
         {std::string(), std::string("."), std::string(".."), std::string("a/b"), std::string("a\\b"),
          std::string("../a"), std::string("/a"), std::string("a/"), std::string("a\0b", 3)})
        EXPECT_EQ(joined_inside("/batch", name), "") << name;
}

} // namespace
