// Which answers about materials are kept, and for how long.

#include "tessaline/materials/known_materials.h"

#include "tests/tessaline/reader_fixture.h"

namespace {

int some_material = 0;
int other_material = 0;

material_question question_about(int& material) {
    return {.material = {&material}};
}

TEST(KnownMaterials, an_answer_is_kept_for_its_question) {
    known_materials known;
    EXPECT_EQ(known.find(question_about(some_material), 3), nullptr);
    known.keep(question_about(some_material), {2, true});
    const material_answer* const found = known.find(question_about(some_material), 3);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->record, 2);
    EXPECT_TRUE(found->has_file);
}

TEST(KnownMaterials, a_question_that_differs_in_anything_is_another) {
    known_materials known;
    known.find({}, 1);
    known.keep(question_about(some_material), {0, true});
    const material_question same = question_about(some_material);
    std::vector<material_question> others(6, same);
    others[0].material = {&other_material};
    others[1].texture_id = 7;
    others[2].layer_reflection = 0;
    others[3].by_layer = true;
    others[4].is_face = false;
    others[5].is_scattered = true;
    for (std::size_t i = 0; i != others.size(); ++i)
        EXPECT_EQ(known.find(others[i], 1), nullptr) << i;
    EXPECT_NE(known.find(same, 1), nullptr);
}

TEST(KnownMaterials, a_new_record_makes_all_answers_void) {
    known_materials known;
    known.find({}, 1);
    known.keep(question_about(some_material), {0, true});
    EXPECT_EQ(known.find(question_about(some_material), 2), nullptr);
    EXPECT_EQ(known.find(question_about(some_material), 1), nullptr) << "and they do not come back";
}

cl_tsl_material with_picture(const std::string& path) {
    cl_tsl_material record;
    record.image_path = path;
    return record;
}

TEST(KnownMaterials, a_picture_leads_to_the_first_record_that_has_it) {
    known_materials known;
    std::vector<cl_tsl_material> records = {with_picture(""), with_picture("/a.png"), with_picture("/a.png")};
    EXPECT_EQ(known.record_with_picture("/a.png", records), 1);
    EXPECT_EQ(known.record_with_picture("/b.png", records), -1);
    records.push_back(with_picture("/b.png"));
    records.push_back(with_picture("/a.png"));
    EXPECT_EQ(known.record_with_picture("/b.png", records), 3);
    EXPECT_EQ(known.record_with_picture("/a.png", records), 1);
}

TEST(KnownMaterials, pictures_of_another_reading_are_forgotten) {
    known_materials known;
    known.record_with_picture("", {with_picture("/a.png"), with_picture("/b.png")});
    known.forget();
    EXPECT_EQ(known.record_with_picture("/a.png", {}), -1);
    EXPECT_EQ(known.record_with_picture("/b.png", {with_picture("/b.png")}), 0);
}

using KnownNames = reader_test;

TEST_F(KnownNames, a_material_is_named_unless_its_name_is_empty) {
    builder.material("", {});
    builder.material("Red", {});
    open();
    SUMaterialRef found[2] = {SU_INVALID, SU_INVALID};
    std::size_t count = 0;
    SUModelGetMaterials(open_model, 2, found, &count);
    known_materials known;
    for (int again = 0; again != 2; ++again) {
        EXPECT_FALSE(known.is_named(found[0]));
        EXPECT_TRUE(known.is_named(found[1]));
        EXPECT_FALSE(known.is_named(SU_INVALID));
    }
}

} // namespace
