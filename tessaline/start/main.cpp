// The program: what the console forms answer at once, and the run itself.

#include "platform/platform.h"
#include "qlw/qlw_identity.h"
#include "qlw/support_report.h"
#include "tessaline/start/support_answers.h"
#include "tessaline/start/usage.h"
#include "tessaline/state/run_state.h"

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view support_option = "--support-report";

// Alone and unquoted the program's name would count as the output path; in quotation marks it is known for what it is.
std::string command_line_of(int argc, char** argv) {
    if (argc > 1)
        return platform::raw_command_line(argc, argv);
    return '"' + (argc == 1 ? std::string(argv[0]) : std::string()) + '"';
}

bool answers_at_once(std::string_view argument) {
    if (argument == "--help") {
        platform::write_standard_output(usage_text);
        return true;
    }
    if (argument == "--version") {
        platform::write_standard_output(std::string(application_name) + ' ' + TESSALINE_VERSION + '\n');
        return true;
    }
    if (argument == support_option) {
        print_support_report(get_support_report());
        return true;
    }
    return false;
}

// A run like any other, in which every error comes with its place and the report for support.
void run_with_support_reports(std::string command_line) {
    const std::string switch_text = ' ' + std::string(support_option);
    if (const std::size_t at = command_line.find(switch_text); at != std::string::npos)
        command_line.erase(at, switch_text.size());
    const cl_support_answers answers;
    theApp.InitInstance(command_line);
}

void report_end(std::string_view reason) {
    platform::write_standard_error(std::string(application_name) + ": " + std::string(reason) + '\n');
}

} // namespace

// The status is 0 whatever happens: a parent looks for the files, and a failed run leaves none.
int main(int argc, char** argv) {
    try {
        if (argc == 2 && answers_at_once(argv[1]))
            return 0;
        if (argc > 2 && argv[1] == support_option)
            run_with_support_reports(command_line_of(argc, argv));
        else
            theApp.InitInstance(command_line_of(argc, argv));
    } catch (const std::exception& failure) {
        report_end(failure.what());
    } catch (const std::string&) {
        return 0; // a fatal report, which the user has seen
    }
    return 0;
}
