#pragma once

// What every example does with its model.

#include "sketchup/model/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <vector>

// The main function of an example: writes the model to the one file that the command line names, and takes all from the
// builder. Gives the status of the program: 0, or, with a word on standard error, 1 if the file cannot be written and 2
// if the command line is wrong.
inline int write_model(int argc, char** argv, sketchup::model_builder& m) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s MODEL.skp\n", argc > 0 ? argv[0] : "example");
        return 2;
    }
    const std::vector<std::uint8_t> bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
    std::ofstream out(argv[1], std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        std::fprintf(stderr, "%s: cannot write %s\n", argv[0], argv[1]);
        return 1;
    }
    return 0;
}
