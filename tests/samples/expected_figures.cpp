#include "tests/samples/expected_figures.h"

#include "tests/samples_folder.h"

#include <cctype>
#include <fstream>

using nlohmann::json;

namespace {

json parsed(const std::string& file_name) {
    const std::string folder = samples_folder();
    return folder.empty() ? json::object() : json::parse(std::ifstream(folder + file_name));
}

std::vector<std::string> names_in(const json& by_sample) {
    std::vector<std::string> names;
    for (const auto& [name, figures] : by_sample.items())
        names.push_back(name);
    return names;
}

} // namespace

const json& expected_figures() {
    static const json figures = parsed("expected.json");
    return figures;
}

const json& expected_openings() {
    static const json openings = parsed("openings.json");
    return openings;
}

std::vector<std::string> sample_names() {
    return names_in(expected_figures());
}

std::vector<std::string> names_of_openings() {
    return names_in(expected_openings());
}

std::string test_name_of(const std::string& file_name) {
    std::string name;
    for (const char c : file_name)
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    return name;
}
