#pragma once

// What every example does with its model.

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tools/command_line/answers.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

// The program's own name without its folder and, on Windows, its ending.
inline std::string example_name(int argc, char** argv) {
    const std::string path = argc > 0 ? argv[0] : "example";
    const std::string name = path.substr(path.find_last_of("/\\") + 1);
    return name.substr(0, name.find(".exe"));
}

// The main function of an example: writes the model to the one file that the command line names, and takes all from the
// builder. Gives the status of the program: 0, or, with a word on standard error, 1 if the file cannot be written and 2
// if the command line is wrong.
inline int write_model(int argc, char** argv, sketchup::model_builder& m) {
    const std::string name = example_name(argc, argv);
    const std::string usage = "usage: " + name + " MODEL.skp\nWrites the example's model into that file.\n";
    if (const auto status = answer_at_once(argc, argv, name, usage))
        return *status;
    if (argc != 2)
        return refuse_command_line(usage);
    const std::vector<std::uint8_t> bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
    std::ofstream out(argv[1], std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        std::fprintf(stderr, "%s: cannot write %s\n", name.c_str(), argv[1]);
        return 1;
    }
    return 0;
}
