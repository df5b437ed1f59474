#pragma once

// A run whose dialogs are looked at.

#include "tests/support/answering_desktop.h"
#include "tests/tessaline/run_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

class RunMessages : public run_fixture {
protected:
    // The messages of the dialogs that a run opens, without what stands under each message.
    std::vector<std::string> messages_of_run() {
        testing::internal::CaptureStderr(); // the progress
        theApp.InitInstance("tessaline \"" + batch / "geometry.qlm" + "\"");
        testing::internal::GetCapturedStderr();
        std::vector<std::string> messages;
        for (const platform::error_dialog_view& view : desktop.shown)
            messages.push_back(view.text.substr(0, view.text.find("\r\n\r\n    (VER:")));
        return messages;
    }

    trace_capture capture;
    answering_desktop desktop;
};

// A ground plane that the run has to restore: "Hi" in a frame of 25 characters.
inline void add_ground_plane(sketchup::model_builder& m) {
    m.attribute(m.root().list(), "Zyn_Ground_Plane", "Ground_Plane_Saved", sketchup::truth(true));
    m.attribute(m.root().list(), "Zyn_Ground_Plane", "hex_data", sketchup::text("25;1;x;"));
    m.attribute(m.root().list(), "Zyn_Ground_Plane", "hex_data_chunk0", sketchup::text("[hex_data][00000004]-4869"));
}
