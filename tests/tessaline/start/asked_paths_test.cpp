// What the two questions offer to somebody who started the program by hand.

#include "tessaline/start/asked_paths.h"

#include "qlw/profile_state.h"
#include "tests/qlw/memory_registry.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

class AskedPaths : public testing::Test {
protected:
    AskedPaths() {
        reset_profile_state();
        auto in_memory = std::make_unique<memory_registry>();
        registry = in_memory.get();
        profile_state().registry = std::move(in_memory);
    }
    ~AskedPaths() override { reset_profile_state(); }

    temporary_folder folder;
    with_settings_folder settings{folder / "config"};
    trace_capture capture;
    memory_registry* registry = nullptr;
};

TEST_F(AskedPaths, the_model_of_the_last_time_is_offered_where_the_registry_keeps_it) {
    registry->put_text("HKLM\\SOFTWARE\\Quillon Systems\\QLW DEBUG\\LastSKP", "C:\\models\\house.skp");
    const platform::file_question question = question_for_model();
    EXPECT_EQ(question.title, "Tessaline, to create SKP XML file");
    EXPECT_EQ(question.default_name, "C:\\models\\house.skp");
    EXPECT_EQ(question.default_extension, "skp");
    EXPECT_EQ(question.filter, "SketchUp Files (*.skp)|*.skp||");
    EXPECT_FALSE(question.asks_before_overwriting);
}

TEST_F(AskedPaths, the_model_of_the_last_time_is_found_where_a_program_of_32_bits_left_it) {
    registry->put_text("HKLM\\SOFTWARE\\WOW6432Node\\Quillon Systems\\QLW DEBUG\\LastSKP", "C:\\models\\old.skp");
    EXPECT_EQ(question_for_model().default_name, "C:\\models\\old.skp");
}

TEST_F(AskedPaths, without_a_registry_entry_no_model_is_offered_and_nothing_is_reported) {
    // Where the answers go; they are looked for in the registry.
    folder.write("config/Quillon Systems/Tessaline.ini", "[Common]\r\nLastSKP=/models/house.skp\r\n");
    EXPECT_EQ(question_for_model().default_name, "");
    EXPECT_EQ(capture.text(), "");
}

TEST_F(AskedPaths, the_stream_is_offered_under_the_name_of_the_model_with_another_ending) {
    const platform::file_question question = question_for_stream("/my.models/house.skp");
    EXPECT_EQ(question.title, "Tessaline, Debug Mode - to create SKP XML file");
    EXPECT_EQ(question.default_name, "/my.models/house.xml");
    EXPECT_EQ(question.default_extension, "xml");
    EXPECT_EQ(question.filter, "XML (*.xml)|*.xml||");
    EXPECT_TRUE(question.asks_before_overwriting);
}

TEST_F(AskedPaths, a_model_without_an_ending_gets_one_for_its_stream) {
    EXPECT_EQ(question_for_stream(with_own_separators("/my.models/house")).default_name,
              with_own_separators("/my.models/house.xml"));
}

} // namespace
