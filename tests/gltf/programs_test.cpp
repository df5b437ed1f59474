// The two programs as they are started.

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/gltf/read_glb.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

program_result run(const std::string& program, const std::vector<std::string>& arguments) {
    return run_program({PROGRAMS "/" + program + PROGRAM_ENDING, arguments});
}

std::string model_in(const temporary_folder& folder) {
    sketchup::model_builder builder;
    builder.root().square(10);
    const auto bytes = skp::write_classic(*builder.finish(), skp::classic_version::v17);
    return folder.write("model.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

std::string batch_in(const temporary_folder& folder) {
    folder.write("batch/batch_file.txt", "#;\r\nEND;\r\n");
    return folder / "batch";
}

} // namespace

TEST(GlbPrograms, write_a_file_and_end_with_0) {
    const temporary_folder folder;
    EXPECT_EQ(run("skp-to-glb", {model_in(folder), folder / "model.glb"}).status, 0);
    EXPECT_EQ(read_glb(folder / "model.glb").extras()["kind"], "model");
    EXPECT_EQ(run("batch-to-glb", {batch_in(folder), folder / "batch.glb"}).status, 0);
    EXPECT_EQ(read_glb(folder / "batch.glb").extras()["kind"], "batch");
}

TEST(GlbPrograms, end_with_1_and_the_reason_if_there_is_nothing_to_read) {
    const temporary_folder folder;
    const program_result model = run("skp-to-glb", {folder.write("a.skp", "no model"), folder / "a.glb"});
    EXPECT_EQ(model.status, 1);
    EXPECT_NE(model.errors.find("not a SketchUp model"), std::string::npos) << model.errors;
    const program_result batch = run("batch-to-glb", {folder.name(), folder / "a.glb"});
    EXPECT_EQ(batch.status, 1);
    EXPECT_NE(batch.errors.find("there is no readable stream"), std::string::npos) << batch.errors;
    EXPECT_FALSE(folder.has("a.glb"));
}

TEST(GlbPrograms, end_with_2_for_a_wrong_command_line) {
    for (const char* program : {"skp-to-glb", "batch-to-glb"}) {
        EXPECT_EQ(run(program, {}).status, 2);
        EXPECT_EQ(run(program, {"a", "b", "c"}).status, 2);
        EXPECT_EQ(run(program, {"--no-such-thing", "a", "b"}).status, 2);
        EXPECT_EQ(run(program, {"--help"}).status, 0);
        EXPECT_EQ(run(program, {"--version"}).status, 0);
    }
}

TEST(GlbPrograms, end_with_3_and_leave_nothing_if_the_file_cannot_be_written) {
    const temporary_folder folder;
    const std::string target = folder / "none/out.glb";
    const program_result model = run("skp-to-glb", {model_in(folder), target});
    EXPECT_EQ(model.status, 3);
    EXPECT_NE(model.errors.find("cannot be written"), std::string::npos) << model.errors;
    EXPECT_EQ(run("batch-to-glb", {batch_in(folder), target}).status, 3);
    folder.make_folder("taken.glb");
    EXPECT_EQ(run("batch-to-glb", {batch_in(folder), folder / "taken.glb"}).status, 3);
    EXPECT_FALSE(folder.has("taken.glb.part"));
}

TEST(GlbPrograms, keep_a_material_once_however_often_it_is_declared) {
    const temporary_folder folder;
    std::string stream = "#;\r\nMATF;a.OrnMaterial\r\n";
    for (int number = 10; number < 1010; ++number)
        stream += "MATI;" + std::to_string(number) + "\r\n";
    folder.write("batch/batch_file.txt", stream + "END;\r\n");
    folder.write("batch/ZynBatch_Materials/a.qlobj", "Matl: a\r\nDisp: " + std::string(1000000, 'a') + "\r\n");
    const program_result seen = run("batch-to-glb", {folder / "batch", folder / "a.glb"});
    EXPECT_EQ(seen.status, 0) << seen.errors;
    EXPECT_LT(seen.most_bytes, 300000000U); // a thousand times that name are a thousand million
}

// Each lamp has a shape of its own, in a line of 30 bytes.
TEST(GlbPrograms, refuse_a_stream_of_more_parts_than_a_file_can_hold) {
    const temporary_folder folder;
    std::ofstream stream(folder.write("batch/batch_file.txt", "#;\r\nMESH;\r\nTLAY;a\r\n"),
                         std::ios::app | std::ios::binary);
    for (int corner = 0; corner < 3; ++corner)
        stream << "VERT;(" << corner << "," << corner * corner << ",0)\r\nADDV;" << corner << "\r\n";
    for (int lamp = 0; lamp < 400000; ++lamp)
        stream << "LITE;" << lamp << "\r\nFACE;0,1,2\r\n";
    stream << "EMSH;\r\nEND;\r\n";
    stream.close();
    const program_result seen = run("batch-to-glb", {folder / "batch", folder / "a.glb"});
    EXPECT_EQ(seen.status, 3);
    EXPECT_EQ(seen.errors,
              "batch-to-glb: the stream has too many materials and lamps on too many layers for one file\n");
    EXPECT_LT(seen.most_bytes, 500000000U);
    EXPECT_FALSE(folder.has("a.glb"));
}

TEST(GlbPrograms, keep_hidden_things_and_attributes_when_told_so) {
    const temporary_folder folder;
    sketchup::model_builder builder;
    sketchup::list_builder group = builder.root().group("secret");
    group.square(10);
    builder.placement(group.placement()).hidden = true;
    builder.attribute(group.placement(), "a", "b", sketchup::text("c"));
    const auto bytes = skp::write_classic(*builder.finish(), skp::classic_version::v17);
    const std::string model = folder.write("model.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    EXPECT_EQ(run("skp-to-glb", {"--hidden", "--attributes", model, folder / "a.glb"}).status, 0);
    EXPECT_EQ(read_glb(folder / "a.glb").node("secret")["extras"]["attributes"]["a"]["b"], "c");
}
