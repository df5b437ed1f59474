#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>
#include <set>

using sketchup::model_builder;
using sketchup::text;

namespace {

std::vector<SUAttributeDictionaryRef> dictionaries(SUEntityRef entity) {
    return all_of(SUEntityGetNumAttributeDictionaries, SUEntityGetAttributeDictionaries, entity);
}

} // namespace

TEST(EntityIds, are_positive_and_unique) {
    model_builder builder;
    builder.root().box({0, 0, 0}, {1, 1, 1});
    test_model opened(builder);
    std::set<int32_t> ids;
    for (const SUFaceRef face : all_of(SUEntitiesGetNumFaces, SUEntitiesGetFaces, opened.root())) {
        int32_t id = 0;
        EXPECT_EQ(SUEntityGetID(SUFaceToEntity(face), &id), SU_ERROR_NONE);
        EXPECT_GT(id, 0);
        ids.insert(id);
    }
    EXPECT_EQ(ids.size(), 6u);
}

TEST(EntityIds, are_shared_by_a_group_and_the_instance_behind_it) {
    model_builder builder;
    builder.root().group("Lamp");
    test_model opened(builder);
    const SUGroupRef group = opened.placement<SUGroupRef>();
    int32_t as_group = 0, as_instance = 0;
    SUEntityGetID(SUGroupToEntity(group), &as_group);
    SUEntityGetID(SUComponentInstanceToEntity(SUGroupToComponentInstance(group)), &as_instance);
    EXPECT_GT(as_group, 0);
    EXPECT_EQ(as_group, as_instance);
}

TEST(EntityIds, that_persist_are_those_of_the_file) {
    model_builder builder;
    const sketchup::entity_place face = builder.root().square(1);
    builder.face(face).persistent_id = 28026;
    test_model opened(builder);
    int64_t id = 0;
    EXPECT_EQ(SUEntityGetPersistentID(SUFaceToEntity(opened.face()), &id), SU_ERROR_NONE);
    EXPECT_EQ(id, 28026);
}

TEST(AttributeDictionaries, of_an_entity_come_in_the_order_of_the_file) {
    model_builder builder;
    const sketchup::entity_place face = builder.root().square(1);
    builder.attribute(face, "zebra", "a", text("1"));
    builder.attribute(face, "ant", "b", text("2"));
    test_model opened(builder);
    const auto found = dictionaries(SUFaceToEntity(opened.face()));
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(text_from(SUAttributeDictionaryGetName, found[0]), "zebra");
    EXPECT_EQ(text_from(SUAttributeDictionaryGetName, found[1]), "ant");
}

TEST(AttributeDictionaries, of_the_model_are_those_of_its_top_list) {
    model_builder builder;
    builder.attribute(builder.root().list(), "settings", "a", text("1"));
    test_model opened(builder);
    const auto found = all_of(SUModelGetNumAttributeDictionaries, SUModelGetAttributeDictionaries, opened.ref);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(text_from(SUAttributeDictionaryGetName, found[0]), "settings");
}

TEST(AttributeDictionaries, asked_for_by_name_are_those_of_the_list) {
    model_builder builder;
    const sketchup::entity_place face = builder.root().square(1);
    builder.attribute(face, "lamp", "type", text("1"));
    test_model opened(builder);
    SUAttributeDictionaryRef found = SU_INVALID;
    EXPECT_EQ(SUEntityGetAttributeDictionary(SUFaceToEntity(opened.face()), "lamp", &found), SU_ERROR_NONE);
    EXPECT_TRUE(same(found, dictionaries(SUFaceToEntity(opened.face()))[0]));
}

TEST(AttributeDictionaries, that_are_missing_are_made_by_asking_but_never_counted) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    const SUEntityRef face = SUFaceToEntity(opened.face());
    SUAttributeDictionaryRef first = SU_INVALID, again = SU_INVALID;
    EXPECT_EQ(SUEntityGetAttributeDictionary(face, "lamp", &first), SU_ERROR_NONE);
    EXPECT_EQ(SUEntityGetAttributeDictionary(face, "lamp", &again), SU_ERROR_NONE);
    EXPECT_TRUE(same(first, again));
    EXPECT_EQ(text_from(SUAttributeDictionaryGetName, first), "lamp");
    size_t keys = 9;
    EXPECT_EQ(SUAttributeDictionaryGetNumKeys(first, &keys), SU_ERROR_NONE);
    EXPECT_EQ(keys, 0u);
    EXPECT_TRUE(dictionaries(face).empty());
}

TEST(AttributeDictionaries, need_a_name_to_be_asked_for) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    const SUEntityRef face = SUFaceToEntity(opened.face());
    SUAttributeDictionaryRef found = SU_INVALID;
    EXPECT_EQ(SUEntityGetAttributeDictionary(face, nullptr, &found), SU_ERROR_NULL_POINTER_INPUT);
    EXPECT_EQ(SUEntityGetAttributeDictionary(face, "lamp", nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUEntityGetAttributeDictionary(SU_INVALID, "lamp", &found), SU_ERROR_INVALID_INPUT);
}

TEST(AttributeDictionaries, that_are_nested_hang_on_the_dictionary_around_them) {
    model_builder builder;
    const sketchup::entity_place face = builder.root().square(1);
    builder.attribute(face, "outer", "a", text("1"));
    auto built = builder.finish();
    built->dictionaries.emplace_back().name = "inner";
    built->dictionaries[0].dictionaries = {1, 1};
    skp::link(*built);
    sketchup::model& m = *built;
    SUModelRef opened = sketchup::api::adopt_model(std::move(built));
    const auto outer = dictionaries(SUFaceToEntity(sketchup::api::handle_of<SUFaceRef>(m.faces[0])));
    ASSERT_EQ(outer.size(), 1u);
    const auto inner = dictionaries(SUAttributeDictionaryToEntity(outer[0]));
    ASSERT_EQ(inner.size(), 1u);
    EXPECT_EQ(text_from(SUAttributeDictionaryGetName, inner[0]), "inner");
    SUModelRelease(&opened);
}
