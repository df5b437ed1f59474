#pragma once

// A program that runs while the test goes on, and the signals that it gets.

#include "tests/support/run_program.h"

#include <chrono>
#include <csignal>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

enum class how_watched { freely, traced };

class started_program {
public:
    // Throws if it cannot be started. user: that of the superuser only; 0 for the user of the test. One that is traced
    // waits for run_for_calls().
    explicit started_program(const program_start& start, uid_t user = 0, how_watched how = how_watched::freely);
    started_program(const started_program&) = delete;
    started_program& operator=(const started_program&) = delete;
    ~started_program(); // ends it if it runs still

    pid_t number() const { return process; }
    void send(int signal_number) const { kill(process, signal_number); }
    // The programs that it has started and that run still.
    std::vector<pid_t> children() const;

    // Its status when it has ended; -1 if a signal has ended it, and if it had to be killed because it took longer.
    int wait(std::chrono::milliseconds longest = std::chrono::minutes(1));
    // For a traced one: lets it make so many calls to the system and kills it when it is about to make the next. Gives
    // the number of calls; fewer if it ended before. Throws if it cannot be traced.
    std::size_t run_for_calls(std::size_t most);
    std::string errors() const;

private:
    pid_t process = -1;
    std::string errors_file;
};

// Waits until the condition holds; false if it does not in time.
bool comes_true(const std::function<bool()>& condition, std::chrono::milliseconds longest = std::chrono::minutes(1));

bool is_running(pid_t process);
