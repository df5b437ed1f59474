#include "tests/support/run_program.h"

#include "tests/support/temporary_folder.h"
#include "tests/support/windows/window_reader.h"

#include <cstdio>
#include <map>

#include <psapi.h>

namespace {

// One argument as the runtime of the compilers takes it apart: in quotation marks, with a backslash in front of each
// mark, and the backslashes in front of a mark doubled.
std::string quoted(const std::string& argument) {
    std::string text = "\"";
    std::size_t backslashes = 0;
    for (const char c : argument) {
        if (c == '"')
            text.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, '\\') + '"';
}

std::string command_line(const program_start& start) {
    const auto word = [](const std::string& text) {
        const bool is_plain = !text.empty() && text.find_first_of(" \t\"") == std::string::npos;
        return is_plain ? text : quoted(text);
    };
    std::string line = word(start.program);
    for (const std::string& argument : start.arguments)
        line += ' ' + word(argument);
    return line;
}

// Texts "NAME=VALUE", each closed by a zero byte, and one more at the end. Names differ in more than case.
std::string environment_block(const std::vector<environment_change>& changes) {
    const auto less = [](const std::string& a, const std::string& b) { return _stricmp(a.c_str(), b.c_str()) < 0; };
    std::map<std::string, std::string, decltype(less)> variables(less);
    char* const all = GetEnvironmentStringsA();
    for (const char* one = all; *one != '\0'; one += std::string_view(one).size() + 1) {
        const std::string text = one;
        const std::size_t equals = text.find('=', 1); // "=C:" is a name
        variables[text.substr(0, equals)] = text.substr(equals + 1);
    }
    FreeEnvironmentStringsA(all);
    for (const auto& [name, value] : changes)
        if (value)
            variables[name] = *value;
        else
            variables.erase(name);
    std::string block;
    for (const auto& [name, value] : variables)
        block += name + '=' + value + '\0';
    return block + '\0';
}

class inherited_file {
public:
    inherited_file(const std::string& name, DWORD access, DWORD how) {
        SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        handle = CreateFileA(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, how, 0, nullptr);
    }
    inherited_file(const inherited_file&) = delete;
    inherited_file& operator=(const inherited_file&) = delete;
    ~inherited_file() { CloseHandle(handle); }
    HANDLE get() const { return handle; }

private:
    HANDLE handle;
};

std::string last_error() {
    return "error " + std::to_string(GetLastError());
}

// Waits for a process, closing the windows in which it tells of errors, and puts down how it has ended.
void wait_for(HANDLE process, window_reader& windows, int seconds, program_result& result) {
    const ULONGLONG deadline = GetTickCount64() + static_cast<ULONGLONG>(seconds) * 1000;
    while (WaitForSingleObject(process, 10) != WAIT_OBJECT_0) {
        windows.close_open_windows();
        if (GetTickCount64() < deadline)
            continue;
        TerminateProcess(process, 1);
        WaitForSingleObject(process, INFINITE);
        result.end = "took longer than " + std::to_string(seconds) + " seconds";
        return;
    }
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof(memory);
    if (GetProcessMemoryInfo(process, &memory, sizeof(memory)))
        result.most_bytes = memory.PeakWorkingSetSize;
    DWORD status = 0;
    GetExitCodeProcess(process, &status);
    constexpr DWORD first_exception = 0x80000000;
    if (status < first_exception) {
        result.status = static_cast<int>(status);
        return;
    }
    char code[16];
    std::snprintf(code, sizeof(code), "%08lx", status);
    result.end = std::string("ended by exception ") + code;
}

// What the runtime library has put a carriage return in front of.
std::string with_line_feeds(const std::string& text) {
    std::string changed;
    for (std::size_t at = 0; at < text.size(); ++at)
        if (text.compare(at, 2, "\r\n") != 0)
            changed += text[at];
    return changed;
}

} // namespace

program_result run_program(const program_start& start) {
    const temporary_folder printed;
    program_result result;
    std::string shown;
    {
        const inherited_file input("NUL", GENERIC_READ, OPEN_EXISTING);
        const inherited_file output(printed / "output", GENERIC_WRITE, CREATE_ALWAYS);
        const inherited_file errors(printed / "errors", GENERIC_WRITE, CREATE_ALWAYS);
        STARTUPINFOA streams = {};
        streams.cb = sizeof(streams);
        streams.dwFlags = STARTF_USESTDHANDLES;
        streams.hStdInput = input.get();
        streams.hStdOutput = output.get();
        streams.hStdError = errors.get();
        std::string command = command_line(start);
        std::string environment = environment_block(start.environment);
        PROCESS_INFORMATION started = {};
        if (!CreateProcessA(start.program.c_str(), command.data(), nullptr, nullptr, TRUE, 0, environment.data(),
                            start.folder.empty() ? nullptr : start.folder.c_str(), &streams, &started)) {
            result.end = start.program + " cannot be started: " + last_error();
            return result;
        }
        CloseHandle(started.hThread);
        window_reader windows(started.dwProcessId);
        wait_for(started.hProcess, windows, start.seconds, result);
        shown = windows.read();
        CloseHandle(started.hProcess);
    }
    result.output = with_line_feeds(printed.read("output"));
    result.errors = with_line_feeds(printed.read("errors")) + shown;
    return result;
}
