// What a material's name, its attributes and its kind say about it.

#include "tessaline/materials/material_attributes.h"

#include "qlw/qlw_globals.h"
#include "sketchup/api/handles.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/link.h"
#include "tessaline/materials/material_keys.h"
#include "tessaline/state/run_state.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::Not;

material_values after_word(std::string_view name) {
    material_values values;
    apply_suffix_word(values, name);
    return values;
}

TEST(SuffixWords, ref_sets_reflection_in_per_cent_and_sharpness) {
    const material_values values = after_word("Steel_ref80");
    EXPECT_EQ(values.reflection, 80 * 0.01);
    EXPECT_EQ(values.sharpness, 1.0);
    EXPECT_EQ(after_word("Steel_ref 2.5e1 and more").reflection, 25 * 0.01);
}

TEST(SuffixWords, trluc_makes_half_clear_and_translucent) {
    const material_values values = after_word("Shade_trluc40");
    EXPECT_EQ(values.opacity, 0.5);
    EXPECT_EQ(values.translucency, 40 * 0.01);
}

TEST(SuffixWords, trans_takes_from_the_opacity) {
    EXPECT_DOUBLE_EQ(after_word("Glass_trans30").opacity, 0.7);
    EXPECT_EQ(after_word("Glass_trans30").translucency, 0);
}

TEST(SuffixWords, glow_is_in_per_cent) {
    EXPECT_EQ(after_word("Pine_dark_glow50").glow, 0.5);
}

TEST(SuffixWords, only_the_last_word_counts) {
    EXPECT_EQ(after_word("Pine_glow50_dark").glow, 0);
    const material_values values = after_word("Glass_ref80_trans30");
    EXPECT_EQ(values.reflection, 0);
    EXPECT_DOUBLE_EQ(values.opacity, 0.7);
}

TEST(SuffixWords, metallic_is_none) {
    const material_values values = after_word("Alu_metallic");
    EXPECT_FALSE(values.metallic);
    EXPECT_EQ(values.reflection, 0);
    EXPECT_FALSE(after_word("Alu_metallic50").metallic);
}

TEST(SuffixWords, a_number_that_is_not_above_0_changes_nothing) {
    for (const char* name : {"a_ref", "a_ref0", "a_ref-5", "a_reflector", "a_ref_", "a_trans", "a_trluc0", "a_glow-1",
                             "a_REF50", "ref50", "a_ refl50", "", "_"}) {
        const material_values values = after_word(name);
        EXPECT_EQ(values.reflection, 0) << name;
        EXPECT_EQ(values.sharpness, 0) << name;
        EXPECT_EQ(values.opacity, 1) << name;
        EXPECT_EQ(values.translucency, 0) << name;
        EXPECT_EQ(values.glow, 0) << name;
    }
}

