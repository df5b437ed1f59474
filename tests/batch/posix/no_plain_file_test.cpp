// A pipe or an endless device under the name of a file that a run reads or writes: the run ends all the same.

#include "tests/batch/batch_runner.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace sketchup;

enum class stand_in { pipe, endless_device };

void put(stand_in kind, const std::string& path) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    if (kind == stand_in::pipe)
        ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    else
        std::filesystem::create_symlink("/dev/zero", path);
}

// The status of a run, which is broken off, with status -1, if it does not end by itself.
int status_of_run(const batch& b) {
    program_start start = b.start_with({b / "geometry.qlm"}, b.folder());
    start.seconds = 60;
    return run_program(start).status;
}

class NoPlainFileBatch : public testing::TestWithParam<std::tuple<std::string, stand_in>> {};

// Each is an input that may be missing: the stream is that of the model alone.
TEST_P(NoPlainFileBatch, in_place_of_an_input_counts_as_none) {
    const auto& [input, kind] = GetParam();
    batch b;
    model_builder m;
    m.root().square(10);
    b.put_model(m);
    put(kind, b.surrounding() / input);
    ASSERT_EQ(status_of_run(b), 0);
    EXPECT_EQ(b.read("batch_file.txt"),
              text_of_file(TESSALINE_SOURCE_DIR "/tests/batch/one_square/expected/batch_file.txt"));
}

INSTANTIATE_TEST_SUITE_P(Inputs, NoPlainFileBatch,
                         testing::Combine(testing::Values("batch/option_globals.txt", "batch/zyn_view.txt",
                                                          "batch/zyn_pages.txt", "batch/skatter_insts.txt",
                                                          "home/.config/Quillon Systems/Profile.ini"),
                                          testing::Values(stand_in::pipe, stand_in::endless_device)));

TEST(NoPlainFileModel, in_place_of_the_model_leaves_no_stream) {
    for (const stand_in kind : {stand_in::pipe, stand_in::endless_device}) {
        const batch b;
        put(kind, b / "geometry.qlm");
        EXPECT_EQ(status_of_run(b), 0);
        EXPECT_FALSE(b.has("batch_file.txt"));
    }
}

// A square of a material that was edited by hand and that the model brings along.
void put_edited_square(batch& b) {
    model_builder m;
    const sketchup::index edited = m.material("Edited", {200, 100, 50, 255});
    const auto say = [&](std::string_view key, std::string_view value) {
        m.attribute({entity_kind::material, edited}, "Vellane_material", key, text(value));
    };
    say("ORNZyn Material Settings", "41;1;x;");
    say("ORNZyn Material Settings_chunk0", "[ORNZyn Material Settings][00000004]-4869");
    const entity_place face = m.root().square(10);
    m.element(face).material = edited;
    b.put_model(m);
}

// What the material's file holds already is not read, and what is written goes where the name leads.
TEST(NoPlainFileOutput, an_endless_device_is_written_and_not_read) {
    batch b;
    put_edited_square(b);
    put(stand_in::endless_device, b / "ZynBatch_Materials/COL%3a0005_Edited.OrnMaterial");
    EXPECT_EQ(status_of_run(b), 0);
}

TEST(NoPlainFileOutput, a_pipe_that_nobody_reads_is_not_waited_for) {
    for (const char* output : {"batch_file.txt", "ZynBatch_Materials/COL%3a0005_Edited.OrnMaterial"}) {
        batch b;
        put_edited_square(b);
        put(stand_in::pipe, b / output);
        EXPECT_EQ(status_of_run(b), 0) << output;
    }
}

} // namespace
