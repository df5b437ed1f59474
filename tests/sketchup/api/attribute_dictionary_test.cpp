#include "tests/sketchup/api/test_model.h"

#include "sketchup/api/key_lookup.h"

#include <gtest/gtest.h>

using sketchup::model_builder;
using sketchup::text;
using sketchup::whole_number;

namespace {

// A dictionary "d" on the top list with the keys k0, k1, … and their numbers.
void numbered_keys(model_builder& builder, int count) {
    for (int i = 0; i < count; ++i)
        builder.attribute(builder.root().list(), "d", "k" + std::to_string(i), whole_number(i));
}

int32_t number_at(SUAttributeDictionaryRef dictionary, const std::string& key) {
    test_value value;
    int32_t number = -1;
    EXPECT_EQ(SUAttributeDictionaryGetValue(dictionary, key.c_str(), &value.ref), SU_ERROR_NONE) << key;
    EXPECT_EQ(SUTypedValueGetInt32(value.ref, &number), SU_ERROR_NONE);
    return number;
}

} // namespace

TEST(AttributeDictionary, gives_its_keys_in_the_order_of_the_file_into_created_strings) {
    model_builder builder;
    for (const char* key : {"zebra", "ant", "mouse"})
        builder.attribute(builder.root().list(), "d", key, whole_number(1));
    test_model opened(builder);
    size_t count = 0;
    EXPECT_EQ(SUAttributeDictionaryGetNumKeys(opened.dictionary(), &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 3u);
    test_string first, second, third;
    SUStringRef keys[3] = {first.ref, second.ref, third.ref};
    EXPECT_EQ(SUAttributeDictionaryGetKeys(opened.dictionary(), 3, keys, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 3u);
    EXPECT_EQ(first.text() + second.text() + third.text(), "zebraantmouse");
}

TEST(AttributeDictionary, fills_no_key_unless_all_strings_were_created) {
    model_builder builder;
    numbered_keys(builder, 2);
    test_model opened(builder);
    test_string created;
    SUStringRef keys[2] = {created.ref, SU_INVALID};
    size_t count = 9;
    EXPECT_EQ(SUAttributeDictionaryGetKeys(opened.dictionary(), 2, keys, &count), SU_ERROR_INVALID_OUTPUT);
    EXPECT_EQ(count, 9u);
    EXPECT_EQ(created.text(), "");
    EXPECT_EQ(SUAttributeDictionaryGetKeys(opened.dictionary(), 1, keys, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(created.text(), "k0");
}

TEST(AttributeDictionary, has_no_data_under_an_unknown_key) {
    model_builder builder;
    numbered_keys(builder, 1);
    test_model opened(builder);
    const test_value value;
    SUTypedValueRef filled = value.ref;
    EXPECT_EQ(SUAttributeDictionaryGetValue(opened.dictionary(), "K0", &filled), SU_ERROR_NO_DATA);
    EXPECT_EQ(value.type(), SUTypedValueType_Empty);
}

TEST(AttributeDictionary, needs_a_key_and_a_created_value) {
    model_builder builder;
    numbered_keys(builder, 1);
    test_model opened(builder);
    test_value value;
    SUTypedValueRef none = SU_INVALID;
    EXPECT_EQ(SUAttributeDictionaryGetValue(opened.dictionary(), nullptr, &value.ref), SU_ERROR_NULL_POINTER_INPUT);
    EXPECT_EQ(SUAttributeDictionaryGetValue(opened.dictionary(), "k0", nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUAttributeDictionaryGetValue(opened.dictionary(), "k0", &none), SU_ERROR_INVALID_OUTPUT);
    EXPECT_EQ(SUAttributeDictionaryGetValue(SU_INVALID, "k0", &value.ref), SU_ERROR_INVALID_INPUT);
}

TEST(AttributeDictionary, finds_every_key_of_a_small_and_of_a_large_one) {
    for (const int size : {1, 64, 65, 1000}) {
        model_builder builder;
        numbered_keys(builder, size);
        test_model opened(builder);
        for (int i = 0; i < size; ++i)
            EXPECT_EQ(number_at(opened.dictionary(), "k" + std::to_string(i)), i);
        test_value value;
        for (const char* unknown : {"", "a", "k", "k1x", "z"})
            EXPECT_EQ(SUAttributeDictionaryGetValue(opened.dictionary(), unknown, &value.ref), SU_ERROR_NO_DATA);
    }
}

TEST(AttributeDictionary, gives_the_later_of_two_equal_keys_whatever_its_size) {
    for (const int size : {2, 100}) {
        model_builder builder;
        numbered_keys(builder, size);
        auto built = builder.finish();
        built->dictionaries[0].entries.push_back({"k0", whole_number(777)});
        skp::link(*built);
        const SUAttributeDictionaryRef dictionary =
            sketchup::api::handle_of<SUAttributeDictionaryRef>(built->dictionaries[0]);
        SUModelRef opened = sketchup::api::adopt_model(std::move(built));
        EXPECT_EQ(number_at(dictionary, "k0"), 777);
        SUModelRelease(&opened);
    }
}