TEST(MaterialKeys, each_key_sets_its_value) {
    material_values v;
    const std::pair<const char*, bool*> truths[] = {
        {"Auto Bump", &v.auto_bump},    {"Blurry", &v.blurry},
        {"Glossy", &v.glossy},          {"Imetallic", &v.metallic},
        {"Bump-Marbled", &v.marbled},   {"Bump-Rubble", &v.rubble},
        {"Bump-Wrinkled", &v.wrinkled}, {"Bump-Sandpaper", &v.sandpaper},
        {"Bump-Pyramid", &v.pyramid},   {"set_thick", &v.thick},
    };
    const std::pair<const char*, double*> reals[] = {
        {"Glow_intensity", &v.glow},
        {"Glow_intensity_lumens", &v.glow_lumens},
        {"Highlight_intensity", &v.reflection},
        {"Ior", &v.refraction},
        {"Bump-Marbled-Strength", &v.marble_strength},
        {"Bump-Marbled-Scale", &v.marble_scale},
        {"Self_Glow_intensity", &v.self_glow},
        {"Sharpness", &v.sharpness},
        {"Translucency", &v.translucency},
        {"XML_initial_opacity", &v.xml_initial_opacity},
        {"XML_scale_x", &v.xml_scale_x},
        {"XML_scale_y", &v.xml_scale_y},
        {"Bump_color_strength", &v.bump_color_strength},
        {"Bump_intensity", &v.bump_intensity},
    };
    const std::pair<const char*, std::string*> texts[] = {
        {"OrnMaterial Type", &v.material_type}, {"Base_Material", &v.base_material},
        {"XML_file_name", &v.xml_file_name},    {"Marevo_XML_File", &v.marevo_xml_file},
        {"Sorn_library", &v.sorn_library},      {"Sorn_material_name", &v.sorn_material_name},
    };
    for (const auto& [key, value] : truths) {
        EXPECT_TRUE(set_material_value(v, key, "true"));
        EXPECT_TRUE(*value) << key;
        set_material_value(v, key, "True");
        EXPECT_FALSE(*value) << key;
        set_material_value(v, key, "1");
        EXPECT_TRUE(*value) << key;
        set_material_value(v, key, "1.0");
        EXPECT_FALSE(*value) << key;
    }
    for (const auto& [key, value] : reals) {
        EXPECT_TRUE(set_material_value(v, key, "0.125 and more"));
        EXPECT_EQ(*value, 0.125) << key;
        set_material_value(v, key, "none");
        EXPECT_EQ(*value, 0) << key;
    }
    for (const auto& [key, value] : texts) {
        EXPECT_TRUE(set_material_value(v, key, " as it stands "));
        EXPECT_EQ(*value, " as it stands ") << key;
    }
}

TEST(MaterialKeys, a_light_channel_is_cut_to_a_whole_number) {
    material_values v;
    set_material_value(v, "LightChannel", "3.99");
    EXPECT_EQ(v.light_channel, 3);
    set_material_value(v, "LightChannel", "-3.99");
    EXPECT_EQ(v.light_channel, -3);
    set_material_value(v, "LightChannel", "1e300");
    EXPECT_EQ(v.light_channel, -2147483647 - 1);
}

TEST(MaterialKeys, a_type_is_a_whole_number) {
    material_values v;
    set_material_value(v, "Type", "5.9");
    EXPECT_EQ(v.type_number, 5);
    set_material_value(v, "Type", "five");
    EXPECT_EQ(v.type_number, 0);
}

TEST(MaterialKeys, some_known_keys_set_nothing_and_others_are_unknown) {
    material_values v;
    for (const char* key : {"Translucent", "OrnMaterial x2_mult", "OrnZyn Texture_0"})
        EXPECT_TRUE(set_material_value(v, key, "1")) << key;
    for (const char* key : {"", "ior", "Ior ", "ORNZyn Material Settings", "Name"})
        EXPECT_FALSE(set_material_value(v, key, "1")) << key;
}

class MaterialAttributes : public testing::Test {
protected:
    MaterialAttributes() {
        reset_process();
        reset_settings();
        register_all_globals();
        SUInitialize();
    }
    ~MaterialAttributes() override {
        if (SUIsValid(open_model))
            SUModelRelease(&open_model);
        SUTerminate();
        reset_process();
        reset_settings();
    }

    void say(const std::string& key, const std::string& value) {
        attribute_list.push_back({"Vellane_material", key, value});
    }

    // Evaluates a material of that name and colour.
    material_values evaluated(const std::string& name, sketchup::rgba color = {200, 100, 50, 255}) {
        sketchup::model_builder builder;
        builder.material(name, color);
        auto model = builder.finish();
        skp::link(*model);
        open_model = sketchup::api::adopt_model(std::move(model));
        SUMaterialRef material = SU_INVALID;
        std::size_t count = 0;
        SUModelGetMaterials(open_model, 1, &material, &count);
        material_values result = evaluate_material(start, name, material, folder.name(), "x.OrnMaterial");
        SUModelRelease(&open_model);
        return result;
    }
    material_values values_of(const std::string& name) { return evaluated(name); }

    trace_capture trace;
    answering_desktop desktop;
    temporary_folder folder;
    material_values start;
};

