#pragma once

// What a mutated source asks at each place that was changed: whether the change is switched on in this process, and its
// children. TESSALINE_MUTANT is the number of the one change that is; without it the program is as written.
//
// Each question is noted as well: TESSALINE_MUTANT_REACH names a file with one byte for every number, which becomes 1.
// It is mapped and not written at the end, because a process may end by a signal, or leave without a word.

#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mutation {

struct switchboard {
    int chosen = -1;
    unsigned char* reached = nullptr;
    std::size_t count = 0;

    switchboard() {
        if (const char* number = std::getenv("TESSALINE_MUTANT"))
            chosen = std::atoi(number);
        if (const char* path = std::getenv("TESSALINE_MUTANT_REACH"))
            map(path);
    }

    void map(const char* path) {
        const int file = open(path, O_RDWR | O_CLOEXEC);
        struct stat facts {};
        if (file < 0 || fstat(file, &facts) != 0)
            return;
        void* bytes = mmap(nullptr, static_cast<std::size_t>(facts.st_size), PROT_WRITE, MAP_SHARED, file, 0);
        close(file);
        if (bytes == MAP_FAILED)
            return;
        reached = static_cast<unsigned char*>(bytes);
        count = static_cast<std::size_t>(facts.st_size);
    }
};

inline switchboard& board() {
    static switchboard only;
    return only;
}

} // namespace mutation

inline bool mutant_is(int number) {
    mutation::switchboard& board = mutation::board();
    if (static_cast<std::size_t>(number) < board.count)
        board.reached[number] = 1;
    return board.chosen == number;
}
