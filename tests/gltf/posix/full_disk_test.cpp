// A disk that takes no more: a limit on the size of files, which ends a write as a full disk does.

#include "image/encode_picture.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

// Files may have so many blocks of 512 or 1024 bytes; the signal that would end the program is passed over.
program_result run_on_full_disk(const std::string& command) {
    return run_program({"/bin/sh", {"-c", "trap '' XFSZ; ulimit -f 1; exec " + command}});
}

} // namespace

TEST(FullDisk, is_told_of_and_leaves_neither_the_file_nor_a_part_of_it) {
    const temporary_folder folder;
    sketchup::model_builder builder;
    for (int i = 0; i < 50; ++i)
        builder.root().box({i * 3.0, 0, 0}, {i * 3.0 + 1, 1, 1});
    const auto picture = image::encode_picture(*image::picture::make({64, 64, 24}), image::picture_format::bmp);
    builder.face(builder.root().square(10)).material = builder.textured_material("Oak", picture, "oak.bmp", 5, 5);
    const auto bytes = skp::write_classic(*builder.finish(), skp::classic_version::v17);
    folder.write("model.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    const program_result result =
        run_on_full_disk(PROGRAMS "/skp-to-glb " + (folder / "model.skp") + " " + (folder / "out.glb"));
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.errors.find("the disk may be full"), std::string::npos) << result.errors;
    EXPECT_EQ(result.errors.find("Oak"), std::string::npos) << result.errors; // whose picture is sound
    EXPECT_FALSE(folder.has("out.glb"));
    EXPECT_FALSE(folder.has("out.glb.part"));
    EXPECT_FALSE(folder.has("out.glb.buffers"));
}