TEST_F(MaterialAttributes, a_plain_material_keeps_the_values_that_it_started_with) {
    const material_values v = values_of("Red");
    EXPECT_EQ(v.reflection, 0);
    EXPECT_EQ(v.sharpness, 0);
    EXPECT_EQ(v.refraction, 1.0);
    EXPECT_EQ(v.transparency, 0);
    EXPECT_EQ(v.bump_intensity, 0);
    EXPECT_EQ(v.color, 200U + 100U * 256 + 50U * 65536);
}

TEST_F(MaterialAttributes, a_name_that_says_30_per_cent_clear_becomes_clear) {
    const material_values v = values_of("Glass_trans30");
    EXPECT_DOUBLE_EQ(v.opacity, 0.7);
    EXPECT_DOUBLE_EQ(v.transparency, 0.3);
    EXPECT_EQ(v.reflection, 0.5);
    EXPECT_EQ(v.refraction, 1.5);
    EXPECT_EQ(v.sharpness, 1.0);
}

TEST_F(MaterialAttributes, a_model_s_own_opacity_makes_clear_too) {
    start.opacity = 0.25;
    const material_values v = values_of("Glass");
    EXPECT_EQ(v.transparency, 0.75);
    EXPECT_EQ(v.refraction, 1.5);
}

TEST_F(MaterialAttributes, a_clear_material_loses_reflection_and_metal) {
    start.opacity = 0.25;
    start.reflection = 0.9;
    start.metallic = true;
    const material_values v = values_of("Glass");
    EXPECT_EQ(v.reflection, 0.5);
    EXPECT_FALSE(v.metallic);
}

TEST_F(MaterialAttributes, a_material_of_no_kind_keeps_what_it_says) {
    start.metallic = start.blurry = start.glossy = true;
    start.sharpness = 0.25;
    start.refraction = 1.25;
    const material_values v = values_of("Iron");
    EXPECT_TRUE(v.metallic && v.blurry && v.glossy);
    EXPECT_EQ(v.sharpness, 0.25);
    EXPECT_EQ(v.refraction, 1.25);
}

TEST_F(MaterialAttributes, a_reflection_above_four_fifths_makes_a_mirror_without_metal) {
    start.reflection = 0.85;
    start.metallic = true;
    const material_values v = values_of("Steel");
    EXPECT_EQ(v.reflection, 0.85);
    EXPECT_FALSE(v.metallic);
    EXPECT_EQ(v.sharpness, 1.0);
}

TEST_F(MaterialAttributes, a_reflection_up_to_four_fifths_makes_metal) {
    start.reflection = 0.8;
    const material_values v = values_of("Steel");
    EXPECT_EQ(v.reflection, 0.8);
    EXPECT_TRUE(v.metallic);
    EXPECT_EQ(v.sharpness, 0.9);
}

TEST_F(MaterialAttributes, a_type_turns_the_guessing_off) {
    say("Type", "5");
    const material_values v = values_of("Steel");
    EXPECT_EQ(v.sharpness, 0);
    EXPECT_EQ(v.refraction, 1.0);
}

TEST_F(MaterialAttributes, a_type_of_0_is_none) {
    say("Type", "0");
    say("Highlight_intensity", "0.5");
    EXPECT_TRUE(values_of("Steel").metallic);
}

TEST_F(MaterialAttributes, a_highlight_makes_a_mirror_and_is_kept) {
    say("Highlight_intensity", "0.95");
    const material_values v = values_of("Steel");
    EXPECT_EQ(v.reflection, 0.95);
    EXPECT_FALSE(v.metallic);
    EXPECT_EQ(v.sharpness, 1.0);
}

TEST_F(MaterialAttributes, what_a_material_says_itself_wins_over_its_kind) {
    start.opacity = 0.5;
    say("Highlight_intensity", "0.95");
    say("Imetallic", "1");
    say("Sharpness", "0.25");
    say("Blurry", "true");
    const material_values v = values_of("Glass");
    EXPECT_EQ(v.reflection, 0.95);
    EXPECT_TRUE(v.metallic);
    EXPECT_EQ(v.sharpness, 0.25);
    EXPECT_TRUE(v.blurry);
    EXPECT_EQ(v.refraction, 1.5);
}

