// The main function of every test program: GoogleTest's, over settings that no other program sees. Nobody's own
// settings are read or written by a test, and no two test programs meet in theirs.

#include "tests/support/environment.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const temporary_folder folder;
    const with_settings_folder settings(folder / "config");
    const attended_desktop desktop;
    return RUN_ALL_TESTS();
}
