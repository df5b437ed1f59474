#pragma once

// Another process that holds a lock.

#include "platform/posix/shared_file.h"

#include <stdexcept>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

class lock_holder {
public:
    // Comes back when the lock is held. Throws if it cannot be: no test can go on without it.
    explicit lock_holder(const std::string& lock_name) {
        int told[2];
        int asked[2];
        if (pipe(told) != 0 || pipe(asked) != 0)
            throw std::runtime_error("no pipe can be made");
        child = fork();
        if (child == 0) {
            close(asked[1]);
            hold(lock_name, told[1], asked[0]);
            _exit(0);
        }
        close(told[1]);
        close(asked[0]);
        ask = asked[1];
        char answer = 0;
        const bool is_held = child > 0 && read(told[0], &answer, 1) == 1 && answer == 'h';
        close(told[0]);
        if (!is_held)
            throw std::runtime_error("no process holds " + lock_name);
    }
    lock_holder(const lock_holder&) = delete;
    lock_holder& operator=(const lock_holder&) = delete;
    ~lock_holder() { let_go(); }

    // Comes back when the other process has let go and ended.
    void let_go() {
        if (ask < 0)
            return;
        close(ask);
        ask = -1;
        waitpid(child, nullptr, 0);
    }

private:
    // Holds the lock until the other end of `asked` is closed.
    static void hold(const std::string& lock_name, int told, int asked) {
        platform::file_lock lock;
        const char answer = lock.take(lock_name, 0) == platform::lock_result::taken ? 'h' : 'n';
        char byte = 0;
        if (write(told, &answer, 1) == 1)
            while (read(asked, &byte, 1) > 0)
                ;
    }

    pid_t child = -1;
    int ask = -1;
};
