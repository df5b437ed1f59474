#pragma once

// Whole readings inside the test's own process: a model is built, written to a file in a folder of the test's own, read
// back and converted there.

#include "qlw/qlw_globals.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"

#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

class run_fixture : public testing::Test {
protected:
    run_fixture() {
        reset_process();
        reset_settings();
        register_all_globals();
        set_global_int("ivl_edge_lines", 0);
    }
    ~run_fixture() override {
        reset_process();
        reset_settings();
    }

    // Writes the model to "geometry.qlm" in the batch folder; gives its full name.
    std::string save(sketchup::model_builder& model, const std::string& inside = "geometry.qlm") {
        const auto bytes = skp::write_classic(*model.finish(), skp::classic_version::v17);
        return batch.write(inside, std::string(bytes.begin(), bytes.end()));
    }

    // Converts the model and gives the lines of the stream's body: behind the pass, in front of the end.
    std::vector<std::string> body_of(sketchup::model_builder& model) {
        result = reader.ReadSkpFile(save(model), batch / "batch_file.txt");
        return body();
    }

    std::vector<std::string> stream_lines() const {
        std::istringstream text(batch.read("batch_file.txt"));
        std::vector<std::string> all;
        for (std::string line; std::getline(text, line);)
            all.push_back(line.substr(0, line.find('\r')));
        return all;
    }

    std::vector<std::string> body() const {
        std::vector<std::string> all = stream_lines();
        constexpr std::size_t head = 9;
        constexpr std::size_t tail = 2;
        if (all.size() < head + tail)
            return {"no whole stream"};
        return {all.begin() + head, all.end() - tail};
    }

    // The lines of the body that begin with a tag.
    static std::vector<std::string> tagged(const std::vector<std::string>& lines, const std::string& tag) {
        std::vector<std::string> found;
        for (const std::string& line : lines)
            if (line.starts_with(tag))
                found.push_back(line);
        return found;
    }

    temporary_folder batch;
    with_environment fixed_date{"SOURCE_DATE_EPOCH", "0"};
    with_settings_folder own_profile{batch / "config"};
    SketchUpReader reader;
    int result = 0;
};
