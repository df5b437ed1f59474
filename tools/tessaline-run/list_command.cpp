#include "tools/tessaline-run/list_command.h"

#include "platform/platform.h"
#include "text/one_line.h"
#include "tools/command_line/answers.h"
#include "tools/single_run/run_options.h"
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
constexpr std::array<run_option, 5> options_of_each = {
    {{"--with", true}, {"--option", true}, {"--seconds", true}, {"--memory", true}, {"--force", false}}};

constexpr std::array<std::string_view, 3> commands = {"--list", "--table", "--count"};
constexpr std::array<std::string_view, 10> words_with_value = {
    "--root", "--models", "--jobs", "--tries", "--with", "--option", "--seconds", "--memory", "--json", "--progress"};

template<class Words>
bool is_one_of(std::string_view word, const Words& all) {
    return std::find(all.begin(), all.end(), word) != all.end();
}

// Takes the command out of the words, with the word behind it, which goes to their begin. Empty if there is none.
std::string taken_command(std::vector<std::string>& words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (is_one_of(words[i], commands)) {
            const auto at = words.begin() + static_cast<std::ptrdiff_t>(i);
            std::string command = *at;
            words.erase(at);
            if (i < words.size())
                std::rotate(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(i),
                            words.begin() + static_cast<std::ptrdiff_t>(i) + 1);
            return command;
        }
        if (is_one_of(words[i], words_with_value))
            ++i;
    }
    return {};
}

// Why no run takes these options, in a sentence without its full stop; empty if each does.
std::string complaint_about_options(const std::vector<std::string>& run_words) {
    std::vector<std::string> words = run_words;
    words.insert(words.end(), {"model", "folder"});
    return read_run_options(words).complaint;
}

int refuse(const std::string& sentence) {
    platform::write_standard_error("tessaline-run: " + on_one_line(sentence) + '\n');
    return static_cast<int>(run_status::usage);
}

class list_words {
public:
    // behind_command: without the command itself, the name of the list first.
    list_words(std::string name, std::vector<std::string> behind_command)
        : words(std::move(behind_command)), command(std::move(name)) {}

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
        const auto known = std::find_if(options_of_each.begin(), options_of_each.end(),
                                        [&](const auto& option) { return option.name == word; });
        if (known == options_of_each.end()) {
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
    std::vector<std::string> all(argv + std::min(argc, 1), argv + argc);
    const std::string command = has_lists ? taken_command(all) : std::string();
    if (command.empty())
        return std::nullopt;
    list_words words(command, std::move(all));
    const auto options = words.taken();
    if (!words.unknown().empty())
        return refuse("unknown option " + words.unknown());
    if (!options)
        return refuse_command_line(usage);
    if (const std::string complaint = complaint_about_options(options->run_words); !complaint.empty())
        return refuse(complaint);
    return command == "--list"    ? run_list(*options)
           : command == "--table" ? print_table(*options)
                                  : print_count(*options);
}
