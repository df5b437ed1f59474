// What each kind of material implies.

#include "Vellane_Zyn/wizard_materials.h"

#include "qlw/qlw_globals.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr bool keep = true;

// A record in which every value differs from what any type sets.
cl_wizard_materials odd_values() {
    cl_wizard_materials odd;
    odd.reflection = 0.11;
    odd.sharpness = 0.12;
    odd.metallic = odd.blurry = odd.glossy = odd.thick = true;
    odd.refraction = 1.13;
    odd.translucency = 0.14;
    odd.transparency = 0.15;
    odd.glow = 0.16;
    odd.color = 0x102030;
    odd.second_color = 0x405060;
    odd.type_suffix = " - Odd";
    return odd;
}

struct expected_values {
    std::int32_t type;
    std::string suffix;
    double reflection, sharpness;
    bool metallic;
    double refraction, translucency, transparency;
    bool thick;
    double glow;
};

void expect_values(const cl_wizard_materials& found, const expected_values& wanted) {
    EXPECT_EQ(found.type, wanted.type);
    EXPECT_EQ(found.type_suffix, wanted.suffix);
    EXPECT_EQ(found.reflection, wanted.reflection) << wanted.type;
    EXPECT_EQ(found.sharpness, wanted.sharpness) << wanted.type;
    EXPECT_EQ(found.metallic, wanted.metallic) << wanted.type;
    EXPECT_EQ(found.refraction, wanted.refraction) << wanted.type;
    EXPECT_EQ(found.translucency, wanted.translucency) << wanted.type;
    EXPECT_EQ(found.transparency, wanted.transparency) << wanted.type;
    EXPECT_EQ(found.thick, wanted.thick) << wanted.type;
    EXPECT_EQ(found.glow, wanted.glow) << wanted.type;
}

TEST(WizardMaterials, a_type_that_keeps_leaves_the_values_that_the_caller_put_in) {
    const expected_values all[] = {
        {0, "", 0.11, 1.0, false, 1.13, 0, 0.15, true, 0.16},
        {98, "", 0.11, 1.0, false, 1.13, 0, 0.15, true, 0.16},
        {1, " - Matte", 0.11, 1.0, false, 1.13, 0, 0, true, 0.16},
        {2, " - Reflective", 0.11, 0.9, true, 1.13, 0, 0, true, 0.16},
        {3, " - Glass", 0.5, 1.0, false, 1.5, 0, 1.0, true, 0.16},
        {4, " - Lamp Shade", 0, 1.0, false, 1.13, 0.14, 0.5, true, 0.16},
        {5, " - Metal", 0.11, 1.0, true, 1.13, 0, 0, true, 0.16},
        {6, " - Plastic", 0.11, 0.2, false, 1.13, 0, 0, true, 0.16},
        {7, " - Mirror", 0.11, 1.0, false, 1.13, 0, 0, true, 0.16},
        {8, " - Water", 0.11, 0.8, false, 1.13, 0.6, 0.5, true, 0.16},
        {10, " - Clear", 0.5, 1.0, false, 1.5, 0, 0.15, false, 0.16},
        {11, " - Glow", 0, 1.0, false, 1.13, 0, 0, true, 0.16},
    };
    for (const expected_values& wanted : all) {
        cl_wizard_materials wizard = odd_values();
        wizard.set_wizard_material_defaults(wanted.type, keep);
        expect_values(wizard, wanted);
        EXPECT_FALSE(wizard.blurry || wizard.glossy) << wanted.type;
        EXPECT_EQ(wizard.color, 0x102030U);
        EXPECT_EQ(wizard.second_color, 0x405060U);
    }
}

TEST(WizardMaterials, a_type_that_keeps_nothing_starts_from_reset_values) {
    const expected_values all[] = {
        {0, "", 0, 1.0, false, 1.0, 0, 0, false, 0},
        {98, "", 0, 1.0, false, 1.0, 0, 0, false, 0},
        {1, " - Matte", 0, 1.0, false, 1.0, 0, 0, false, 0},
        {2, " - Reflective", 0.6, 0.9, true, 1.0, 0, 0, false, 0},
        {3, " - Glass", 0.5, 1.0, false, 1.5, 0, 1.0, true, 0},
        {4, " - Lamp Shade", 0, 1.0, false, 1.0, 1.0, 0.5, false, 0},
        {5, " - Metal", 0.9, 1.0, true, 1.0, 0, 0, false, 0},
        {6, " - Plastic", 0.25, 0.2, false, 1.0, 0, 0, false, 0},
        {7, " - Mirror", 1.0, 1.0, false, 1.0, 0, 0, false, 0},
        {8, " - Water", 0.3, 0.8, false, 1.0, 0.6, 0.5, false, 0},
        {10, " - Clear", 0.5, 1.0, false, 1.5, 0, 1.0, false, 0},
        {11, " - Glow", 0, 1.0, false, 1.0, 0, 0, false, 0.5},
    };
    for (const expected_values& wanted : all) {
        cl_wizard_materials wizard = odd_values();
        wizard.set_wizard_material_defaults(wanted.type, !keep);
        expect_values(wizard, wanted);
        const bool turns_white = wanted.type == 0 || wanted.type == 98;
        EXPECT_EQ(wizard.color, turns_white ? 0xffffffU : 0x102030U);
        EXPECT_EQ(wizard.second_color, turns_white ? 0xffffffU : 0x405060U);
    }
}

