// What the user is asked when the command line names no paths.

#include "tessaline/start/asked_paths.h"

#include "qlw/registry_access.h"
#include "tessaline/files/paths.h"

namespace {

// Written without the hive: the company's own tree has moved into an ini file, and only reading still looks here.
constexpr const char* last_model_path = "SOFTWARE\\Quillon Systems\\QLW DEBUG\\LastSKP";
constexpr const char* last_model_read_path = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Quillon Systems\\QLW DEBUG\\LastSKP";

} // namespace

platform::file_question question_for_model() {
    platform::file_question question;
    question.title = "Tessaline, to create SKP XML file";
    question.default_extension = "skp";
    question.default_name = get_string_from_registry(last_model_read_path, {}, true);
    question.filter = "SketchUp Files (*.skp)|*.skp||";
    return question;
}

std::optional<std::string> ask_for_model() {
    const auto answer = platform::ask_for_file_to_open(question_for_model());
    if (answer)
        set_registry_string_data(last_model_path, *answer);
    return answer;
}

platform::file_question question_for_stream(const std::string& input_path) {
    platform::file_question question;
    question.title = "Tessaline, Debug Mode - to create SKP XML file";
    question.default_extension = "xml";
    question.default_name = without_extension(input_path) + ".xml";
    question.filter = "XML (*.xml)|*.xml||";
    question.asks_before_overwriting = true;
    return question;
}

std::optional<std::string> ask_for_stream(const std::string& input_path) {
    return platform::ask_for_file_to_save(question_for_stream(input_path));
}
