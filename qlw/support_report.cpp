#include "qlw/support_report.h"

#include "platform/platform.h"
#include "qlw/qlw_globals.h"
#include "qlw/qlw_identity.h"
#include "qlw/qlw_std.h"
#include "qlw/registry_access.h"
#include "qlw/text_format.h"
#include "qlw/trace_state.h"
#include "text/letter_case.h"

#include <array>
#include <chrono>
#include <ctime>
#include <initializer_list>

namespace {

constexpr std::string_view product_code = "zql";
constexpr const char* long_date = "%A, %B %d, %Y";
constexpr const char* windows_nt = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
constexpr const char* windows_9x = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";

std::string first_stored(const registry_text_reader& stored, std::initializer_list<std::string> paths) {
    for (const std::string& path : paths)
        if (std::string text = stored(path); !text.empty())
            return text;
    return {};
}

std::string company(const registry_text_reader& stored) {
    preset_global_string("scomm_company", SAVE_NONE, {}, true);
    if (std::string name = get_global_string("scomm_company"); !name.empty())
        return name;
    return first_stored(stored,
                        {"SOFTWARE\\Quillon Systems\\Company", std::string(windows_nt) + "RegisteredOrganization",
                         std::string(windows_9x) + "RegisteredOrganization",
                         "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\MS Setup (ACME)\\User Info\\DefCompany"});
}

std::string computer(const registry_text_reader& stored) {
    const std::string name = stored("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\ComputerName\\"
                                    "ActiveComputerName\\ComputerName");
    return in_capitals(name.empty() ? platform::computer_name() : name);
}

std::string line(std::string_view label, std::string_view value) {
    return "     #" + std::string(label) + ": '" + std::string(value) + "'\r\n";
}

// A path without hive is one of the company's own, which the ini files hold first.
std::string text_stored_at(const std::string& path) {
    constexpr bool quiet = true;
    return path.starts_with("HKEY_") ? get_string_from_registry(path, {}, quiet) : get_from_registry_both(path, {});
}

} // namespace

std::string build_date_text(std::string_view version) {
    const auto is_digit = [](char letter) { return letter >= '0' && letter <= '9'; };
    if (version.size() < 4 || !is_digit(version[2]) || !is_digit(version[3]))
        return {};
    const std::chrono::year_month_day day{
        std::chrono::year(static_cast<unsigned char>(version[0]) + 1936),
        std::chrono::month(static_cast<unsigned>(static_cast<unsigned char>(version[1]) - 64)),
        std::chrono::day(static_cast<unsigned>((version[2] - '0') * 10 + (version[3] - '0')))};
    if (!day.ok())
        return {};
    std::tm parts{};
    parts.tm_year = static_cast<int>(day.year()) - 1900;
    parts.tm_mon = static_cast<int>(static_cast<unsigned>(day.month())) - 1;
    parts.tm_mday = static_cast<int>(static_cast<unsigned>(day.day()));
    parts.tm_wday = static_cast<int>(std::chrono::weekday(std::chrono::sys_days(day)).c_encoding());
    std::array<char, 64> text{};
    return std::string(text.data(), std::strftime(text.data(), text.size(), long_date, &parts));
}

support_facts gather_support_facts(const registry_text_reader& stored) {
    support_facts facts;
    facts.date = platform::run_date_text(long_date);
    facts.computer = computer(stored);
    facts.company = company(stored);
    facts.phone = stored("SOFTWARE\\Quillon Systems\\Phone");
    facts.owner = first_stored(
        stored, {std::string(windows_nt) + "RegisteredOwner", std::string(windows_9x) + "RegisteredOwner"});
    facts.user = stored("SOFTWARE\\Quillon Systems\\User Name");
    if (facts.user.empty() || facts.user == "Windows User")
        facts.user = facts.owner;
    facts.email = lower_case(stored("SOFTWARE\\Quillon Systems\\Email"));
    facts.system_version = get_windows_version_text();
    facts.sketchup_version = trace_state().notes.sketchup_version;
    return facts;
}

std::string support_report_text(const support_facts& facts) {
    return line("Date", facts.date) + line("Computer", facts.computer) + line("Product", application_name) +
           line("Version", version_text) +
           line("Build", std::string(version_text) + ' ' + build_date_text(version_text)) +
           line("Base", ini_base_name) + line("Company", facts.company) + line("Phone", facts.phone) +
           line("User", facts.user) + line("Email", facts.email) + line("Owner", facts.owner) +
           line("TL", product_code) + line("TC", product_code) + line("VC", "10") +
           line("Windows", facts.system_version) + line("SU Version", facts.sketchup_version);
}

std::string get_support_report() {
    const support_notes& notes = trace_state().notes;
    return support_report_text(gather_support_facts(text_stored_at)) + notes.first + notes.second;
}