TEST_F(MaterialAttributes, a_lamp_shade_has_its_own_refraction_if_it_says_one) {
    say("Translucency", "0.4");
    say("Ior", "1.2");
    say("Highlight_intensity", "0.3");
    const material_values v = values_of("Shade");
    EXPECT_EQ(v.translucency, 0.4);
    EXPECT_EQ(v.refraction, 1.2);
    EXPECT_EQ(v.reflection, 0.3) << "the kind's 0 does not last";
    EXPECT_EQ(v.sharpness, 1.0);
}

TEST_F(MaterialAttributes, a_lamp_shade_by_its_name_reflects_nothing) {
    start.reflection = 0.5;
    const material_values v = values_of("Shade_trluc40");
    EXPECT_EQ(v.translucency, 0.4);
    EXPECT_EQ(v.transparency, 0.5);
    EXPECT_EQ(v.reflection, 0);
    EXPECT_EQ(v.sharpness, 1.0);
    EXPECT_EQ(v.refraction, 1.0);
}

TEST_F(MaterialAttributes, a_glowing_material_reflects_nothing_and_keeps_its_glow) {
    start.reflection = 0.5;
    start.opacity = 0.5; // glow comes first
    const material_values v = values_of("Lamp_glow25");
    EXPECT_EQ(v.glow, 0.25);
    EXPECT_EQ(v.reflection, 0);
    EXPECT_EQ(v.refraction, 1.0);
    EXPECT_EQ(v.transparency, 0.5);
}

TEST_F(MaterialAttributes, lumens_alone_make_a_glowing_material_without_glow) {
    say("Glow_intensity_lumens", "800");
    const material_values v = values_of("Lamp");
    EXPECT_EQ(v.glow, 0);
    EXPECT_EQ(v.glow_lumens, 800);
    EXPECT_EQ(v.sharpness, 1.0) << "of the kind";
}

TEST_F(MaterialAttributes, a_clear_colour_of_the_host_moves_towards_white) {
    say("OrnMaterial Type", "SketchUp");
    start.opacity = 0.05;
    // 255 - 255 x 0.1 is 229.5, cut to 229
    EXPECT_EQ(evaluated("Glass", {0, 0, 0, 255}).color, 229U + 229U * 256 + 229U * 65536);
    start.opacity = 0.5;
    // red 255 - 55 x 0.5 = 227.5; green 255 - 155 x 0.5 = 177.5; blue 255 - 205 x 0.5 = 152.5
    EXPECT_EQ(values_of("Glass").color, 227U + 177U * 256 + 152U * 65536);
}

TEST_F(MaterialAttributes, more_than_wholly_clear_is_nine_tenths_to_a_colour) {
    say("OrnMaterial Type", "SketchUp");
    const material_values v = evaluated("Glass_trans150", {0, 0, 0, 255});
    EXPECT_EQ(v.color, 229U + 229U * 256 + 229U * 65536);
    EXPECT_EQ(v.transparency, 1.5);
}

TEST_F(MaterialAttributes, a_colour_stays_without_the_type_the_setting_or_any_transparency) {
    constexpr std::uint32_t as_given = 200U + 100U * 256 + 50U * 65536;
    start.opacity = 0.5;
    EXPECT_EQ(values_of("Glass").color, as_given);
    say("OrnMaterial Type", "SketchUp");
    start.opacity = 0.9995;
    EXPECT_EQ(values_of("Glass").color, as_given);
    start.opacity = 0.5;
    set_global_bool("bvl_move_transparency_towards_white", false);
    EXPECT_EQ(values_of("Glass").color, as_given);
    set_global_bool("bvl_move_transparency_towards_white", true);
    attribute_list = {{"Vellane_material", "OrnMaterial Type", "sketchup"}};
    EXPECT_EQ(values_of("Glass").color, as_given);
}

