// What a typed value of a dictionary gives for each type that it is asked for.

#include "tessaline/model/dictionary_values.h"

#include "tests/tessaline/reader_fixture.h"

namespace {

class DictionaryValues : public reader_test {
protected:
    // Makes that value the one that the handle holds.
    void put(sketchup::typed_value written) {
        builder.attribute(builder.root().square(1), "d", "k", std::move(written));
        open();
        SUAttributeDictionaryRef dictionary = SU_INVALID;
        std::size_t count = 0;
        SUEntityGetAttributeDictionaries(SUFaceToEntity(faces().front()), 1, &dictionary, &count);
        ASSERT_EQ(SUAttributeDictionaryGetValue(dictionary, "k", value.out()), SU_ERROR_NONE);
    }

    typed_value value;
};

TEST_F(DictionaryValues, a_text_is_nothing_but_a_text) {
    put(sketchup::text("1"));
    EXPECT_EQ(value.text(), "1");
    EXPECT_EQ(value.boolean(), std::nullopt);
    EXPECT_EQ(value.number(), std::nullopt);
    EXPECT_EQ(value.vector(), std::nullopt);
}

TEST_F(DictionaryValues, a_vector_is_nothing_but_a_vector) {
    put({sketchup::value_code::vector, sketchup::vec3{1, 2, 3}});
    EXPECT_EQ(value.vector(), (fpt{1, 2, 3}));
    EXPECT_EQ(value.text(), std::nullopt);
    EXPECT_EQ(value.boolean(), std::nullopt);
    EXPECT_EQ(value.number(), std::nullopt);
}

TEST_F(DictionaryValues, a_whole_number_is_no_real_number_and_no_boolean) {
    put(sketchup::whole_number(1));
    EXPECT_EQ(value.number(), std::nullopt);
    EXPECT_EQ(value.boolean(), std::nullopt);
}

} // namespace
