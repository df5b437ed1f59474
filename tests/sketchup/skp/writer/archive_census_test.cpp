// The writer's archives have what archives of the program always have, as far as the samples tell.

#include "tests/sketchup/skp/writer/archive_census.h"

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/samples_folder.h"
#include "tests/sketchup/skp/writer/archive_exceptions.h"
#include "tests/sketchup/skp/writer/random_model.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <set>

namespace {

using namespace sketchup;
using bytes = std::vector<std::uint8_t>;

struct samples {
    archive_census census;
    std::vector<std::pair<std::string, bytes>> files; // those that open
    int count = 0;
};

// The archives of the program whose version has that number.
samples real_archives(const std::string& folder, const std::string& major) {
    std::ifstream list(folder + "expected.json");
    const nlohmann::json all = nlohmann::json::parse(list);
    samples found;
    for (const auto& [name, expected] : all.items()) {
        const bytes file = file_bytes(folder + name);
        const std::string head(file.begin(),
                               file.begin() + static_cast<std::ptrdiff_t>(std::min(file.size(), bytes::size_type{90})));
        const std::string version = std::string("{\0", 2) + major[0] + '\0' + major[1] + '\0' + std::string(".\0", 2);
        if (head.find(version) == std::string::npos || head.find("VFF") == std::string::npos)
            continue;
        ++found.count;
        found.census.add(file);
        if (expected["opens"])
            found.files.emplace_back(name, file);
    }
    return found;
}

void add_square(model_builder& m) {
    m.root().square(10);
}

void add_room(model_builder& m) {
    list_builder group = m.root().group("walls", moved({1, 2, 3}));
    group.box({0, 0, 0}, {100, 80, 60});
    list_builder lamp = m.component("lamp");
    lamp.arc({0, 0, 0}, {3, 0, 0}, {0, 3, 0}, 0, 6.28, 12);
    group.instance(lamp, turned_about_z(30));
    const entity_place floor = m.root().square(200);
    m.face(floor).material = m.textured_material("Tiles", {'B', 'M', 0, 0}, "tiles.bmp", 10, 20);
    m.mapping(floor).front.positioned = true;
    m.root().image(m.image_definition({'B', 'M', 0, 0}, "picture.bmp", 16, 16));
    m.layer("Hidden", false);
    m.scene("from above", true);
}

// Models as tests of the whole program build them.
std::vector<std::unique_ptr<model>> built_models() {
    std::vector<std::unique_ptr<model>> models;
    for (void (*const build)(model_builder&) : {add_square, add_room}) {
        model_builder m;
        build(m);
        models.push_back(m.finish());
    }
    return models;
}

std::unique_ptr<model> model_of_example(const std::string& name) {
    const temporary_folder folder;
    const std::string file = folder / "model.skp";
    const std::string program = std::string(EXAMPLE_PROGRAMS) + "/example_" + name + PROGRAM_ENDING;
    EXPECT_EQ(run_program({program, {file}}).status, 0);
    return skp::read_model(file_bytes(file));
}

archive_census our_archives(skp::modern_version version, const samples& real) {
    archive_census ours;
    constexpr std::uint64_t seeds = 40;
    for (std::uint64_t seed = 1; seed <= seeds; ++seed)
        ours.add(skp::write_modern(*random_model(seed), version));
    for (const char* name : {"garden", "room", "stages"})
        ours.add(skp::write_modern(*model_of_example(name), version));
    for (const auto& m : built_models())
        ours.add(skp::write_modern(*m, version));
    for (const auto& [name, file] : real.files)
        ours.add(skp::write_modern(*skp::read_model(file), version));
    return ours;
}

const char* word_for(lack what) {
    return what == lack::absent ? "absent" : what == lack::empty ? "empty" : "zero";
}

// The findings that no exception excuses; the exceptions that were needed are taken out of `unneeded`.
std::string unexcused(const std::vector<finding>& findings, std::set<const archive_exception*>& unneeded) {
    std::string lines;
    for (const finding& found : findings) {
        bool excused = false;
        for (const archive_exception& one : archive_exceptions())
            if (excuses(one, found)) {
                excused = true;
                unneeded.erase(&one);
            }
        if (!excused)
            lines += found.path + " is " + word_for(found.what) + " " + std::to_string(found.times) + " times\n";
    }
    return lines;
}

} // namespace

TEST(ArchiveCensus, our_archives_have_what_archives_of_the_program_always_have) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    std::set<const archive_exception*> unneeded;
    for (const archive_exception& one : archive_exceptions())
        if (!is_up_to_the_model(one))
            unneeded.insert(&one);
    const struct {
        skp::modern_version version;
        const char* major;
        int samples;
    } versions[] = {{skp::modern_version::v21, "21", 11}, {skp::modern_version::v25, "25", 3}};
    for (const auto& one : versions) {
        SCOPED_TRACE(one.major);
        const samples real = real_archives(folder, one.major);
        EXPECT_GE(real.count, one.samples);
        EXPECT_EQ(unexcused(lacks_of(our_archives(one.version, real), real.census), unneeded), "");
    }
    for (const archive_exception* one : unneeded)
        ADD_FAILURE() << "nothing needs the exception for " << one->path << ", " << word_for(one->what);
}

TEST(ArchiveCensus, finds_what_is_absent_or_empty_and_never_is_elsewhere) {
    const auto original = random_model(3);
    const auto changed = random_model(3);
    changed->layers[0].name = ""; // a text that is empty
    archive_census real, ours, same;
    real.add(skp::write_modern(*original, skp::modern_version::v25));
    same.add(skp::write_modern(*original, skp::modern_version::v25));
    ours.add(skp::write_modern(*changed, skp::modern_version::v21));
    EXPECT_TRUE(lacks_of(same, real).empty());
    std::set<std::string> found;
    for (const finding& one : lacks_of(ours, real))
        found.insert(one.path + " " + word_for(one.what));
    EXPECT_TRUE(found.contains("model.dat/500/504/15000/15001/15500/15501 empty"));
    EXPECT_TRUE(found.contains("model.dat/500/528 absent")); // environments came after 2021
    EXPECT_TRUE(found.contains("material.xml/materialDocument/material/@workflow absent"));
}

TEST(ArchiveCensus, refuses_a_file_whose_end_is_missing) {
    bytes file = skp::write_modern(*random_model(1), skp::modern_version::v21);
    file.resize(file.size() / 2);
    EXPECT_THROW(archive_census().add(file), std::runtime_error);
}
