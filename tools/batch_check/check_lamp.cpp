#include "tools/batch_check/check_lamp.h"

#include "tools/batch_check/number_forms.h"
#include "tools/batch_check/small_text.h"

#include <algorithm>
#include <array>

namespace batch_check {
namespace {

enum class value_form {
    fixed,     // the line is the key
    text,      // whatever stands there
    point,     // three numbers with six decimals
    direction, // the same, a unit vector or zero
    flag,      // 0 or 1
    color,     // "#" and six hexadecimal digits of lower case
    whole,     // a whole number
    real,      // a number with six decimals
};

struct line_form {
    std::string_view key; // with its semicolon
    value_form form = value_form::fixed;
};

// All lines, in their order.
constexpr std::array<line_form, 20> forms = {{
    {"location;", value_form::point},
    {"direction;", value_form::direction},
    {"xaxis;(1.000000,0.000000,0.000000)"},
    {"hide;", value_form::flag},
    {"use_object_color;", value_form::flag},
    {"color;", value_form::color},
    {"channel;", value_form::whole},
    {"beam_length;", value_form::real},
    {"beam_angle;", value_form::real},
    {"field_angle;", value_form::real},
    {"intensity;", value_form::real},
    {"intensity_lumens;", value_form::real},
    {"length;", value_form::real},
    {"size;", value_form::real},
    {"width;", value_form::real},
    {"type;", value_form::text},
    {"unit;Watts"},
    {"spotlight_shape;", value_form::text},
    {"ies_file_name;", value_form::text},
    {"ies_pattern;", value_form::whole},
}};

bool is_color(std::string_view text) {
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    return text.size() == 7 && text[0] == '#' && text.find_first_not_of(hexadecimal, 1) == std::string_view::npos;
}

bool is_unit_or_zero(const triple& v) {
    constexpr double tolerance = 4e-6; // of the square: each of three components is off by up to 5e-7
    return is_unit(v, tolerance) || is_zero(v);
}

class lamp_check {
public:
    lamp_check(const small_text& lines, const finding_place& where) : text(lines), place(where) {}

    lamp_facts run(bool is_direct) {
        for (std::size_t i = 0; i < forms.size(); ++i) {
            const bool is_there = i < text.line_count() && text.line(i).starts_with(forms[i].key);
            if (!is_there || (forms[i].form == value_form::fixed && text.line(i) != forms[i].key)) {
                place.report(code::lamp_line, i, in_quotes(forms[i].key) + " must stand here");
                return {};
            }
            check_value(i, text.line(i).substr(forms[i].key.size()));
        }
        if (text.line_count() > forms.size())
            place.report(code::lamp_line, forms.size(), "one line too many: " + in_quotes(text.line(forms.size())));
        compare_lines(is_direct);
        const bool gives_light = number("intensity;") > 0 || number("intensity_lumens;") > 0;
        if (!gives_light)
            place.report(code::lamp_no_power, line_of("intensity;"), "neither watts nor lumens are above 0");
        return {std::string(value("type;")), gives_light};
    }

private:
    void check_value(std::size_t index, std::string_view value) const {
        const auto point = six_decimal_triple(value);
        bool is_number = true;
        bool is_in_range = true;
        switch (forms[index].form) {
        case value_form::fixed:
        case value_form::text:
            break;
        case value_form::point:
            is_number = point.has_value();
            break;
        case value_form::direction:
            is_number = point.has_value();
            is_in_range = point && is_unit_or_zero(*point);
            break;
        case value_form::flag:
            is_number = whole_number(value).has_value();
            is_in_range = value == "0" || value == "1";
            break;
        case value_form::color:
            is_number = is_color(value);
            break;
        case value_form::whole:
            is_number = whole_number(value).has_value();
            break;
        case value_form::real:
            is_number = six_decimals(value).has_value();
            break;
        }
        if (!is_number)
            place.report(code::lamp_number, index, "no value in its form: " + in_quotes(text.line(index)));
        else if (!is_in_range)
            place.report(code::lamp_range, index, "the value is outside its range: " + in_quotes(text.line(index)));
    }

    void compare_lines(bool is_direct) const {
        constexpr double widest_field = 180; // degrees; given to a lamp whose beam is wider than its field
        if (number("beam_angle;") > number("field_angle;") && number("field_angle;") != widest_field)
            place.report(code::lamp_range, line_of("field_angle;"), "the beam is wider than the field");
        // The reverse does not hold: a face whose type is bulb or spot has a block, and the location of that type.
        const std::string_view type = value("type;");
        const bool has_location = type == "bulb" || type == "spot";
        if (is_direct && !has_location)
            place.report(code::lamp_place, line_of("type;"), "a direct light is a bulb or a spot");
        const auto location = six_decimal_triple(value("location;"));
        if (!has_location && location && !is_zero(*location))
            place.report(code::lamp_place, line_of("location;"), "a lamp that is no bulb and no spot has no location");
    }

    static std::size_t line_of(std::string_view key) {
        const auto form =
            std::find_if(forms.begin(), forms.end(), [key](const line_form& one) { return one.key == key; });
        return static_cast<std::size_t>(form - forms.begin());
    }
    std::string_view value(std::string_view key) const { return text.line(line_of(key)).substr(key.size()); }
    double number(std::string_view key) const { return six_decimals(value(key)).value_or(0); }

    const small_text& text;
    const finding_place& place;
};

} // namespace

std::optional<lamp_facts> check_lamp(const batch_files& files, const std::string& file, bool is_direct,
                                     findings& found) {
    const auto text = small_text::read(files, file, code::lamp_line_end, found);
    if (!text)
        return std::nullopt;
    const finding_place place{found, file};
    return lamp_check(*text, place).run(is_direct);
}

} // namespace batch_check
