#pragma once

// A folder that is cleared, and what is said of it.

#include "qlw/qlw_std.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/trace_capture.h"

#include <gtest/gtest.h>

class ClearFolder : public testing::Test {
protected:
    // What stands in the folder, folders with a separator behind them, in the order of the names.
    std::vector<std::string> left() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.name())) {
            std::string name = entry.path().generic_string().substr(folder.name().size() + 1);
            names.push_back(entry.is_directory() && !entry.is_symlink() ? name + "/" : name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    // What the user is told while a folder is being cleared.
    static std::string told(const std::function<void()>& action) {
        const std::string text = shown_to_user(action);
        return text.substr(0, text.find("\n\n    (VER: "));
    }

    // Both operations refuse the name with that message and say so under their own name.
    static void expect_refusal(const std::string& name, const std::string& message, const std::string& ending = "") {
        const trace_capture capture;
        EXPECT_EQ(told([&] { clear_folder(name, true, ending); }), "Tessaline - Error: " + message);
        EXPECT_EQ(told([&] { clear_folder_except(name, ending, {}); }), "Tessaline - Error: " + message);
        EXPECT_EQ(capture.text_without_line_numbers(), "qlw_std(#): clear_folder():: *** ERROR: " + message + "\n" +
                                                           "qlw_std(#): clear_folder_except():: *** ERROR: " + message +
                                                           "\n");
    }

    temporary_folder folder;
};
