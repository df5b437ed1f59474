#include "tests/sketchup/skp/writer/description_text.h"

#include <array>
#include <cstdio>

using sketchup::typed_value;

std::string text_of(double number) {
    std::array<char, 64> digits{};
    std::snprintf(digits.data(), digits.size(), "%.17g", number);
    return digits.data();
}

std::string text_of(bool truth) {
    return truth ? "yes" : "no";
}

std::string text_of(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        std::array<char, 8> code{};
        std::snprintf(code.data(), code.size(), "\\%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
        result += c >= ' ' && c <= '~' && c != '"' && c != '\\' ? std::string(1, c) : code.data();
    }
    return result + "\"";
}

std::string text_of(const sketchup::vec3& v) {
    return "(" + text_of(v.x) + " " + text_of(v.y) + " " + text_of(v.z) + ")";
}

std::string text_of(const sketchup::plane& p) {
    return text_of(p.normal()) + " at " + text_of(p.d);
}

std::string text_of(const sketchup::rgba& c) {
    return "rgba " + std::to_string(c.red) + " " + std::to_string(c.green) + " " + std::to_string(c.blue) + " " +
           std::to_string(c.alpha);
}

std::string text_of(const sketchup::guid& id) {
    return text_of(std::string(id.begin(), id.end()));
}

std::string text_of(std::span<const double> numbers) {
    std::string result = "[";
    for (const double number : numbers)
        result += " " + text_of(number);
    return result + " ]";
}

std::string text_of(const typed_value& value) {
    struct visitor {
        std::string operator()(std::monostate) const { return "nothing"; }
        std::string operator()(std::int64_t integer) const { return std::to_string(integer); }
        std::string operator()(const std::array<double, 13>& numbers) const { return text_of(std::span(numbers)); }
        std::string operator()(const std::vector<typed_value>& elements) const {
            std::string result = "{";
            for (const typed_value& element : elements)
                result += " " + text_of(element);
            return result + " }";
        }
        std::string operator()(bool b) const { return text_of(b); }
        std::string operator()(double d) const { return text_of(d); }
        std::string operator()(const std::string& s) const { return text_of(s); }
        std::string operator()(const sketchup::rgba& c) const { return text_of(c); }
        std::string operator()(const sketchup::vec3& v) const { return text_of(v); }
    };
    return "code " + std::to_string(static_cast<int>(value.code)) + " " + std::visit(visitor(), value.data);
}
