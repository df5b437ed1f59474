// What the user's profile costs at start-up: the whole table of settings over an empty and over a full profile.

#include "qlw/ini_text.h"
#include "qlw/qlw_globals.h"
#include "qlw/qlw_profile.h"
#include "qlw/trace_state.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"

#include <benchmark/benchmark.h>

namespace {

class own_profile {
public:
    own_profile() { trace_state().trace_enabled = true; } // as in every run
    ~own_profile() { reset_settings(); }
    own_profile(const own_profile&) = delete;
    own_profile& operator=(const own_profile&) = delete;

    // As if a parent had stored every setting that is kept in the profile.
    void fill() {
        ini_text text;
        for (const std::string& name : get_global_names())
            text.set_value("Globals", name, "1");
        folder.write("Quillon Systems/Profile.ini", text.bytes());
    }

private:
    temporary_folder folder;
    with_environment settings{"XDG_CONFIG_HOME", folder.name()};
};

void start(benchmark::State& state) {
    for (auto _ : state) {
        reset_settings();
        register_all_globals();
    }
}

void start_on_an_empty_profile(benchmark::State& state) {
    const own_profile profile;
    start(state);
}

void start_on_a_full_profile(benchmark::State& state) {
    own_profile profile;
    register_all_globals();
    profile.fill();
    start(state);
}

void write_what_stands_there(benchmark::State& state) {
    own_profile profile;
    register_all_globals();
    profile.fill();
    for (auto _ : state)
        write_profile_string("Globals", "svl_last_scheme", "1");
}

void write_something_new(benchmark::State& state) {
    own_profile profile;
    register_all_globals();
    profile.fill();
    int number = 0;
    for (auto _ : state)
        write_profile_int("Globals", "ivl_txtr_dpi", ++number);
}

BENCHMARK(start_on_an_empty_profile)->Unit(benchmark::kMicrosecond);
BENCHMARK(start_on_a_full_profile)->Unit(benchmark::kMicrosecond);
BENCHMARK(write_what_stands_there)->Unit(benchmark::kMicrosecond);
BENCHMARK(write_something_new)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
