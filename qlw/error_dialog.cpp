#include "qlw/error_dialog.h"

#include "qlw/clipboard.h"
#include "qlw/desktop.h"
#include "qlw/qlw_identity.h"
#include "qlw/qlw_trace.h"
#include "qlw/support_report.h"
#include "qlw/trace_state.h"
#include "text/letter_case.h"

namespace {

std::string with_crlf(const std::string& text) {
    std::string changed;
    for (const char letter : text) {
        if (letter == '\n')
            changed += '\r';
        if (letter != '\r')
            changed += letter;
    }
    return changed;
}

} // namespace

std::string cl_error_dialog::window_title() const {
    if (plain_mode)
        return title.empty() ? std::string(application_name) : title;
    return std::string(application_name) + " - " + (title.empty() ? "Error" : title);
}

std::string cl_error_dialog::text() const {
    if (plain_mode)
        return with_crlf(message);
    const std::string version =
        "    (VER: " + std::string(version_text) + " - " + in_capitals(platform::computer_name()) + ")";
    const std::string hint = show_location ? location_text : "Click More to send message to Support.";
    return with_crlf(message + "\n\n" + version + "\n    " + hint);
}

std::string cl_error_dialog::report() const {
    const std::string place = plain_mode ? std::string() : location_text + "\n\n";
    return with_crlf(message + "\n\n" + place + get_support_report());
}

bool cl_error_dialog::run() const {
    platform::error_dialog_view view;
    view.kind = show_location ? platform::error_dialog_kind::report : platform::error_dialog_kind::message;
    view.caption = window_title();
    view.text = text();
    view.offers_silence = !plain_mode;
    view.on_copy = [this] { copy_to_clipboard(report()); };
    const platform::error_dialog_answer answer = trace_state().desktop->show_error_dialog(view);
    if (!answer.was_shown)
        return false;
    if (answer.button == platform::error_dialog_button::more)
        show_more();
    else if (answer.silences_place)
        add_suppressed_source(source);
    return true;
}

void cl_error_dialog::show_more() const {
    cl_error_dialog second;
    second.message = message;
    second.location_text = location_text;
    second.source = source;
    second.show_location = true;
    do_modal_dialog(second, "Error");
}

void do_modal_dialog(const cl_error_dialog& dialog, std::string_view label) {
    try {
        dialog.run();
    } catch (...) {
        cl_trace::here("do_modal_dialog", trace_level::report).report("Error while running modal dialog: %s", label);
    }
}
