#pragma once

// Runs the built program in a fresh batch folder and compares all that it leaves with golden files.

#include "image/picture.h"
#include "image/picture_format.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"
#include "tools/batch_check/codes.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// What the progress display leaves behind on a standard error that is no terminal, if a run never moves it: fewer than
// 100 items do not. A window leaves nothing behind.
inline constexpr std::string_view quiet_errors =
    platform::lives_on_the_console ? "Tessaline Progress [....................]\n" : "";

// The folders that every run of a model that opens makes.
std::set<std::string> folders_of_every_run();

// A picture that a run encodes: what the file decodes to is compared, since its bytes are the codec's affair.
struct encoded_picture {
    image::picture_format format = image::picture_format::unknown;
    image::picture pixels;
    int tolerance = 0; // how far a byte may be off; for formats that lose something
};

// The program that batches are converted with: the one of this build, or the one that TESSALINE_TESTED_PROGRAM names.
std::string tested_program();

using files_by_name = std::map<std::string, std::string>; // names from the batch folder on, with "/" between

// The files of a folder and of those inside; none if there is no such folder.
files_by_name files_below(const std::string& folder);

// A batch folder of its own in an empty surrounding: no settings of the user, no marker file, a fixed date.
class batch {
public:
    // name: of the batch folder; with "/" in it, of several folders, one in the other.
    explicit batch(const std::string& name = "batch");

    const std::string& folder() const { return full_name; }
    std::string operator/(const std::string& inside) const { return outside / (name + "/" + inside); }
    // The folder in which the batch folder lies.
    const temporary_folder& surrounding() const { return outside; }

    // Makes a file of the batch folder.
    void put(const std::string& inside, std::string_view bytes);
    // Writes the model as "geometry.qlm", or under another name; takes all from the builder.
    void put_model(sketchup::model_builder& m, const std::string& inside = "geometry.qlm",
                   skp::classic_version version = skp::classic_version::v17);

    // In golden files and their names that mark, as "@TREE@", stands for the text.
    void put_mark(const std::string& mark, const std::string& text);
    // What a run must leave beside the golden files: a file with these bytes, or a picture.
    void expect_file(const std::string& inside, std::string_view bytes);
    void expect_picture(const std::string& inside, encoded_picture wanted);

    // What the checker must find in the batch that the next runs leave; else it must find nothing, notes aside.
    void expect_finding(batch_check::code what) { codes_to_find.insert(what); }

    // Runs the program on "geometry.qlm", with these arguments behind its full name. The running test fails if the
    // checker finds anything else in what a run leaves than it must.
    program_result run(const std::vector<std::string>& more_arguments = {}) const;
    // Runs it with these arguments alone, from that folder.
    program_result run_with(const std::vector<std::string>& arguments, const std::string& current_folder) const;
    program_result run_with(const std::vector<std::string>& arguments) const { return run_with(arguments, full_name); }

    // How such a run starts.
    program_start start_with(const std::vector<std::string>& arguments, const std::string& current_folder) const;

    // For the next runs: the text of SOURCE_DATE_EPOCH, empty to take it away; the time zone.
    void set_date(std::string seconds, std::string zone);

    bool has(const std::string& inside) const { return outside.has(name + "/" + inside); }
    std::string read(const std::string& inside) const { return outside.read(name + "/" + inside); }
    files_by_name files() const;
    std::set<std::string> folders() const;
    // What put_model wrote last: a run must leave it as it is.
    const files_by_name& models() const { return written_models; }
    // What was told with expect_finding, put_mark, expect_file and expect_picture.
    const std::set<batch_check::code>& expected_codes() const { return codes_to_find; }
    const std::map<std::string, std::string>& marks() const { return golden_marks; }
    const files_by_name& expected_files() const { return files_to_find; }
    const std::map<std::string, encoded_picture>& expected_pictures() const { return pictures_to_find; }

private:
    temporary_folder outside;
    std::string name;
    std::string full_name;
    files_by_name written_models;
    std::map<std::string, std::string> golden_marks; // "@BATCH@" among them
    files_by_name files_to_find;
    std::map<std::string, encoded_picture> pictures_to_find;
    std::set<batch_check::code> codes_to_find;
    std::string date = "1000000000"; // 9 September 2001, 01:46:40
    std::string zone = "UTC";
};

// A golden text with other texts in place of the marks. What was put in is not looked through again.
std::string without_marks(std::string golden_text, const std::map<std::string, std::string>& marks);

// One text for each file that is missing, not expected, or different, with its first differing line.
std::vector<std::string> differences(const files_by_name& expected, const files_by_name& found);
// What is wrong with the bytes of a picture; empty if nothing is.
std::string difference_from(const encoded_picture& wanted, std::string_view bytes);

// Fails the running test unless the checker finds what it must and nothing else, notes aside: in the batch folder if it
// holds a stream of the usual name, and in every stream of another name that lies there.
void expect_findings(const batch& found);

// Fails the running test unless the batch folder holds, byte for byte, the golden files of `case_name`, the models that
// were put there, what else is expected, and these folders. In golden files "@BATCH@" stands for the full name of the
// batch folder. What was found is copied for a look when it fails. case_name: of a folder beside this file; with "/" in
// it, from the folder of the project on.
void expect_batch(const batch& found, const std::string& case_name,
                  const std::set<std::string>& folders = folders_of_every_run());

// The same around a run of the program, which must end quietly with status 0.
void expect_run(const batch& prepared, const std::string& case_name,
                const std::vector<std::string>& more_arguments = {});
