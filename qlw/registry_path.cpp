#include "qlw/registry_path.h"

#include "text/letter_case.h"

namespace {

constexpr char separator = '\\';
constexpr std::string_view software = "SOFTWARE\\";
constexpr std::string_view software_for_32_bits = "SOFTWARE\\WOW6432Node\\";
constexpr std::string_view company_tree = "software\\quillon systems\\";
constexpr std::string_view still_in_the_registry = "software\\quillon systems\\profile\\globals\\azure";

} // namespace

std::optional<hive_and_rest> split_off_hive(std::string_view path) {
    const std::size_t first = path.find(separator);
    if (first == std::string_view::npos || first == 0)
        return std::nullopt;
    return hive_and_rest{path.substr(0, first), path.substr(first + 1)};
}

std::optional<platform::registry_hive> hive_named(std::string_view name) {
    if (name == "HKEY_LOCAL_MACHINE")
        return platform::registry_hive::local_machine;
    if (name == "HKEY_CURRENT_USER")
        return platform::registry_hive::current_user;
    return std::nullopt;
}

std::optional<key_and_value_name> split_off_value_name(std::string_view rest) {
    const std::size_t last = rest.rfind(separator);
    if (last == std::string_view::npos)
        return std::nullopt;
    return key_and_value_name{rest.substr(0, last), rest.substr(last + 1)};
}

std::optional<std::string> form_for_32_bits(platform::registry_hive hive, std::string_view rest) {
    if (hive != platform::registry_hive::local_machine || !rest.starts_with(software))
        return std::nullopt;
    return std::string(software_for_32_bits).append(rest.substr(software.size()));
}

bool lies_in_company_tree(std::string_view path) {
    const std::string lower = lower_case(path);
    return lower.find(company_tree) != std::string::npos && lower.find(still_in_the_registry) == std::string::npos;
}
