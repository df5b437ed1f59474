#pragma once

// What a kind of material implies for its values.

#include <cstdint>
#include <string>

// The values of one material, in the terms of the kinds. Reflection, translucency and transparency run from 0 to 1;
// colours are 0x00BBGGRR.
class cl_wizard_materials {
public:
    // The numbers of the types; models may name others.
    enum kinds : std::int32_t {
        no_kind = 0,
        matte = 1,
        reflective = 2,
        glass = 3,
        lamp_shade = 4,
        metal = 5,
        plastic = 6,
        mirror = 7,
        water = 8,
        clear = 10,
        glowing = 11,
        no_kind_found = 98,
    };

    // Sets what the type implies, and the type itself. A number that is none of the kinds is traced; nothing but `type`
    // follows it.
    // keep: true leaves as it was what the type says for want of a better value; false resets all values first, the
    // colours apart, which types 0 and 98 then make white.
    void set_wizard_material_defaults(std::int32_t type, bool keep);

    std::int32_t type = 0;
    double reflection = 0;
    double sharpness = 1.0;
    bool metallic = false;
    bool blurry = false;
    bool glossy = false;
    double refraction = 1.0;
    double translucency = 0;
    double transparency = 0;
    bool thick = false;
    double glow = 0;
    std::uint32_t color = 0xffffff;
    std::uint32_t second_color = 0xffffff;
    std::string type_suffix; // the type in words, as " - Matte"; empty for none

private:
    void reset();
};

// The transparency that a renderer is given where a small one would hardly be seen: 0 to 0.2 becomes 0 to 0.5, 0.2 to 1
// becomes 0.5 to 1. As it is for a translucent material, and if the setting "bvl_adjust_transparency" is off.
double adjust_transparency(double transparency, double translucency);
