#pragma once

// An empty settings table over a profile in memory, with everything that is reported caught.

#include "captured_trace.h"
#include "memory_profile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

class settings_fixture : public testing::Test {
protected:
    settings_fixture() {
        reset_settings();
        global_variables.use_profile(profile);
    }
    ~settings_fixture() override { reset_settings(); }

    // The texts reported since the last call.
    std::vector<std::string> reported() {
        std::vector<std::string> texts;
        for (const traced_line& line : trace.take())
            texts.push_back(line.text);
        return texts;
    }

    memory_profile profile;
    captured_trace trace;
};
