// What the user is asked when the command line names no paths.

#include "tessaline/asked_paths.h"

#include "platform/platform.h"
#include "tessaline/paths.h"

#include <string_view>

namespace {

constexpr auto last_model_hive = platform::registry_hive::local_machine;
constexpr const char* last_model_key = "SOFTWARE\\Quillon Systems\\QLW DEBUG";
constexpr const char* last_model_value = "LastSKP";

std::string last_model() {
    const auto answer = platform::system_registry()->read(last_model_hive, last_model_key, last_model_value);
    if (!answer.value_found)
        return {};
    const std::string_view text(reinterpret_cast<const char*>(answer.data.data()), answer.data.size());
    return std::string(text.substr(0, text.find('\0')));
}

} // namespace

std::optional<std::string> ask_for_model() {
    platform::file_question question;
    question.title = "Tessaline, to create SKP XML file";
    question.default_extension = "skp";
    question.default_name = last_model();
    question.filter = "SketchUp Files (*.skp)|*.skp||";
    const auto answer = platform::ask_for_file_to_open(question);
    if (answer)
        platform::system_registry()->write_text(last_model_hive, last_model_key, last_model_value, *answer);
    return answer;
}

std::optional<std::string> ask_for_stream(const std::string& input_path) {
    platform::file_question question;
    question.title = "Tessaline, Debug Mode - to create SKP XML file";
    question.default_extension = "xml";
    question.default_name = without_extension(input_path) + ".xml";
    question.filter = "XML (*.xml)|*.xml||";
    question.asks_before_overwriting = true;
    return platform::ask_for_file_to_save(question);
}
