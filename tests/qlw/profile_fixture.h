#pragma once

// A user's settings folder of the test's own, a registry in memory, and everything that is reported caught.

#include "captured_trace.h"
#include "memory_registry.h"
#include "qlw/profile_state.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

class profile_fixture : public testing::Test {
protected:
    profile_fixture() {
        reset_profile_state();
        auto in_memory = std::make_unique<memory_registry>();
        registry = in_memory.get();
        profile_state().registry = std::move(in_memory);
    }
    ~profile_fixture() override { reset_profile_state(); }

    std::string write_ini(const std::string& base, const std::string& text) {
        return folder.write("config/Quillon Systems/" + base + ".ini", text);
    }
    std::string ini(const std::string& base) const { return folder.read("config/Quillon Systems/" + base + ".ini"); }
    bool has_ini(const std::string& base) const { return folder.has("config/Quillon Systems/" + base + ".ini"); }

    // As if the program was started anew; the registry stays.
    void forget_files() { profile_state().ini_files.forget(); }

    // The lines of levels that a user or developer notices, since the last call: all but level 0.
    std::vector<traced_line> reported() {
        std::vector<traced_line> lines = trace.take();
        std::erase_if(lines, [](const traced_line& line) {
            return !line.text.starts_with("REPORT: ") && !line.text.starts_with("*** ERROR: ");
        });
        return lines;
    }

    temporary_folder folder;
    with_settings_folder settings{folder / "config"};
    with_environment home{"HOME", folder / "home"};
    captured_trace trace;
    memory_registry* registry = nullptr;
};
