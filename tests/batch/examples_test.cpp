// What a run makes of the examples.

#include "tests/batch/batch_runner.h"
#include "tests/run_program.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

// The model that the example's program writes, and the files that lie beside its sources.
void put_room(batch& b) {
    ASSERT_EQ(run_program(shell_quoted(EXAMPLE_ROOM) + " " + shell_quoted(b / "geometry.qlm")).status, 0);
    const std::string folder = std::string(TESSALINE_SOURCE_DIR) + "/examples/room/";
    const std::string view = text_of_file(folder + "zyn_view.txt");
    b.put("option_globals.txt", text_of_file(folder + "option_globals.txt"));
    b.put("zyn_view.txt", view);
    b.expect_file("zyn_view.txt", view);
    b.expect_file("geometry.qlm", b.read("geometry.qlm"));
}

TEST(ExamplesBatch, the_room_becomes_what_lies_beside_it) {
    batch b;
    put_room(b);
    const run_outcome outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    expect_batch(b, "examples/room");
}

TEST(ExamplesBatch, the_room_has_a_lamp_of_every_type) {
    batch b;
    put_room(b);
    b.run();
    std::set<std::string> types;
    for (const auto& [name, text] : b.files())
        if (name.starts_with("ZynBatch_Lights/")) {
            const std::size_t start = text.find("\r\ntype;") + 7;
            types.insert(text.substr(start, text.find("\r\n", start) - start));
        }
    EXPECT_EQ(types, (std::set<std::string>{"bulb", "bulb_glow", "linear_glow", "rect", "rect_glow", "round_glow",
                                            "spot", "spot_beams", "spot_glow"}));
}

} // namespace
