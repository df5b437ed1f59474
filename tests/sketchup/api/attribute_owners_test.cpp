// Attributes of everything that can have some, through a file of either container and the C interface.

#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/sketchup/api/test_model.h"

#include <functional>
#include <gtest/gtest.h>

using namespace sketchup;

namespace {

using writing = std::function<std::vector<std::uint8_t>(const model&)>;

std::vector<std::uint8_t> as_classic(const model& m) {
    return skp::write_classic(m, skp::classic_version::v17);
}

std::vector<std::uint8_t> as_modern(const model& m) {
    return skp::write_modern(m, skp::modern_version::v25);
}

// The model as a file gives it back, behind a handle.
class written_model {
public:
    written_model(model_builder& builder, const writing& write) {
        auto read = skp::read_model(write(*builder.finish()));
        inside = read.get();
        ref = api::adopt_model(std::move(read));
    }
    written_model(const written_model&) = delete;
    written_model& operator=(const written_model&) = delete;
    ~written_model() { SUModelRelease(&ref); }

    model* inside = nullptr;
    SUModelRef ref = SU_INVALID;
};

// The text under "key" in the only dictionary of an entity, which is called "d".
std::string attribute_of(SUEntityRef entity) {
    const auto dictionaries = all_of(SUEntityGetNumAttributeDictionaries, SUEntityGetAttributeDictionaries, entity);
    if (dictionaries.size() != 1 || text_from(SUAttributeDictionaryGetName, dictionaries[0]) != "d")
        return std::to_string(dictionaries.size()) + " dictionaries";
    test_value value;
    test_string found;
    if (SUAttributeDictionaryGetValue(dictionaries[0], "key", &value.ref) != SU_ERROR_NONE ||
        SUTypedValueGetString(value.ref, &found.ref) != SU_ERROR_NONE)
        return "no text";
    return found.text();
}

void expect_attributes_on_everything(const writing& write) {
    model_builder builder;
    const auto put = [&builder](entity_place owner, const char* value) {
        builder.attribute(owner, "d", "key", text(value));
    };
    list_builder group = builder.root().group("group");
    list_builder component = builder.component("component");
    put(group.square(1), "face");
    put(component.edge({0, 0, 0}, {1, 0, 0}), "edge");
    put(component.list(), "definition");
    put(group.placement(), "group");
    put(builder.root().instance(component), "instance");
    put(builder.root().image(builder.image_definition({'x'}, "a.png", 2, 2)), "image");
    put(builder.root().section_plane({0, 0, 1, -3}), "plane");
    put({entity_kind::material, builder.material("Red", {255, 0, 0, 255})}, "material");
    put({entity_kind::layer, builder.layer("Walls")}, "layer");
    put(builder.root().list(), "model");
    const written_model opened(builder, write);
    const model& m = *opened.inside;
    const auto entity = [](auto& of) { return SUEntityRef{const_cast<void*>(static_cast<const void*>(&of))}; };
    EXPECT_EQ(attribute_of(entity(m.faces.at(0))), "face");
    const SUComponentDefinitionRef definition =
        all_of(SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions, opened.ref).at(0);
    EXPECT_EQ(attribute_of(SUComponentDefinitionToEntity(definition)), "definition");
    SUEntitiesRef inner = SU_INVALID, root = SU_INVALID;
    SUComponentDefinitionGetEntities(definition, &inner);
    SUModelGetEntities(opened.ref, &root);
    SUEdgeRef edge = SU_INVALID;
    size_t count = 0;
    SUEntitiesGetEdges(inner, false, 1, &edge, &count);
    EXPECT_EQ(attribute_of(SUEdgeToEntity(edge)), "edge");
    EXPECT_EQ(attribute_of(SUGroupToEntity(all_of(SUEntitiesGetNumGroups, SUEntitiesGetGroups, root).at(0))), "group");
    EXPECT_EQ(attribute_of(
                  SUComponentInstanceToEntity(all_of(SUEntitiesGetNumInstances, SUEntitiesGetInstances, root).at(0))),
              "instance");
    EXPECT_EQ(attribute_of(SUImageToEntity(all_of(SUEntitiesGetNumImages, SUEntitiesGetImages, root).at(0))), "image");
    EXPECT_EQ(attribute_of(SUSectionPlaneToEntity(
                  all_of(SUEntitiesGetNumSectionPlanes, SUEntitiesGetSectionPlanes, root).at(0))),
              "plane");
    EXPECT_EQ(attribute_of(SUMaterialToEntity(all_of(SUModelGetNumMaterials, SUModelGetMaterials, opened.ref).at(0))),
              "material");
    EXPECT_EQ(attribute_of(SULayerToEntity(all_of(SUModelGetNumLayers, SUModelGetLayers, opened.ref).at(1))), "layer");
    const auto of_model = all_of(SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries, opened.ref);
    ASSERT_EQ(of_model.size(), 1u);
    EXPECT_EQ(text_from(SUAttributeDictionaryGetName, of_model[0]), "d");
}

// Opening and asking take a step a key: a step for every pair of keys would be 10^12.
void expect_a_million_keys(const writing& write) {
    constexpr int keys = 1000000;
    model_builder builder;
    std::vector<attribute> entries;
    for (int i = 0; i < keys; ++i)
        entries.push_back({"key" + std::to_string(i), whole_number(i)});
    builder.attribute(builder.root().list(), "large", "first", whole_number(-1));
    auto built = builder.finish();
    auto& all = built->dictionaries.at(0).entries;
    all.insert(all.end(), entries.begin(), entries.end());
    auto read = skp::read_model(write(*built));
    SUModelRef ref = api::adopt_model(std::move(read));
    const SUAttributeDictionaryRef large =
        all_of(SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries, ref).at(0);
    size_t count = 0;
    SUAttributeDictionaryGetNumKeys(large, &count);
    EXPECT_EQ(count, 1000001u);
    test_value value;
    int wrong = 0;
    for (int i = 0; i < keys; ++i) {
        int32_t number = -1;
        SUAttributeDictionaryGetValue(large, entries[static_cast<std::size_t>(i)].key.c_str(), &value.ref);
        SUTypedValueGetInt32(value.ref, &number);
        wrong += number != i;
    }
    EXPECT_EQ(wrong, 0);
    SUModelRelease(&ref);
}

} // namespace

TEST(AttributesInFiles, hang_on_everything_in_a_classic_file) {
    expect_attributes_on_everything(as_classic);
}

TEST(AttributesInFiles, hang_on_everything_in_a_modern_file) {
    expect_attributes_on_everything(as_modern);
}

TEST(AttributesInFiles, a_million_keys_are_found_in_a_classic_file) {
    expect_a_million_keys(as_classic);
}

TEST(AttributesInFiles, a_million_keys_are_found_in_a_modern_file) {
    expect_a_million_keys(as_modern);
}
