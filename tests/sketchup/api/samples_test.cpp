// Real models through the C interface: what opening tells, the numbers of textures, the properties of materials.

#include "tests/sketchup/api/test_model.h"

#include "tests/samples_folder.h"

#include <array>
#include <gtest/gtest.h>
#include <map>

namespace {

// A sample behind a handle; closed at the end of its scope.
struct sample {
    explicit sample(const std::string& name) {
        result = SUModelCreateFromFile(&ref, (samples_folder() + "testup-" + name).c_str());
    }
    sample(const sample&) = delete;
    sample& operator=(const sample&) = delete;
    ~sample() {
        if (SUIsValid(ref))
            SUModelRelease(&ref);
    }
    SUModelRef ref = SU_INVALID;
    SUResult result = SU_ERROR_NONE;
};

class Samples : public testing::Test {
    void SetUp() override {
        if (samples_folder().empty())
            GTEST_SKIP() << "no samples";
    }
};

using SampleTextures = Samples;
using SampleMaterials = Samples;
using OpeningSamples = Samples;

// The only face of the definition of that name.
SUFaceRef face_of_definition(SUModelRef model, const std::string& name) {
    for (const auto definition : all_of(SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions, model)) {
        SUEntitiesRef list = SU_INVALID;
        SUComponentDefinitionGetEntities(definition, &list);
        const auto faces = all_of(SUEntitiesGetNumFaces, SUEntitiesGetFaces, list);
        if (text_from(SUComponentDefinitionGetName, definition) == name && faces.size() == 1)
            return faces[0];
    }
    ADD_FAILURE() << "no definition " << name << " with one face";
    return SU_INVALID;
}

using version = std::array<int, 3>;

struct opening {
    const char* name;
    SUResult result;
    version saved_by;
};

constexpr opening classic_openings[] = {
    {"skp-v6.skp", SU_ERROR_NONE, {6, 0, 1}},
    {"2020.skp", SU_ERROR_NONE, {20, 2, 160}},
    {"LiveComponent.skp", SU_ERROR_NONE, {21, 0, 0}}, // a classic body in spite of its version
    {"SU99.skp", SU_ERROR_MODEL_VERSION, {}},
    {"invalid.skp", SU_ERROR_MODEL_INVALID, {}},
    {"not_a_sketchup_file.skp", SU_ERROR_MODEL_INVALID, {}},
    {"nowhere.skp", SU_ERROR_SERIALIZATION, {}},
};

constexpr opening modern_openings[] = {
    {"2021.skp", SU_ERROR_NONE, {21, 0, 394}},
    {"skp-vff-hard-block.skp", SU_ERROR_MODEL_VERSION, {}},
};

void expect_opening(const opening& expected) {
    const sample opened(expected.name);
    EXPECT_EQ(opened.result, expected.result) << expected.name;
    EXPECT_EQ(SUIsValid(opened.ref), expected.result == SU_ERROR_NONE) << expected.name;
    version found{};
    if (SUIsValid(opened.ref))
        SUModelGetVersion(opened.ref, &found[0], &found[1], &found[2]);
    EXPECT_EQ(found, expected.saved_by) << expected.name;
}

} // namespace

TEST_F(OpeningSamples, tells_the_version_or_what_is_wrong_with_a_classic_file) {
    for (const opening& expected : classic_openings)
        expect_opening(expected);
}

TEST_F(OpeningSamples, tells_the_version_or_what_is_wrong_with_a_modern_file) {
    for (const opening& expected : modern_openings)
        expect_opening(expected);
}

TEST_F(SampleTextures, share_one_number_for_all_affine_faces_of_a_material) {
    const sample opened("ui-textured.skp");
    ASSERT_EQ(opened.result, SU_ERROR_NONE);
    SUTextureWriterRef writer = SU_INVALID;
    SUTextureWriterCreate(&writer);
    const auto load_all = [&] {
        for (const char* name : {"MaterialNotPositioned", "MaterialPositioned", "MaterialProjectedParallel",
                                 "MaterialProjectedPerpendicular", "MaterialProjectedAtAngle"}) {
            const SUFaceRef face = face_of_definition(opened.ref, name);
            bool affine = false;
            EXPECT_EQ(SUFaceIsFrontMaterialAffine(face, &affine), SU_ERROR_NONE) << name;
            EXPECT_TRUE(affine) << name;
            long front = 0, back = 0;
            EXPECT_EQ(SUTextureWriterLoadFace(writer, face, &front, &back), SU_ERROR_NONE) << name;
            EXPECT_EQ(front, 1) << name;
        }
        size_t count = 0;
        SUTextureWriterGetNumTextures(writer, &count);
        EXPECT_EQ(count, 1u);
    };
    load_all();
    load_all();
    SUTextureWriterRelease(&writer);
}

TEST_F(SampleMaterials, have_the_names_types_colours_and_opacities_of_the_host) {
    const sample opened("MaterialTests.skp");
    ASSERT_EQ(opened.result, SU_ERROR_NONE);
    const auto materials = all_of(SUModelGetNumMaterials, SUModelGetMaterials, opened.ref);
    std::map<std::string, SUMaterialType> types;
    for (const SUMaterialRef material : materials) {
        SUMaterialType type{};
        SUMaterialGetType(material, &type);
        types[text_from(SUMaterialGetName, material)] = type;
    }
    EXPECT_EQ(types, (std::map<std::string, SUMaterialType>{{"Textured", SUMaterialType_Textured},
                                                            {"TexturedShifted", SUMaterialType_ColorizedTexture},
                                                            {"TexturedTinted", SUMaterialType_ColorizedTexture},
                                                            {"Solid", SUMaterialType_Colored}}));
    ASSERT_EQ(text_from(SUMaterialGetName, materials[0]), "Textured");
    EXPECT_EQ(text_from(SUMaterialGetName, materials[1]), "TexturedShifted");
    SUColor color{};
    EXPECT_EQ(SUMaterialGetColor(materials[0], &color), SU_ERROR_NONE);
    EXPECT_EQ(std::vector<int>({color.red, color.green, color.blue, color.alpha}),
              std::vector<int>({144, 143, 146, 0}));
    double alpha = 0;
    bool used = true;
    EXPECT_EQ(SUMaterialGetOpacity(materials[0], &alpha), SU_ERROR_NONE);
    EXPECT_EQ(SUMaterialGetUseOpacity(materials[0], &used), SU_ERROR_NONE);
    EXPECT_EQ(alpha, 1);
    EXPECT_FALSE(used);
}
