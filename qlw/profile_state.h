#pragma once

// What the profile layer keeps between two calls: one object for the process, since settings are asked for by name from
// everywhere and each ini file is to be read once.

#include "platform/platform.h"
#include "qlw/ini_store.h"

#include <memory>

struct cl_profile_state {
    ini_store ini_files;
    std::unique_ptr<platform::registry> registry = platform::system_registry(); // a test puts its own in its place
};

cl_profile_state& profile_state();

// As at the start of the process: nothing read, the system's registry. For tests and fuzzing.
void reset_profile_state();
