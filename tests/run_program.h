#pragma once

// Runs a program of the build and takes what it prints.

#include <array>
#include <cstdio>
#include <string>

// One argument of a command line, quoted for the shell.
inline std::string shell_quoted(const std::string& argument) {
    std::string quoted = "'";
    for (const char c : argument)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

struct program_result {
    int status = -1; // as pclose gives it; 0 is success
    std::string output;
};

// command: for the shell. Its standard output is taken; its standard error goes where the caller's goes.
inline program_result run_program(const std::string& command) {
    program_result result;
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        return result;
    std::array<char, 65536> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe))
        result.output.append(buffer.data(), count);
    result.status = pclose(pipe);
    return result;
}
