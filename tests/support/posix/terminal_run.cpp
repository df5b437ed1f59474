#include "tests/support/posix/terminal_run.h"

#include "tests/support/posix/terminal_screen.h"

#include <array>
#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace {

// Line by line with an end of input, as a person's terminal; but nothing typed is shown and no line end is changed.
termios plain_terminal() {
    termios settings{};
    settings.c_cflag = CS8 | CREAD | CLOCAL;
    settings.c_lflag = ICANON;
    settings.c_cc[VEOF] = '\x04';
    cfsetispeed(&settings, B38400);
    cfsetospeed(&settings, B38400);
    return settings;
}

// The next bytes that the terminal shows; empty when the program has closed it, or has been silent for too long.
std::string next_bytes(int terminal) {
    constexpr int patience_milliseconds = 30000;
    pollfd watched = {terminal, POLLIN, 0};
    const int ready = poll(&watched, 1, patience_milliseconds);
    EXPECT_NE(ready, 0) << "the program says nothing and does not end";
    std::array<char, 4096> bytes{};
    const ssize_t count = ready > 0 ? read(terminal, bytes.data(), bytes.size()) : 0;
    return count > 0 ? std::string(bytes.data(), static_cast<std::size_t>(count)) : std::string();
}

void type(int terminal, const std::string& text) {
    EXPECT_EQ(write(terminal, text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

// Talks until the program has closed the terminal; gives what that has shown.
std::string talk_on(int terminal, const std::vector<terminal_exchange>& talk) {
    std::string shown;
    std::size_t answered_up_to = 0; // of what was shown
    std::size_t step = 0;
    for (std::string more = next_bytes(terminal); !more.empty(); more = next_bytes(terminal)) {
        shown += more;
        const std::size_t at = step < talk.size() ? shown.find(talk[step].question, answered_up_to) : std::string::npos;
        if (at == std::string::npos)
            continue;
        answered_up_to = at + talk[step].question.size();
        type(terminal, talk[step++].answer);
    }
    EXPECT_EQ(step, talk.size()) << "not all was asked; shown was: " << shown;
    return shown;
}

// Makes the calling process the program; comes back from nothing.
[[noreturn]] void become(const program_start& start) {
    for (const auto& [name, value] : start.environment)
        value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    std::vector<std::string> words = {start.program};
    words.insert(words.end(), start.arguments.begin(), start.arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    if (start.folder.empty() || chdir(start.folder.c_str()) == 0)
        execv(start.program.c_str(), pointers.data());
    _exit(127);
}

// settings, size: of the terminal; null for those of the system.
terminal_outcome run(const program_start& start, const std::vector<terminal_exchange>& talk, const termios* settings,
                     const winsize* size) {
    int terminal = -1;
    const pid_t program = forkpty(&terminal, nullptr, settings, size);
    if (program == 0)
        become(start);
    terminal_outcome outcome;
    if (program < 0) {
        ADD_FAILURE() << "there is no terminal to be had";
        return outcome;
    }
    outcome.shown = talk_on(terminal, talk);
    if (testing::Test::HasFailure())
        kill(program, SIGKILL);
    close(terminal);
    int status = -1;
    waitpid(program, &status, 0);
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

} // namespace

terminal_outcome run_on_terminal(const program_start& start, const std::vector<terminal_exchange>& talk) {
    const termios settings = plain_terminal();
    return run(start, talk, &settings, nullptr);
}

std::vector<std::string> rows_left_on_terminal(const std::string& command, const std::vector<terminal_exchange>& talk) {
    const winsize size{24, 100, 0, 0};
    terminal_screen screen(size.ws_col);
    screen.show(run({"/bin/sh", {"-c", command}}, talk, nullptr, &size).shown);
    return screen.rows();
}

std::string shell_quoted(const std::string& argument) {
    std::string quoted = "'";
    for (const char c : argument)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}
