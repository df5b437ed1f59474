#pragma once

// The files that a stream refers to: each is there, and each is well-formed.

#include "tools/batch_check/batch_contents.h"
#include "tools/batch_check/check_batch.h"

#include <string>
#include <unordered_map>
#include <unordered_set>

namespace batch_check {

class reference_check {
public:
    reference_check(const batch_files& of_batch, batch_contents& in_batch, batch_report& into)
        : files(of_batch), contents(in_batch), report(into) {}

    void check_materials();
    void check_lamps();
    void check_plants();
    void check_ground_covers();

private:
    void check_material_of(const declared_material& material);
    void check_picture_of(const std::string& material_file, const std::string& path, std::size_t line);
    void compare_picture(const std::string& file);
    // Whether the file is there; then something refers to it, be it readable or not.
    bool refers_to(const std::string& file);
    // What is wrong where a file is missing, or there and not readable.
    std::string no_file(const std::string& file) const;
    void count_lamp_type(const std::string& type);
    // Says so if a full name leads to another folder than this one.
    void warn_of_other_folder(const batch_contents::place& place, const std::string& file, std::size_t line);
    // The first file of equal content; this one if there is none before it.
    static const std::string& first_of_content(std::unordered_map<std::string, std::string>& first,
                                               const std::string& content, const std::string& file);

    const batch_files& files;
    batch_contents& contents;
    batch_report& report;
    std::unordered_set<std::string> checked_materials; // once, however often their names are declared
    std::unordered_map<std::string, std::string> material_of_content;
    std::unordered_map<std::string, std::string> picture_of_content;
};

} // namespace batch_check
