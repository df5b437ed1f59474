// What the user is told of a batch folder that may not be written, and what a fatal report leaves.

#include "tests/tessaline/start/run_messages_fixture.h"

#include "qlw/profile_state.h"
#include "qlw/qlw_trace.h"
#include "tests/support/posix/lock_holder.h"

#include <filesystem>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using sketchup::model_builder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Takes the rights of the superuser away for its life, so that what must not be written cannot be.
class ordinary_user {
public:
    ordinary_user() {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0)
            has_changed = seteuid(nobody) == 0;
    }
    ordinary_user(const ordinary_user&) = delete;
    ordinary_user& operator=(const ordinary_user&) = delete;
    ~ordinary_user() {
        if (has_changed)
            static_cast<void>(seteuid(0) == 0);
    }

private:
    bool has_changed = false;
};

class UnwritableFolder : public RunMessages {
protected:
    ~UnwritableFolder() override { set_writable(true); }

    // The batch folder with all that lies in it now.
    void set_writable(bool is_writable) {
        namespace fs = std::filesystem;
        const auto writing = fs::perms::owner_write;
        const auto change = is_writable ? fs::perm_options::add : fs::perm_options::remove;
        fs::permissions(batch.name(), writing, change);
        for (const fs::directory_entry& entry : fs::directory_iterator(batch.name()))
            if (!entry.is_symlink())
                fs::permissions(entry.path(), writing, change);
    }

    std::vector<std::string> messages_of_run_without_rights() {
        set_writable(false);
        chmod(batch.name().c_str(), 0555);
        const ordinary_user nobody;
        return messages_of_run();
    }
};

TEST_F(UnwritableFolder, an_unwritable_batch_folder_is_told_of_by_nothing_if_nothing_else_is_to_be_written) {
    model_builder m;
    save(m);
    EXPECT_THAT(messages_of_run_without_rights(), IsEmpty());
    EXPECT_FALSE(batch.has("batch_file.txt"));
}

TEST_F(UnwritableFolder, an_unwritable_batch_folder_costs_the_ground_plane_and_the_option_file_one_message_each) {
    model_builder m;
    add_ground_plane(m);
    save(m);
    batch.write("option_globals.txt", "bvl_ground_plane;1\n");
    desktop.answers = {answering_desktop::ok_and_silence()};
    EXPECT_THAT(
        messages_of_run_without_rights(),
        ElementsAre("Cannot save Gound Plane Ornmaterial: " + batch / "ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial",
                    "Options Global FIle not found"));
    EXPECT_FALSE(batch.has("batch_file.txt"));
    EXPECT_EQ(batch.read("option_globals.txt"), "bvl_ground_plane;1\n");
    // Without rights there is no trace either; silencing the place tells which it is.
    ASSERT_EQ(trace_state().suppressed_sources.size(), 1u);
    EXPECT_EQ(trace_state().suppressed_sources[0].source_file, "model_settings");
    EXPECT_EQ(trace_state().suppressed_sources[0].function, "SketchUpReader::ReadSkpFile");
}

TEST_F(UnwritableFolder, a_fatal_report_ends_the_work_and_leaves_the_stream_as_it_stands) {
    model_builder m;
    save(m);
    std::filesystem::create_directory_symlink(batch.name(), batch / "ZynBatch_Lights"); // is refused to be emptied
    bool is_first = true;
    desktop.while_open = [&is_first] {
        if (std::exchange(is_first, false))
            cl_trace("somewhere", 7, "function", 5, 0).report("the end");
    };
    const std::vector<std::string> messages = messages_of_run();
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_THAT(messages[0], HasSubstr("Cannot remove folder: '"));
    EXPECT_EQ(messages[1], "the end");
    EXPECT_TRUE(batch.has("batch_file.txt"));
    EXPECT_EQ(batch.read("batch_file.txt"), ""); // nothing had been written yet
    EXPECT_FALSE(SUIsValid(open_model));
}

TEST_F(UnwritableFolder, a_reading_behind_a_fatal_report_works_as_ever) {
    model_builder m;
    save(m);
    std::filesystem::create_directory_symlink(batch.name(), batch / "ZynBatch_Lights");
    bool is_first = true;
    desktop.while_open = [&is_first] {
        if (std::exchange(is_first, false))
            cl_trace("somewhere", 7, "function", 5, 0).report("the end");
    };
    messages_of_run();
    platform::delete_file(batch / "ZynBatch_Lights");
    desktop.shown.clear();
    EXPECT_THAT(messages_of_run(), IsEmpty());
    EXPECT_THAT(batch.read("batch_file.txt"), testing::EndsWith("END;\r\n"));
}

TEST_F(UnwritableFolder, a_profile_that_another_process_holds_costs_one_message_and_nothing_of_the_stream) {
    model_builder m;
    save(m);
    batch.write("option_globals.txt", "rvlb_camera_height;60\nivl_dialog_x;7\n"); // both are kept in the profile
    const std::string profile = batch.make_folder("config/Quillon Systems") + "/Profile.ini";
    const lock_holder other(profile + ".lock");
    profile_state().ini_files = ini_store(5);
    const std::vector<std::string> messages = messages_of_run();
    reset_profile_state();
    EXPECT_THAT(messages, ElementsAre("Cannot write profile: '" + profile +
                                      "' is held by another program. Settings of this run may not be kept"));
    EXPECT_THAT(batch.read("batch_file.txt"), testing::EndsWith("END;\r\n"));
}

} // namespace