TEST_F(MaterialAttributes, an_unknown_key_is_traced_in_each_pass) {
    say("What", "5");
    values_of("Red");
    EXPECT_THAT(
        trace.text_without_line_numbers(),
        testing::EndsWith("material_attributes(#): SketchUpReader::get_material_number():: SKEY NOT USED: What\n"
                          "material_attributes(#): SketchUpReader::get_material_number():: SKEY NOT USED: What\n"));
}

TEST_F(MaterialAttributes, with_a_type_there_is_one_pass_only) {
    say("Type", "1");
    say("What", "5");
    values_of("Red");
    const std::string traced = trace.text();
    const std::size_t first = traced.find(": SKEY NOT USED: What\n");
    ASSERT_NE(first, std::string::npos) << traced;
    EXPECT_EQ(traced.find(": SKEY NOT USED: What\n", first + 1), std::string::npos) << traced;
}

TEST_F(MaterialAttributes, other_dictionaries_have_no_effect_and_no_trace) {
    attribute_list = {{"vellane_material", "Ior", "2"},
                      {"qlw_lamp", "Highlight_intensity", "1"},
                      {"ArchVision RPC", "Name", "tree"},
                      {"ArchVision RPC", "Type", "5"},
                      {"ArchVision RPC", "Unknown", "5"}};
    const material_values v = values_of("Red");
    EXPECT_EQ(v.refraction, 1.0);
    EXPECT_EQ(v.reflection, 0);
    EXPECT_EQ(v.type_number, 0);
    EXPECT_THAT(trace.text(), Not(HasSubstr("SKEY")));
}

TEST_F(MaterialAttributes, a_glowing_material_raises_the_next_light_channel) {
    say("LightChannel", "7");
    values_of("Red");
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 2) << "without glow";
    values_of("Red_glow50");
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 8);
    attribute_list.clear();
    say("LightChannel", "3");
    values_of("Red_glow50");
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 8) << "a channel below it";
    say("LightChannel", "8");
    values_of("Red_glow50");
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 9) << "the very channel";
}

TEST_F(MaterialAttributes, the_highest_light_channel_leaves_the_next_one_alone) {
    say("LightChannel", "2147483647");
    values_of("Red_glow50");
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 2);
}

TEST_F(MaterialAttributes, lumens_raise_the_next_light_channel_too_unless_the_setting_is_off) {
    say("Glow_intensity_lumens", "800");
    say("LightChannel", "7");
    set_global_bool("bvl_auto_lighting_channels", false);
    values_of("Red");
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 2);
    set_global_bool("bvl_auto_lighting_channels", true);
    values_of("Red");
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 8);
}

TEST_F(MaterialAttributes, an_edited_file_is_restored_and_told_of_a_material_with_a_type) {
    say("ORNZyn Material Settings_chunk0", "[ORNZyn Material Settings][00000004]-4869");
    say("ORNZyn Material Settings", "41;1;x;");
    EXPECT_EQ(evaluated("Red").edited_file, "") << "the second pass forgets it";
    EXPECT_EQ(folder.read("x.OrnMaterial"), "Hi");
    say("Type", "5");
    EXPECT_EQ(evaluated("Red").edited_file, folder / "x.OrnMaterial");
    EXPECT_THAT(trace.text(), Not(HasSubstr("SKEY NOT USED")));
}

TEST_F(MaterialAttributes, chunks_without_a_whole_header_restore_nothing) {
    say("ORNZyn Material Settings_chunk0", "[ORNZyn Material Settings][00000004]-4869");
    values_of("Red");
    say("ORNZyn Material Settings", "41;1;");
    values_of("Red");
    EXPECT_FALSE(folder.has("x.OrnMaterial"));
}

TEST_F(MaterialAttributes, what_is_translucent_and_glows_is_a_lamp_shade) {
    say("Glow_intensity", "0.5");
    const material_values v = values_of("Shade_trluc40");
    EXPECT_EQ(v.translucency, 40 * 0.01); // a glow would take it away
    EXPECT_EQ(v.glow, 0.5);
    EXPECT_EQ(v.reflection, 0);
    EXPECT_EQ(v.sharpness, 1);
    EXPECT_FALSE(v.metallic);
}

} // namespace
