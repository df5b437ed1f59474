// What the host's own tests assert of their model files, beyond texture tiles, pictures and colours.

#include "sketchup/model/vector_math.h"
#include "tests/sketchup/api/sample_model.h"
#include "tests/sketchup/api/test_model.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

using version = std::array<int, 3>;

struct stored_version {
    const char* name;
    version saved_by;
    bool is_modern;
};

constexpr stored_version stored_versions[] = {
    {"skp-v6", {6, 0, 1}, false},
    {"skp-vff-soft-block", {22, 0, 0}, true},
    {"face", {6, 0, 1}, false},
    {"other_face", {17, 0, 1}, false},
    {"SU17", {17, 0, 1}, false},
    {"screentext", {6, 0, 1}, false},
    {"circle", {21, 0, 339}, true},
    {"2020", {20, 2, 160}, false},
    {"2021", {21, 0, 394}, true},
    {"uv_tile_at", {21, 1, 0}, true},
    {"uv_tile_at_variations", {21, 1, 0}, true},
    {"ui-textured", {16, 0, 1}, false},
    {"missing_material", {21, 0, 339}, true},
    {"glued_groups", {14, 0, 1}, false},
    {"glued_instances", {14, 0, 1}, false},
    {"MaterialTests", {15, 0, 0}, false},
    {"ExtrudedCircle", {13, 0, 1}, false},
    {"test", {14, 0, 1}, false},
    {"MultipleClassifications", {15, 0, 0}, false},
    {"LiveComponent", {21, 0, 0}, false}, // a classic body in spite of its version
};

std::string file_of(const std::string& name) {
    return "testup-" + name + ".skp";
}

// The names that every model answers to, and those that came with a version.
constexpr const char* options_of_all_versions[] = {
    "BackgroundColor",
    "BandColor",
    "ConstructionColor",
    "DepthQueWidth",
    "DisplayColorByLayer",
    "DisplayFog",
    "DisplayInstanceAxes",
    "DisplayWatermarks",
    "DrawDepthQue",
    "DrawGround",
    "DrawHidden",
    "DrawHorizon",
    "DrawLineEnds",
    "DrawProfilesOnly",
    "DrawSilhouettes",
    "DrawUnderground",
    "EdgeColorMode",
    "EdgeDisplayMode",
    "EdgeType",
    "ExtendLines",
    "FaceBackColor",
    "FaceFrontColor",
    "FogColor",
    "FogEndDist",
    "FogStartDist",
    "FogUseBkColor",
    "ForegroundColor",
    "GroundColor",
    "GroundTransparency",
    "HideConstructionGeometry",
    "HighlightColor",
    "HorizonColor",
    "InactiveHidden",
    "InstanceHidden",
    "JitterEdges",
    "LineEndWidth",
    "LineExtension",
    "LockedColor",
    "MaterialTransparency",
    "ModelTransparency",
    "RenderMode",
    "SectionActiveColor",
    "SectionCutWidth",
    "SectionDefaultCutColor",
    "SectionInactiveColor",
    "ShowViewName",
    "SilhouetteWidth",
    "SkyColor",
    "Texture",
    "TransparencySort",
    "DisplayDims",
    "DisplaySketchAxes", // from 7
    "DisplayText",
    "InactiveFade", // from 7, 8
    "InstanceFade",
    "DisplaySectionPlanes",
    "DisplaySectionCuts",
    "SectionCutDrawEdges",
    "DrawBackEdges",
    "SectionCutFilled",
    "SectionDefaultFillColor",
    "DrawHiddenGeometry",
    "DrawHiddenObjects",
};

class HostFacts : public testing::Test {
    void SetUp() override {
        if (samples_folder().empty())
            GTEST_SKIP() << "no samples";
    }
};

const sketchup::model& model_of(const sample_model& opened) {
    return *sketchup::api::object_of(opened.ref);
}

SUEntitiesRef root_of(const sample_model& opened) {
    SUEntitiesRef root = SU_INVALID;
    SUModelGetEntities(opened.ref, &root);
    return root;
}

