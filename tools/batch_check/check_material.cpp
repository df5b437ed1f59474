#include "tools/batch_check/check_material.h"

#include "tools/batch_check/number_forms.h"
#include "tools/batch_check/small_text.h"
#include "tools/content_hash/content_hash.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <map>

namespace batch_check {
namespace {

enum class value_form {
    fixed,  // nothing stands behind the key: the line is the key
    text,   // whatever stands there
    flag,   // a whole number, 0 or 1
    color,  // a whole number, 0 to 16777215
    share,  // a number from 0 to 1
    number, // at least 0
};

struct line_form {
    std::string_view key; // with the blank behind the colon
    value_form form = value_form::fixed;
};

// All lines, in their order.
constexpr std::array<line_form, 38> forms = {{
    {"Matl: ", value_form::text},
    {"Disp: ", value_form::text},
    {"Orig: ", value_form::text},
    {"#"},
    {"OrnMaterial Type: ", value_form::text},
    {"Base_Material: ", value_form::text},
    {"Use_Entity_Color: 0"},
    {"Color: ", value_form::color},
    {"#;Color: RGB", value_form::text},
    {"IconColor: 16777215"},
    {"Trans: ", value_form::share},
    {"Translucency: ", value_form::share},
    {"Refl: ", value_form::share},
    {"Refr: ", value_form::number},
    {"IrayInitialOpacity: ", value_form::share},
    {"#"},
    {"# Glow is a pct = 1.0 = 100 watts"},
    {"Glow: ", value_form::number},
    {"Glow_Lumens: ", value_form::number},
    {"SelfGlow: ", value_form::number},
    {"#"},
    {"Blurry: ", value_form::flag},
    {"Glossy: ", value_form::flag},
    {"#;For Select Material dialog and 3D PDF"},
    {"Filter: "},
    {"Category: "},
    {"Image_Path: ", value_form::text},
    {"ImageWidth: 0"},
    {"TileX: ", value_form::number},
    {"TileY: ", value_form::number},
    {"AutoBump: ", value_form::flag},
    {"ColorStrength: ", value_form::number},
    {"BumpStrength: ", value_form::number},
    {"Marbled: ", value_form::flag},
    {"MarbleScale: 0"},
    {"MarbleStrength: 0"},
    {"TopiaryOrientation: 0"},
    {"#"},
}};

constexpr std::size_t lines_of_names = 3;

class material_check {
public:
    material_check(const small_text& lines, const finding_place& where) : text(lines), place(where) {}

    material_facts run(const std::string& declared_name) {
        content_hash content;
        for (std::size_t i = 0; i < text.line_count(); ++i) {
            if (i >= lines_of_names) {
                content.add(text.line(i));
                content.add("\n");
            }
            if (next_form == forms.size()) {
                place.report(code::material_line, i, "one line too many: " + in_quotes(text.line(i)));
                break;
            }
            take_line(i);
        }
        if (next_form < forms.size() && !is_out_of_order)
            place.report(code::material_line, text.line_count(), in_quotes(forms[next_form].key) + " must stand here");
        compare_lines(declared_name);
        material_facts facts;
        facts.content = content.digest();
        facts.image_path = value("Image_Path: ");
        facts.image_line = line_of["Image_Path: "] + 1;
        return facts;
    }

private:
    // The first line that is not the expected one is a finding; behind it each line is taken by its own key.
    void take_line(std::size_t index) {
        const std::string_view line = text.line(index);
        if (!is_of(line, forms[next_form])) {
            if (!is_out_of_order)
                place.report(code::material_line, index,
                             in_quotes(forms[next_form].key) + " must stand here: " + in_quotes(line));
            is_out_of_order = true;
            std::size_t own = next_form;
            while (own < forms.size() && !is_of(line, forms[own]))
                ++own;
            if (own == forms.size())
                return;
            next_form = own;
        }
        const line_form& form = forms[next_form++];
        line_of[form.key] = index;
        values[form.key] = line.substr(form.key.size());
        check_value(index, form, line.substr(form.key.size()));
    }

    static bool is_of(std::string_view line, const line_form& form) {
        return form.form == value_form::fixed ? line == form.key : line.starts_with(form.key);
    }

    void check_value(std::size_t index, const line_form& form, std::string_view value) {
        if (form.form == value_form::fixed || form.form == value_form::text)
            return;
        const bool is_whole = form.form == value_form::flag || form.form == value_form::color;
        const auto whole = is_whole ? whole_number(value) : std::nullopt;
        const auto number = whole ? std::optional<double>(*whole) : is_whole ? std::nullopt : shortest_number(value);
        if (number && is_in_range(*number, form.form))
            return;
        const bool is_number = number || (!is_whole && is_not_finite(value));
        place.report(is_number ? code::material_range : code::material_number, index,
                     is_number ? "the value is outside its range: " + in_quotes(text.line(index))
                               : "no number in its form: " + in_quotes(text.line(index)));
    }

    static bool is_in_range(double value, value_form form) {
        const double most = form == value_form::color ? 0xffffff : form == value_form::number ? HUGE_VAL : 1;
        return value >= 0 && value <= most;
    }

    void compare_lines(const std::string& declared_name) {
        if (const std::string name = value("Matl: "); !name.empty() && name != declared_name)
            place.report(code::material_name, 0, "the stream calls it " + in_quotes(declared_name));
        if (value("Disp: ") != value("Orig: "))
            place.report(code::material_disagrees, line_of["Orig: "], "\"Disp\" and \"Orig\" are one name");
        compare_colors();
        compare_glow();
    }

    void compare_colors() {
        const auto color = whole_number(value("Color: "));
        if (!color || !line_of.contains("#;Color: RGB"))
            return;
        const unsigned bits = static_cast<unsigned>(*color);
        std::array<char, 32> spelt{};
        std::snprintf(spelt.data(), spelt.size(), "(%u,%u,%u)", bits & 0xffU, (bits >> 8U) & 0xffU,
                      (bits >> 16U) & 0xffU);
        if (value("#;Color: RGB") != spelt.data())
            place.report(code::material_disagrees, line_of["#;Color: RGB"],
                         "the colour is " + std::string(spelt.data()));
    }

    // Glow is spelt with nine digits, 1700 times it from all of them.
    void compare_glow() {
        constexpr double lumens_at_full_glow = 1700;
        const auto glow = shortest_number(value("Glow: "));
        const auto lumens = shortest_number(value("Glow_Lumens: "));
        if (glow && lumens && std::abs(*lumens - *glow * lumens_at_full_glow) > 2e-8 * std::abs(*lumens))
            place.report(code::material_disagrees, line_of["Glow_Lumens: "], "lumens are 1700 times the glow");
    }

    std::string value(std::string_view key) const {
        const auto at = values.find(key);
        return at == values.end() ? std::string() : at->second;
    }

    const small_text& text;
    const finding_place& place;
    std::size_t next_form = 0;
    bool is_out_of_order = false;
    std::map<std::string_view, std::string> values;
    std::map<std::string_view, std::size_t> line_of; // from 0
};

} // namespace

std::optional<material_facts> check_material(const batch_files& files, const std::string& file,
                                             const std::string& declared_name, findings& found) {
    const auto text = small_text::read(files, file, code::material_line_end, found);
    if (!text)
        return std::nullopt;
    const finding_place place{found, file};
    return material_check(*text, place).run(declared_name);
}

} // namespace batch_check