TEST(WizardMaterials, a_reflective_material_keeps_its_reflection_and_becomes_metallic) {
    cl_wizard_materials wizard;
    wizard.reflection = 0.4;
    wizard.set_wizard_material_defaults(2, keep);
    EXPECT_EQ(wizard.reflection, 0.4);
    EXPECT_EQ(wizard.sharpness, 0.9);
    EXPECT_TRUE(wizard.metallic);
}

TEST(WizardMaterials, a_clear_material_that_keeps_nothing_is_wholly_clear) {
    cl_wizard_materials wizard = odd_values();
    wizard.set_wizard_material_defaults(10, !keep);
    EXPECT_EQ(wizard.reflection, 0.5);
    EXPECT_EQ(wizard.refraction, 1.5);
    EXPECT_EQ(wizard.transparency, 1.0);
}

TEST(WizardMaterials, glass_has_its_own_values_whether_or_not_others_are_kept) {
    for (const bool kept : {true, false}) {
        cl_wizard_materials wizard = odd_values();
        wizard.set_wizard_material_defaults(3, kept);
        EXPECT_EQ(wizard.reflection, 0.5);
        EXPECT_EQ(wizard.transparency, 1.0);
        EXPECT_TRUE(wizard.thick);
    }
}

TEST(WizardMaterials, a_number_that_is_no_type_is_traced_and_changes_nothing_but_the_type) {
    for (const std::int32_t number : {9, 12, 97, 99, -1}) {
        const trace_capture trace;
        cl_wizard_materials wizard = odd_values();
        wizard.set_wizard_material_defaults(number, keep);
        expect_values(wizard, {number, " - Odd", 0.11, 0.12, true, 1.13, 0.14, 0.15, true, 0.16});
        EXPECT_TRUE(wizard.blurry && wizard.glossy);
        EXPECT_EQ(
            trace.text_without_line_numbers(),
            "wizard_materials(#): cl_wizard_materials::set_wizard_material_defaults():: Material Type not known: " +
                std::to_string(number) + "\n");
    }
}

TEST(WizardMaterials, a_number_that_is_no_type_still_resets_what_is_not_kept) {
    cl_wizard_materials wizard = odd_values();
    wizard.set_wizard_material_defaults(9, !keep);
    expect_values(wizard, {9, "", 0, 1.0, false, 1.0, 0, 0, false, 0});
    EXPECT_EQ(wizard.color, 0x102030U);
}

class AdjustTransparency : public testing::Test {
protected:
    AdjustTransparency() {
        reset_settings();
        set_global_bool("bvl_adjust_transparency", true);
    }
    ~AdjustTransparency() override { reset_settings(); }
};

TEST_F(AdjustTransparency, the_first_fifth_rises_to_a_half_and_the_rest_to_one) {
    EXPECT_EQ(adjust_transparency(0, 0), 0);
    EXPECT_EQ(adjust_transparency(0.1, 0), 0.25);
    EXPECT_EQ(adjust_transparency(0.2, 0), 0.5);
    EXPECT_DOUBLE_EQ(adjust_transparency(0.6, 0), 0.75);
    EXPECT_DOUBLE_EQ(adjust_transparency(1.0, 0), 1.0);
}

TEST_F(AdjustTransparency, a_translucent_material_keeps_its_transparency) {
    EXPECT_EQ(adjust_transparency(0.1, 0.01), 0.1);
}

TEST_F(AdjustTransparency, with_the_setting_off_it_stays_as_it_is) {
    set_global_bool("bvl_adjust_transparency", false);
    EXPECT_EQ(adjust_transparency(0.1, 0), 0.1);
}

} // namespace
