#pragma once

// Kinds of damage that are done to small batches. A change says whether there was anything to change.

#include "tests/tools/small_batch.h"
#include "tools/batch_check/codes.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

using small_batch::files_by_name;
using change = std::function<bool(files_by_name&)>;

// ---- changes of one line of a file; nth: which of equal lines, from 0
change replaced(const std::string& file, const std::string& line, const std::string& by, int nth = 0);
change removed(const std::string& file, const std::string& line, int nth = 0);
change doubled(const std::string& file, const std::string& line, int nth = 0);
change put_ahead(const std::string& file, const std::string& line, const std::string& added, int nth = 0);
change swapped_with_next(const std::string& file, const std::string& line, int nth = 0);
// The file ends behind that line, or so many bytes behind its beginning.
change cut_behind(const std::string& file, const std::string& line, int nth = 0);
change cut_within(const std::string& file, const std::string& line, std::size_t bytes, int nth = 0);
change with_bare_line_feed(const std::string& file, const std::string& line, int nth = 0);

// ---- changes of whole files
change appended(const std::string& file, const std::string& bytes);
change removed_file(const std::string& file);
change renamed_file(const std::string& file, const std::string& to);
change added_file(const std::string& file, const std::string& bytes);
change overwritten(const std::string& file, const std::string& bytes);
change cut_to(const std::string& file, std::size_t bytes);
change with_flipped_byte(const std::string& file, std::size_t at);
// Each text wherever it stands.
change replaced_everywhere(const std::string& file, const std::string& text, const std::string& by);

change all_of(std::vector<change> changes);

struct damage {
    std::string name; // what is done, in words
    batch_check::code expected;
    change doing;
    bool to_animation = false; // else to the still batch

    friend std::ostream& operator<<(std::ostream& out, const damage& one) { return out << one.name; }
};

// ---- to the stream
std::vector<damage> damage_to_frames();         // head, end, line ends, what is no record
std::vector<damage> damage_to_order_of_faces(); // lines that stand where they cannot
std::vector<damage> damage_to_order_of_lamps();
std::vector<damage> damage_to_order_of_places(); // planes, plants, outside objects, images
std::vector<damage> damage_to_order_at_the_end();
std::vector<damage> damage_to_numbers();    // their forms
std::vector<damage> damage_to_vertices();   // their directions and numbers, and the triangles that name them
std::vector<damage> damage_to_blocks();     // what must agree within a block, and of one with the next
std::vector<damage> damage_to_references(); // numbers that lead nowhere
std::vector<damage> damage_to_edges();

// ---- to the other files
std::vector<damage> damage_to_materials(); // their files, and the lines in them
std::vector<damage> damage_to_material_values();
std::vector<damage> damage_to_pictures();
std::vector<damage> damage_to_lamps();
std::vector<damage> damage_to_options();
std::vector<damage> damage_to_folders();
