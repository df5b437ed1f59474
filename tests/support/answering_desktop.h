#pragma once

// A desktop on which a test sits: it presses the buttons that the test lists and remembers what was shown.

#include "qlw/desktop.h"
#include "qlw/trace_state.h"

#include <functional>
#include <string>
#include <vector>

class answering_desktop : public cl_desktop {
public:
    answering_desktop() { trace_state().desktop = this; }
    answering_desktop(const answering_desktop&) = delete;
    answering_desktop& operator=(const answering_desktop&) = delete;
    ~answering_desktop() override { trace_state().desktop = &trace_state().system_desktop; }

    std::vector<platform::error_dialog_answer> answers; // taken from the front; OK when none is left
    bool copies_reports = false;                        // presses "Copy" in the second dialog
    platform::clipboard_result clipboard_answer = platform::clipboard_result::done;
    std::function<void()> while_open; // what happens while a dialog is open

    std::vector<platform::error_dialog_view> shown;
    std::vector<std::string> message_boxes; // "title: text"
    std::string clipboard;

    platform::error_dialog_answer show_error_dialog(const platform::error_dialog_view& view) override {
        shown.push_back(view);
        if (while_open)
            while_open();
        if (copies_reports && view.kind == platform::error_dialog_kind::report)
            view.on_copy();
        if (answers.empty())
            return {};
        const platform::error_dialog_answer answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }

    void message_box(std::string_view title, std::string_view text) override {
        message_boxes.push_back(std::string(title) + ": " + std::string(text));
    }

    platform::clipboard_result set_clipboard_text(const std::string& text) override {
        if (clipboard_answer == platform::clipboard_result::done)
            clipboard = text;
        return clipboard_answer;
    }

    static platform::error_dialog_answer ok() { return {}; }
    static platform::error_dialog_answer ok_and_silence() { return {true, platform::error_dialog_button::ok, true}; }
    static platform::error_dialog_answer more() { return {true, platform::error_dialog_button::more, false}; }
    static platform::error_dialog_answer more_and_silence() {
        return {true, platform::error_dialog_button::more, true};
    }
    static platform::error_dialog_answer not_started() { return {false, platform::error_dialog_button::ok, false}; }
};
