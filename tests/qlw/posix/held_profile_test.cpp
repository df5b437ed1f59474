// A settings file that another process holds, under the lock file of POSIX.

#include "qlw/ini_file.h"
#include "tests/qlw/profile_fixture.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/posix/lock_holder.h"

namespace {

class HeldProfile : public profile_fixture {};

TEST_F(HeldProfile, a_file_that_another_process_holds_is_told_of_once_in_a_run) {
    answering_desktop desktop;
    write_ini("Profile", "[a]\nkey=1\n");
    const std::string name = folder / "config/Quillon Systems/Profile.ini";
    const lock_holder other(name + ".lock");
    profile_state().ini_files = ini_store(5);
    write_string_to_ini_file("a", "key", "2", "Profile");
    write_string_to_ini_file("a", "key", "3", "Profile");
    write_string_to_ini_file("a", "other", "4", "Profile");
    EXPECT_EQ(ini("Profile"), "[a]\nkey=1\n");
    ASSERT_EQ(desktop.shown.size(), 1u);
    EXPECT_THAT(desktop.shown[0].text,
                testing::StartsWith("Cannot write profile: '" + name +
                                    "' is held by another program. Settings of this run may not be kept\r\n"));
    EXPECT_THAT(trace.take(), testing::ElementsAre(traced_line{
                                  "ini_file", "write_string_to_ini_file",
                                  "*** ERROR: Cannot write profile: '" + name +
                                      "' is held by another program. Settings of this run may not be kept"}));
}

} // namespace
