// Stores any attributes in the parameters of a level and makes a lamp of what comes out: whatever an object says, the
// lamp gets a file of twenty lines. Each line of the input is a row: dictionary, key and value, with ";" between; an
// empty line goes inside the object.

#include "qlw/qlw_globals.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/lamps.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tests/support/temporary_folder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

namespace {

constexpr transform16 somewhere{0, 2, 0, 0, 0, 0, 3, 0, 4, 0, 0, 0, 100, 200, 300, 1};

std::string cut(std::string& line) {
    const std::size_t end = std::min(line.find(';'), line.size());
    const std::string field = line.substr(0, end);
    line.erase(0, end + 1);
    return field;
}

void go_inside() {
    current_oparms->store_attributes_in_oparms("Group");
    attribute_list.clear();
    current_oparms = oparms_array.push();
}

void add_lamp(const temporary_folder& folder) {
    SketchUpReader reader;
    current_oparms->light.add_lamp(reader, somewhere);
    const std::string file = folder.read("ZynBatch_Lights/light_0.txt");
    // Texts go into the file as they are, so they may bring lines of their own, but none may be missing.
    if (std::count(file.begin(), file.end(), '\n') < 20 || reader.lights.size() != 1)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const temporary_folder folder;
    reset_process();
    reset_settings();
    theApp.batch_folder = folder.name();
    current_oparms = oparms_array.push();
    std::istringstream rows(std::string(reinterpret_cast<const char*>(data), size));
    for (std::string line; std::getline(rows, line) && oparms_array.size() < 100;) {
        if (line.empty()) {
            go_inside();
            continue;
        }
        std::string dictionary = cut(line);
        std::string key = cut(line);
        attribute_list.push_back({std::move(dictionary), std::move(key), line});
    }
    go_inside();
    if (is_lamp(current_oparms->light))
        add_lamp(folder);
    return 0;
}
