#include "tests/sketchup/skp/writer/classic_member_specs.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace classic_table {

namespace {

std::size_t member_named(const class_spec& spec, const std::string& name) {
    const auto found = std::ranges::find(spec.members, name, &member::name);
    if (found == spec.members.end())
        throw std::logic_error(spec.name + " has no member " + name + " to ask");
    return static_cast<std::size_t>(found - spec.members.begin());
}

// "flags&16", "format=1" or "edge"
condition parse_condition(const class_spec& spec, const std::string& word, bool inverted) {
    condition c;
    c.inverted = inverted;
    const std::size_t operation = word.find_first_of("&=");
    c.member = member_named(spec, word.substr(0, operation));
    if (operation == std::string::npos)
        return c;
    const auto number = static_cast<std::uint32_t>(std::stoul(word.substr(operation + 1)));
    if (word[operation] == '&')
        c.mask = number;
    else
        c.value = number;
    return c;
}

member parse_member(const class_spec& spec, std::istringstream& words) {
    member m;
    m.gate = spec.name;
    words >> m.type >> m.name;
    if (const std::size_t star = m.type.find('*'); star != std::string::npos) {
        m.times = std::stoul(m.type.substr(star + 1));
        m.type.resize(star);
    }
    for (std::string word; words >> word;) {
        std::string value;
        if (word == "from" && words >> value) {
            m.from = static_cast<std::uint32_t>(std::stoul(value));
        } else if (word == "to" && words >> value) {
            m.to = static_cast<std::uint32_t>(std::stoul(value));
        } else if (word == "of") {
            words >> m.gate;
        } else if ((word == "if" || word == "unless") && words >> value) {
            m.when = parse_condition(spec, value, word == "unless");
        } else {
            std::istringstream classes(word);
            for (std::string one; std::getline(classes, one, '|');)
                m.classes.insert(one);
        }
    }
    return m;
}

} // namespace

class_specs parse_table() {
    class_specs specs;
    class_spec* current = nullptr;
    std::istringstream lines{std::string(classic_member_table())};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string first;
        if (line.starts_with("class ")) {
            words >> first >> first;
            current = &specs[first];
            current->name = first;
        } else if (!line.empty()) {
            current->members.push_back(parse_member(*current, words));
        }
    }
    return specs;
}

} // namespace classic_table
