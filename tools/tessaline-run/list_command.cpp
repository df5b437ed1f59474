#include "tools/tessaline-run/list_command.h"

#include "platform/platform.h"
#include "tools/command_line/answers.h"
#include "tools/single_run/run_status.h"
#include "tools/tessaline-run/list_run.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace {

// A whole number from 1; nothing for any other text.
std::optional<std::size_t> positive(std::string_view text) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number == 0)
        return std::nullopt;
    return number;
}

// "17-32", from 1.
bool take_range(list_options& options, std::string_view text) {
    const std::size_t dash = std::min(text.find('-'), text.size());
    const auto first = positive(text.substr(0, dash));
    const auto last = positive(text.substr(std::min(dash + 1, text.size())));
    if (!first || !last || *first > *last)
        return false;
    options.first = *first - 1;
    options.count = *last - *first + 1;
    return true;
}

// What GNU parallel may be told: 4 or 50%.
bool is_job_number(std::string_view text) {
    return positive(text.substr(0, text.size() - (text.ends_with('%') ? 1 : 0))).has_value();
}

// Options of a single run that may be given for all of a list, and whether a value follows.
struct run_option {
    std::string_view name;
    bool has_value;
};
constexpr std::array<run_option, 5> run_options = {
    {{"--with", true}, {"--option", true}, {"--seconds", true}, {"--memory", true}, {"--force", false}}};

class list_words {
public:
    list_words(int argc, const char* const* argv) : words(argv + 2, argv + argc), command(argv[1]) {}

    // Nothing if the words are not understood; the word that no option is called, if that is why, in unknown().
    std::optional<list_options> taken() {
        if (!take_file())
            return std::nullopt;
        while (!words.empty())
            if (!take_word())
                return std::nullopt;
        if (options.output.empty() != (command == "--count") || (options.resumes && options.count))
            return std::nullopt;
        return options;
    }

    const std::string& unknown() const { return unknown_word; }

private:
    std::optional<std::string> next() {
        if (words.empty())
            return std::nullopt;
        std::string word = words.front();
        words.erase(words.begin());
        return word;
    }

    bool take_file() {
        const auto file = next();
        options.list = file.value_or("");
        return file && !file->empty();
    }

    bool take_word() {
        const std::string word = *next();
        if (word == "--root")
            return (options.root = next()).has_value();
        if (word.starts_with('-') && command == "--list")
            return take_list_option(word);
        if (word.starts_with('-')) {
            unknown_word = word;
            return false;
        }
        if (!options.output.empty() || word.empty())
            return false;
        options.output = word;
        return true;
    }

    bool take_list_option(const std::string& word) {
        if (word == "--resume")
            return options.resumes = true;
        if (word == "--models")
            return take_range(options, next().value_or(""));
        if (word == "--jobs")
            return is_job_number(options.jobs = next().value_or(""));
        if (word == "--tries")
            return positive(options.tries = next().value_or("")).has_value();
        return take_run_option(word);
    }

    bool take_run_option(const std::string& word) {
        const auto known = std::find_if(run_options.begin(), run_options.end(),
                                        [&](const auto& option) { return option.name == word; });
        if (known == run_options.end()) {
            unknown_word = word;
            return false;
        }
        options.run_words.push_back(word);
        const auto value = known->has_value ? next() : std::string();
        if (known->has_value && value)
            options.run_words.push_back(*value);
        return value.has_value();
    }

    std::vector<std::string> words;
    std::string command;
    list_options options;
    std::string unknown_word;
};

} // namespace

std::optional<int> run_list_command(int argc, const char* const* argv, std::string_view usage) {
    const std::string_view command = argc > 1 ? argv[1] : "";
    if (command != "--list" && command != "--table" && command != "--count")
        return std::nullopt;
    list_words words(argc, argv);
    const auto options = words.taken();
    if (!words.unknown().empty()) {
        platform::write_standard_error("tessaline-run: unknown option " + words.unknown() + '\n');
        return static_cast<int>(run_status::usage);
    }
    if (!options)
        return refuse_command_line(usage);
    return command == "--list"    ? run_list(*options)
           : command == "--table" ? print_table(*options)
                                  : print_count(*options);
}
