#pragma once

// What every program beside the converter answers alike: "--help", "--version" and an option that it does not know.

#include <initializer_list>
#include <optional>
#include <string_view>

// The status with which the program ends before it begins; nothing if it goes on.
//   "--help" alone: the usage on standard output, 0.
//   "--version" alone: name and version on standard output, 0.
//   Any argument that begins with "-" and is none of `options`: one line on standard error, 2. A file of such a name is
//   given as "./-name".
//   A standard output that takes nothing of the usage or the version: one line on standard error and
//   status_of_full_output.
// options: one that ends in "=" stands for all that begin with it.
// usage: whole lines, the first as "usage: NAME ...". argc and argv: as main has them.
std::optional<int> answer_at_once(int argc, const char* const* argv, std::string_view name, std::string_view usage,
                                  std::initializer_list<std::string_view> options = {}, int status_of_full_output = 2);

// For a command line with too much or too little on it: the usage on standard error. Gives the status, 2.
int refuse_command_line(std::string_view usage);
