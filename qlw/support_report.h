#pragma once

// The block of facts that support needs with a message.

#include <functional>
#include <string>
#include <string_view>

// What the report says, each the value of one line.
struct support_facts {
    std::string date;
    std::string computer;
    std::string company;
    std::string phone;
    std::string user;
    std::string email;
    std::string owner; // of the operating system
    std::string system_version;
    std::string sketchup_version;
};

// Gives the text stored under a registry path, with or without a hive in front; empty if there is none.
using registry_text_reader = std::function<std::string(const std::string& path)>;

// Gathers the facts from the registry, the settings and the platform. The setting "scomm_company" exists afterwards. A
// system without a registry has no owner, and gives the computer's name by itself.
support_facts gather_support_facts(const registry_text_reader& stored);

// One line for each fact, with five leading blanks; lines end in CR LF.
std::string support_report_text(const support_facts& facts);

// The whole report, and behind its lines the notes of the trace state.
std::string get_support_report();

// The day that a version text encodes: the first letter's code + 1936 is the year, the second's - 64 the month, the two
// digits behind them the day. In words, as "Tuesday, March 26, 2019"; empty if the text is no such code.
std::string build_date_text(std::string_view version);