const sketchup::face* face_of_definition(const sketchup::model& m, const std::string& name) {
    for (const sketchup::component_definition& d : m.definitions)
        if (d.name == name && d.entities.faces.size() == 1)
            return &m.faces[d.entities.faces[0]];
    return nullptr;
}

const std::set<std::string> glued_names = {"Not glued", "Glued to face", "Glued to component", "Glued to group",
                                           "Glued to image"};

} // namespace

TEST_F(HostFacts, every_file_bears_the_version_and_the_container_that_are_stored_in_it) {
    for (const stored_version& expected : stored_versions) {
        const sample_model opened(file_of(expected.name));
        ASSERT_EQ(opened.result, SU_ERROR_NONE) << expected.name;
        version found{};
        SUModelGetVersion(opened.ref, &found[0], &found[1], &found[2]);
        EXPECT_EQ(found, expected.saved_by) << expected.name;
        EXPECT_EQ(model_of(opened).is_modern, expected.is_modern) << expected.name;
    }
}

TEST_F(HostFacts, a_classic_model_has_the_guid_that_the_program_shows) {
    const sample_model opened(file_of("2020"));
    // 17ef5b03-623d-43e4-a630-b12e07b7751b, its first three groups little-endian
    const sketchup::guid wanted = {0x03, 0x5b, 0xef, 0x17, 0x3d, 0x62, 0xe4, 0x43,
                                   0xa6, 0x30, 0xb1, 0x2e, 0x07, 0xb7, 0x75, 0x1b};
    EXPECT_EQ(model_of(opened).guid, wanted);
}

TEST_F(HostFacts, a_screen_text_is_nothing_that_can_be_placed) {
    const sample_model opened(file_of("screentext"));
    const sketchup::entity_list& root = model_of(opened).root;
    EXPECT_EQ(root.faces.size() + root.edges.size() + root.groups.size() + root.instances.size(), 0u);
    EXPECT_EQ(root.annotations.size(), 1u);
}

TEST_F(HostFacts, textures_are_positioned_and_projected_where_the_program_says_so) {
    const sample_model opened(file_of("ui-textured"));
    struct flags {
        const char* definition;
        bool positioned;
        bool projected;
    };
    for (const flags& expected :
         {flags{"MaterialNotPositioned", false, false}, flags{"MaterialPositioned", true, false},
          flags{"MaterialProjectedParallel", true, true}, flags{"MaterialProjectedPerpendicular", true, true},
          flags{"MaterialProjectedAtAngle", true, true}}) {
        const sketchup::face* face = face_of_definition(model_of(opened), expected.definition);
        ASSERT_TRUE(face) << expected.definition;
        sketchup::side_mapping front;
        if (face->texture_mapping != sketchup::no_index)
            front = model_of(opened).texture_mappings[face->texture_mapping].front;
        EXPECT_EQ(front.positioned, expected.positioned) << expected.definition;
        EXPECT_EQ(front.projected, expected.projected) << expected.definition;
        if (front.projected) {
            EXPECT_NEAR(sketchup::length(front.direction), 1, 1e-9) << expected.definition;
        }
    }
}

TEST_F(HostFacts, materials_shift_or_tint_as_the_program_says) {
    const sample_model opened(file_of("MaterialTests"));
    for (const sketchup::material& m : model_of(opened).materials)
        if (!m.is_private) {
            EXPECT_EQ(m.colorize_type, m.name == "TexturedTinted" ? 1u : 0u) << m.name;
        }
}

TEST_F(HostFacts, groups_that_are_glued_stand_at_the_top_by_their_names) {
    const sample_model opened(file_of("glued_groups"));
    std::set<std::string> names;
    for (const SUGroupRef group : all_of(SUEntitiesGetNumGroups, SUEntitiesGetGroups, root_of(opened)))
        if (const std::string name = text_from(SUGroupGetName, group); !name.empty())
            names.insert(name);
    EXPECT_EQ(names, glued_names);
}

TEST_F(HostFacts, instances_that_are_glued_stand_at_the_top_by_their_names) {
    const sample_model opened(file_of("glued_instances"));
    std::set<std::string> names;
    for (const auto instance : all_of(SUEntitiesGetNumInstances, SUEntitiesGetInstances, root_of(opened)))
        if (const std::string name = text_from(SUComponentInstanceGetName, instance); !name.empty())
            names.insert(name);
    EXPECT_EQ(names, glued_names);
}

