// Writes so many values into a section of a settings file, one after the other: settings_writer FILE SECTION COUNT.

#include "qlw/ini_store.h"

#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
    if (argc != 4)
        return 2;
    ini_store store;
    for (int i = 0; i < std::atoi(argv[3]); ++i)
        store.write(argv[1], argv[2], "k" + std::to_string(i), "1");
    return 0;
}
