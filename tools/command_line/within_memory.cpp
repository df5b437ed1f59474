#include "tools/command_line/within_memory.h"

#include <cstdio>
#include <new>
#include <stdexcept>

int within_memory(std::string_view name, const std::function<int()>& work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) { // of a list that no memory could hold
    }
    std::fprintf(stderr, "%.*s: there is not enough memory\n", static_cast<int>(name.size()), name.data());
    return 3;
}
