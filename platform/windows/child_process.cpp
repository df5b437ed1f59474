// Programs in jobs of their own, what they print through pipes.

#include "platform/child_process.h"

#include "platform/windows/system_handle.h"
#include "platform/windows/system_words.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

#include <psapi.h>

namespace platform {

namespace {

using clock = std::chrono::steady_clock;

constexpr DWORD time_between_looks = 5; // milliseconds: a pipe without a name cannot be waited for

// One argument as the runtime of the compilers takes it apart: one that needs it in quotation marks, with a backslash
// in front of each mark, and the backslashes in front of a mark doubled.
std::string quoted(const std::string& argument) {
    if (!argument.empty() && argument.find_first_of(" \t\"") == std::string::npos)
        return argument;
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

std::string command_line(const child_start& start) {
    std::string line = quoted(start.program);
    for (const std::string& argument : start.arguments)
        line += ' ' + quoted(argument);
    return line;
}

// Texts "NAME=VALUE", each closed by a zero byte, and one more at the end. Case does not tell names apart.
std::string environment_block(const child_start& start) {
    const auto less = [](const std::string& a, const std::string& b) { return _stricmp(a.c_str(), b.c_str()) < 0; };
    std::map<std::string, std::string, decltype(less)> variables(less);
    char* const all = GetEnvironmentStringsA();
    for (const char* one = all; *one != '\0'; one += std::string_view(one).size() + 1) {
        const std::string text = one;
        const std::size_t equals = text.find('=', 1); // "=C:" is a name
        variables[text.substr(0, equals)] = text.substr(equals + 1);
    }
    FreeEnvironmentStringsA(all);
    for (const auto& [name, value] : start.environment)
        if (value)
            variables[name] = *value;
        else
            variables.erase(name);
    std::string block;
    for (const auto& [name, value] : variables)
        block += name + '=' + value + '\0';
    return block + '\0';
}

// A pipe whose writing end the new program gets.
struct output_pipe {
    system_handle reading;
    system_handle writing;

    bool make() {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        HANDLE from = nullptr;
        HANDLE to = nullptr;
        if (!CreatePipe(&from, &to, &inherited, 0))
            return false;
        reading = owned(from);
        writing = owned(to);
        return SetHandleInformation(from, HANDLE_FLAG_INHERIT, 0) != FALSE;
    }

    // Bytes that wait in the pipe.
    DWORD waiting() const {
        DWORD bytes = 0;
        return PeekNamedPipe(reading.get(), nullptr, 0, nullptr, &bytes, nullptr) ? bytes : 0;
    }

    // Hands on some of what waits in the pipe. Gives the number of bytes. Once a call, so that a program that never
    // stops printing keeps nobody from looking at the clock.
    DWORD take(const std::function<void(std::string_view)>& taker) const {
        std::array<char, 65536> buffer;
        DWORD count = 0;
        if (waiting() == 0 ||
            !ReadFile(reading.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) || count == 0)
            return 0;
        if (taker)
            taker({buffer.data(), count});
        return count;
    }

    // What waits when the program has ended, whoever prints there still.
    void take_rest(const std::function<void(std::string_view)>& taker) const {
        for (DWORD left = waiting(); left > 0;) {
            const DWORD taken = take(taker);
            left = taken == 0 ? 0 : left - std::min(left, taken);
        }
    }
};

// Ends with its last handle, and all that runs in it.
system_handle job_for(const child_start& start) {
    system_handle job = owned(CreateJobObjectA(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    if (start.memory_limit != 0) {
        limits.BasicLimitInformation.LimitFlags |= JOB_OBJECT_LIMIT_PROCESS_MEMORY;
        limits.ProcessMemoryLimit = static_cast<SIZE_T>(start.memory_limit);
    }
    if (job)
        SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

// A crash is told by the status alone: no window may wait for somebody to close it.
class without_crash_windows {
public:
    without_crash_windows() : before(SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX)) {}
    without_crash_windows(const without_crash_windows&) = delete;
    without_crash_windows& operator=(const without_crash_windows&) = delete;
    ~without_crash_windows() { SetErrorMode(before); }

private:
    UINT before;
};

struct started_child {
    system_handle process;
    system_handle job;
    output_pipe output;
    output_pipe errors;
    DWORD error = 0; // why it could not be started
};

bool create(const child_start& start, started_child& child) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const system_handle nothing = owned(
        CreateFileA("NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_EXISTING, 0, nullptr));
    child.job = job_for(start);
    if (!nothing || !child.job || !child.output.make() || !child.errors.make())
        return false;
    STARTUPINFOA streams = {};
    streams.cb = sizeof streams;
    streams.dwFlags = STARTF_USESTDHANDLES;
    streams.hStdInput = nothing.get();
    streams.hStdOutput = child.output.writing.get();
    streams.hStdError = child.errors.writing.get();
    std::string line = command_line(start);
    std::string environment = environment_block(start);
    PROCESS_INFORMATION made = {};
    // A group of its own: Ctrl-C at the console reaches this process alone, which ends the program then.
    if (!CreateProcessA(start.program.c_str(), line.data(), nullptr, nullptr, TRUE,
                        CREATE_SUSPENDED | CREATE_NEW_PROCESS_GROUP, environment.data(), nullptr, &streams, &made))
        return false;
    child.process = owned(made.hProcess);
    const system_handle thread = owned(made.hThread);
    AssignProcessToJobObject(child.job.get(), made.hProcess); // refused by old systems within another job
    ResumeThread(made.hThread);
    return true;
}

started_child start_program(const child_start& start) {
    const without_crash_windows quiet;
    started_child child;
    if (!create(start, child))
        child.error = GetLastError();
    child.output.writing.reset();
    child.errors.writing.reset();
    return child;
}

// The system may have forgotten it when the program has ended, so it is asked meanwhile.
void note_memory(const started_child& child, child_end& end) {
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof memory;
    if (GetProcessMemoryInfo(child.process.get(), &memory, sizeof memory))
        end.peak_memory_bytes = std::max<std::uint64_t>(end.peak_memory_bytes, memory.PeakWorkingSetSize);
}

child_fate wait_for(const started_child& child, const child_start& start, child_end& end) {
    DWORD pause = 0; // none while it prints
    for (note_memory(child, end); WaitForSingleObject(child.process.get(), pause) != WAIT_OBJECT_0;
         note_memory(child, end)) {
        const DWORD taken = child.output.take(start.on_output) + child.errors.take(start.on_errors);
        pause = taken > 0 ? 0 : time_between_looks;
        if (!end_request().empty())
            return child_fate::called_off;
        if (start.deadline && clock::now() >= *start.deadline)
            return child_fate::out_of_time;
    }
    return child_fate::ended;
}

void tell_end(HANDLE process, child_end& end) {
    DWORD status = 0;
    GetExitCodeProcess(process, &status);
    end.number = static_cast<int>(status);
    constexpr DWORD first_exception = 0x80000000;
    if (status < first_exception)
        return;
    std::array<char, 32> name;
    std::snprintf(name.data(), name.size(), "exception %08lx", status);
    end.fate = child_fate::crashed;
    end.words = name.data();
}

} // namespace

child_end run_child(const child_start& start) {
    const started_child child = start_program(start);
    child_end end;
    if (child.error != 0) {
        end.words = words_for(child.error);
        return end;
    }
    end.fate = wait_for(child, start, end);
    TerminateJobObject(child.job.get(), 1);
    TerminateProcess(child.process.get(), 1);
    WaitForSingleObject(child.process.get(), INFINITE);
    child.output.take_rest(start.on_output);
    child.errors.take_rest(start.on_errors);
    note_memory(child, end);
    if (end.fate == child_fate::ended)
        tell_end(child.process.get(), end);
    return end;
}

} // namespace platform
