// What the user sees while a model is converted.

#include "tests/tessaline/run_fixture.h"

#include "platform/platform.h"
#include "tessaline/walk/progress_dlg.h"

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using testing::ElementsAre;

class recording_window : public platform::progress_window {
public:
    void set_title(std::string_view title) override { shown.push_back("title " + std::string(title)); }
    void set_percent(int percent) override { shown.push_back("bar " + std::to_string(percent)); }
    void set_text(std::string_view text) override { shown.push_back("text " + std::string(text)); }

    std::vector<std::string> shown;
};

class ProgressDialog : public run_fixture {
protected:
    static void convert() {
        theApp.run_conversion(theApp.input_path, theApp.program_folder, theApp.output_path, theApp.progress_argument);
    }

    // What the window shows during the conversion of so many squares, the first `hidden` of which are not written.
    std::vector<std::string> shown_for(int squares, int hidden = 0) {
        model_builder m;
        list_builder component = m.component("part");
        component.square(10);
        for (int at = 0; at < squares; ++at) {
            const auto place = m.root().instance(component);
            m.element(place).hidden = at < hidden;
        }
        cl_skp_progress_dlg dialog(convert);
        recording_window window;
        convert_under(dialog, window, m);
        return window.shown;
    }

    // Converts the model while the dialog with that window is the program's.
    void convert_under(cl_skp_progress_dlg& dialog, recording_window& window, model_builder& model) {
        theApp.input_path = save(model);
        theApp.output_path = batch / "batch_file.txt";
        progress_dialog = &dialog;
        dialog.OnInitDialog(window);
        progress_dialog = nullptr;
    }
};

TEST_F(ProgressDialog, a_run_of_99_items_shows_the_bar_at_0_and_closes) {
    EXPECT_THAT(shown_for(99), ElementsAre("bar 0"));
}

TEST_F(ProgressDialog, every_hundredth_item_moves_the_bar_the_title_and_the_text) {
    EXPECT_THAT(shown_for(250), ElementsAre("bar 0",                                      //
                                            "title  Converting Model Geometry", "bar 40", // 100 of 250
                                            "text  40% Complete,  Please Wait...",        //
                                            "title  Converting Model Geometry", "bar 80", // 200 of 250
                                            "text  80% Complete,  Please Wait..."));
}

TEST_F(ProgressDialog, the_display_ends_below_100_when_counted_content_is_skipped) {
    EXPECT_THAT(shown_for(200, 100), ElementsAre("bar 0", "title  Converting Model Geometry", "bar 50",
                                                 "text  50% Complete,  Please Wait..."));
}

TEST_F(ProgressDialog, a_percentage_that_did_not_change_is_not_shown_again) {
    // 100 of 20,000 items are 0 percent, which is what the bar shows at the start.
    const auto shown = shown_for(20000, 19900);
    EXPECT_THAT(shown, ElementsAre("bar 0"));
}

TEST_F(ProgressDialog, an_update_without_a_dialog_does_nothing) {
    cl_skp_progress_dlg dialog(convert);
    recording_window window;
    model_builder m;
    convert_under(dialog, window, m);
    update_progress(50);
    progress_dialog = &dialog; // whose window is closed
    update_progress(50);
    progress_dialog = nullptr;
    EXPECT_THAT(window.shown, ElementsAre("bar 0"));
}

TEST_F(ProgressDialog, the_run_keeps_the_names_of_the_model_and_deletes_an_old_stream) {
    const std::string model = batch.write("house.skp", "no model");
    batch.write("batch_file.txt", "old");
    EXPECT_TRUE(theApp.run_conversion(model, "/anywhere/", batch / "batch_file.txt", "any text"));
    EXPECT_EQ(theApp.model_path, model);
    EXPECT_EQ(theApp.model_file_name, "house.skp");
    EXPECT_FALSE(batch.has("batch_file.txt"));
}

} // namespace
