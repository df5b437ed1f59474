#pragma once

// A folder with the programs of a run, a model, and what a run makes of it.

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <map>
#include <string>
#include <system_error>
#include <vector>

class RunFixture : public testing::Test {
protected:
    RunFixture() {
        for (const char* program : {"tessaline", "tessaline-run", "batch-check", "skp-dump"})
            put_program(program, program);
        put_model(1);
    }

    // The first program of the build, under the name of the second, beside the others.
    void put_program(const std::string& program, const std::string& name) const {
        const std::string from = std::string(PROGRAMS) + "/" + program + PROGRAM_ENDING;
        const std::string to = here / ("bin/" + name + PROGRAM_ENDING);
        here.make_folder("bin");
        std::filesystem::remove(to);
        std::error_code other_disk;
        std::filesystem::create_hard_link(from, to, other_disk);
        if (other_disk)
            std::filesystem::copy_file(from, to);
    }

    // A converter, or a checker, that does something else: stand_in/main.cpp says what there is.
    void put_stand_in(const std::string& what, const std::string& program = "tessaline") const {
        put_program("stand_in", program);
        here.write("bin/stand_in.txt", what);
    }

    void put_model(int squares) const {
        sketchup::model_builder m;
        for (int i = 0; i < squares; ++i) {
            const double x = 20 * i;
            m.root().face({{x, 0, 0}, {x + 10, 0, 0}, {x + 10, 10, 0}, {x, 10, 0}});
        }
        put_model(m);
    }
    void put_model(sketchup::model_builder& m) const {
        const std::vector<std::uint8_t> bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
        here.write("model.skp", std::string(bytes.begin(), bytes.end()));
    }

    program_start start_of(std::vector<std::string> arguments) const {
        here.make_folder("home");
        program_start start = {here / (std::string("bin/tessaline-run") + PROGRAM_ENDING),
                               std::move(arguments),
                               {},
                               settings_in(here / "home")};
        start.environment.emplace_back("TESSALINE_TRACE", std::nullopt);
        start.environment.emplace_back("SOURCE_DATE_EPOCH", "1000000000");
        return start;
    }
    // A run on the model and the folder "batch", with these options in front.
    program_start start_with(std::vector<std::string> options) const {
        options.insert(options.end(), {here / "model.skp", here / "batch"});
        return start_of(std::move(options));
    }
    program_result run_with(std::vector<std::string> options) const {
        return run_program(start_with(std::move(options)));
    }
    program_result run() const { return run_with({}); }

    nlohmann::json report() const {
        return nlohmann::json::parse(here.read("batch/tessaline-run.json"), nullptr, false);
    }

    // Every file below the folder, with its bytes.
    std::map<std::string, std::string> files_in(const std::string& folder) const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(here / folder))
            if (!entry.is_directory())
                files[entry.path().lexically_relative(here / folder).generic_string()] =
                    text_of_file(entry.path().string());
        return files;
    }

    // What stands beside the batch: of a run that has ended neither a folder put aside nor anything else.
    std::vector<std::string> names_here() const {
        std::vector<std::string> names;
        const auto entries = platform::list_folder(here.name());
        for (const auto& entry : entries.value())
            if (entry.name != "bin" && entry.name != "home")
                names.push_back(entry.name);
        return names;
    }

    temporary_folder here;
};

inline std::string last_line(const std::string& text) {
    const std::string lines = text.substr(0, text.size() - (text.ends_with('\n') ? 1 : 0));
    return lines.substr(lines.rfind('\n') + 1);
}
