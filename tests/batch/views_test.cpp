// What the parent's files beside the model do to a run: the sun in the option file, and the view.

#include "tests/batch/batch_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace sketchup;
using testing::Contains;
using testing::StartsWith;

std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        lines.push_back(line.substr(0, line.size() - 1));
    }
    return lines;
}

TEST(OptionFileBatch, the_sun_of_the_model_replaces_that_of_the_file) {
    batch b;
    model_builder m;
    shadow_info& info = m.model().shadow_info; // Greenwich, 2024 June 20, noon
    info.latitude = 51.5;
    info.longitude = 0;
    info.time_zone = 0;
    info.daylight_saving = false;
    info.time = 1718884800;
    b.put_model(m);
    b.put("option_globals.txt", "rskp_sun_latitude; 1\r\nrskp_sun_longitude; 1\r\nrskp_sun_timezone; 1\r\n"
                                "bskp_sun_daylight_time; 1\r\nrzyn_sun_altitude; 9\r\nrzyn_sun_latitude; 12\r\n");
    b.run();
    const auto lines = lines_of(b.read("option_globals.txt"));
    for (const char* line : {"rskp_sun_latitude; 51.5", "rskp_sun_longitude; 0", "rskp_sun_timezone; 0",
                             "bskp_sun_daylight_time; 0", "rzyn_sun_latitude; 12"})
        EXPECT_THAT(lines, Contains(std::string(line)));
    // 90 - 51.5 + 23.43 = 61.93 degrees high, 1.081 radians. The sun is 1 min 47 s late, 0.45 degrees of hour angle:
    // 0.45 x cos 23.43 / cos 61.93 = 0.88 degrees east of the south, and that is -89.12 degrees, -1.5555 radians.
    for (const char* name : {"rzyn", "rskp"}) {
        EXPECT_THAT(lines, Contains(StartsWith(name + std::string("_sun_altitude; 1.08"))));
        EXPECT_THAT(lines, Contains(StartsWith(name + std::string("_sun_azimuth; -1.55"))));
    }
}

TEST(OptionFileBatch, one_that_is_a_folder_is_shown_at_the_end_and_stops_nothing) {
    batch b;
    model_builder m;
    m.root().square(10);
    b.put_model(m);
    b.put("option_globals.txt/inside", "");
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, testing::HasSubstr("Options Global FIle not found"));
    EXPECT_TRUE(b.read("batch_file.txt").ends_with("END;\r\n"));
}

TEST(ViewFileBatch, a_run_takes_the_view_with_it_and_leaves_the_file_alone) {
    batch b;
    model_builder m;
    m.root().square(10);
    b.put_model(m);
    const std::string text = "EYE;(1,2,3)\nEND_CURRENT;\nnonsense";
    b.put("zyn_pages.txt", text);
    EXPECT_EQ(b.run().errors, quiet_errors);
    EXPECT_EQ(b.read("zyn_pages.txt"), text);
}

} // namespace
