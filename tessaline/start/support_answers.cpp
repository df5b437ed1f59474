#include "tessaline/start/support_answers.h"

#include "qlw/trace_state.h"

cl_support_answers::cl_support_answers() {
    trace_state().desktop = this;
}

cl_support_answers::~cl_support_answers() {
    trace_state().desktop = &trace_state().system_desktop;
}

platform::error_dialog_answer cl_support_answers::show_error_dialog(const platform::error_dialog_view& view) {
    platform::error_dialog_answer answer;
    if (view.kind == platform::error_dialog_kind::message) {
        answer.button = platform::error_dialog_button::more;
        return answer;
    }
    answer = cl_desktop::show_error_dialog(view);
    view.on_copy();
    return answer;
}

platform::clipboard_result cl_support_answers::set_clipboard_text(const std::string& text) {
    print_support_report(text);
    return platform::clipboard_result::done;
}

void print_support_report(std::string report) {
    std::erase(report, '\r');
    if (!report.ends_with('\n'))
        report += '\n';
    platform::write_standard_output(report);
}