TEST_F(HostFacts, an_image_lies_in_pixels_from_its_lower_left_corner) {
    for (const char* name : {"glued_groups", "glued_instances"}) {
        const sample_model opened(file_of(name));
        const auto images = all_of(SUEntitiesGetNumImages, SUEntitiesGetImages, root_of(opened));
        ASSERT_EQ(images.size(), 1u) << name;
        size_t width = 0, height = 0;
        SUComponentDefinitionRef definition = SU_INVALID;
        SUBoundingBox3D box{};
        EXPECT_EQ(SUImageGetPixelDimensions(images[0], &width, &height), SU_ERROR_NONE);
        EXPECT_EQ(SUImageGetDefinition(images[0], &definition), SU_ERROR_NONE);
        SUDrawingElementGetBoundingBox(SUComponentDefinitionToDrawingElement(definition), &box);
        EXPECT_EQ(box.min_point.x, 0);
        EXPECT_EQ(box.min_point.y, 0);
        EXPECT_EQ(box.max_point.x, static_cast<double>(width));
        EXPECT_EQ(box.max_point.y, static_cast<double>(height));
    }
}

TEST_F(HostFacts, the_first_layer_is_layer0_and_is_shown_as_untagged) {
    for (const stored_version& file : stored_versions) {
        const sample_model opened(file_of(file.name));
        const auto layers = all_of(SUModelGetNumLayers, SUModelGetLayers, opened.ref);
        ASSERT_FALSE(layers.empty()) << file.name;
        EXPECT_EQ(text_from(SULayerGetName, layers[0]), "Layer0") << file.name;
        EXPECT_EQ(text_from(SULayerGetDisplayName, layers[0]), "Untagged") << file.name;
    }
}

TEST_F(HostFacts, every_model_answers_all_options_of_the_program) {
    for (const stored_version& file : stored_versions) {
        const sample_model opened(file_of(file.name));
        SURenderingOptionsRef options = SU_INVALID;
        SUModelGetRenderingOptions(opened.ref, &options);
        for (const char* key : options_of_all_versions) {
            test_value value;
            EXPECT_EQ(SURenderingOptionsGetValue(options, key, &value.ref), SU_ERROR_NONE) << file.name << " " << key;
        }
    }
}

TEST_F(HostFacts, a_live_component_carries_its_parameters) {
    const sample_model opened(file_of("LiveComponent"));
    SUAttributeDictionaryRef live = SU_INVALID;
    for (const auto d : all_of(SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries, opened.ref))
        if (text_from(SUAttributeDictionaryGetName, d) == "SU_LiveComponent")
            live = d;
    test_value value;
    EXPECT_EQ(SUAttributeDictionaryGetValue(live, "Parameters", &value.ref), SU_ERROR_NONE);
    EXPECT_EQ(value.type(), SUTypedValueType_String);
}

TEST_F(HostFacts, the_first_curve_of_the_extruded_circle_is_a_whole_circle) {
    const sample_model opened(file_of("ExtrudedCircle"));
    const sketchup::model& m = model_of(opened);
    const auto edge = std::ranges::find_if(
        m.root.edges, [&m](sketchup::index at) { return m.edges[at].curve != sketchup::no_index; });
    ASSERT_NE(edge, m.root.edges.end());
    const sketchup::index curve = m.edges[*edge].curve;
    EXPECT_TRUE(m.curves[curve].is_arc);
    // The program shows 360 degrees where the file stores no sweep at all; the edges close.
    EXPECT_EQ(m.curves[curve].start_angle, m.curves[curve].end_angle);
    std::map<sketchup::index, int> ends;
    for (const sketchup::edge& e : m.edges)
        if (e.curve == curve) {
            ++ends[e.start];
            ++ends[e.end];
        }
    EXPECT_EQ(ends.size(), 24u);
    for (const auto& [vertex, count] : ends)
        EXPECT_EQ(count, 2) << vertex;
}
